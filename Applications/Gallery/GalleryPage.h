#pragma once

// The base of all pages, and the small widgets from which pages are laid out: headings, notes, captions and
// captioned samples. Their texts follow the text size by themselves.

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

#include <utility>

class QFont;
class QGridLayout;
class QHBoxLayout;
class QVBoxLayout;

// A label in one of the house fonts, which it asks for again when the text size changes.
class HouseLabel : public QLabel
{
    Q_OBJECT

public:
    using FontGetter = const QFont &(*)();

    HouseLabel(const QString &inText, FontGetter inFont, QFont::Weight inWeight = QFont::Normal,
               QWidget *inParent = nullptr);

protected:
    void changeEvent(QEvent *inEvent) override;

private:
    void applyFont();

    FontGetter mFont;
    QFont::Weight mWeight;
};

HouseLabel *makeCaption(const QString &inText);

// A paragraph that wraps at the page's width.
HouseLabel *makeNote(const QString &inText);

// Samples in rows of at most a number of columns, each above its caption and as large as it wants to be.
class SampleGrid
{
public:
    // inAlignment is the vertical one of the samples in their row.
    SampleGrid(QVBoxLayout *ioLayout, int inColumns, Qt::Alignment inAlignment = Qt::AlignVCenter);

    // The grid's layout takes the widget.
    void add(const QString &inCaption, QWidget *inSample);

    // The next sample begins a row.
    void endRow();

private:
    QGridLayout *mGrid;
    int mColumns;
    Qt::Alignment mAlignment;
    int mNext = 0;
};

class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget *inParent);

    // Called after accent, text size or style have changed, when all widgets know it already. For pages that
    // hold copies of what the theme or the style said.
    virtual void refresh() {}

    // The titles of the page's sections from the top, and where one of them lies within the page once it is
    // laid out; a null rectangle for a title that none has.
    QStringList sectionTitles() const;
    QRect sectionRect(const QString &inTitle) const;

    // Space on the page's sides and between its sections, in pixels.
    static constexpr int kMargin = 24;
    static constexpr int kSectionSpacing = 28;

protected:
    // A titled part of the page; contents go into the layout that comes back.
    QVBoxLayout *addSection(const QString &inTitle, const QString &inNote = QString());

private:
    QVBoxLayout *mLayout;
    QList<std::pair<QString, QLayout *>> mSections;
};
