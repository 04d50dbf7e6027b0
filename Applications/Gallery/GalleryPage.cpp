#include "GalleryPage.h"

#include "Theme/VantraFont.h"

#include <QtCore/QEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QVBoxLayout>

HouseLabel::HouseLabel(const QString &inText, FontGetter inFont, QFont::Weight inWeight, QWidget *inParent)
    : QLabel(inText, inParent), mFont(inFont), mWeight(inWeight)
{
    setTextFormat(Qt::PlainText);
    applyFont();
}

void HouseLabel::changeEvent(QEvent *inEvent)
{
    // What a label with a font of its own hears of a new text size.
    if (inEvent->type() == QEvent::StyleChange)
        applyFont();
    QLabel::changeEvent(inEvent);
}

void HouseLabel::applyFont()
{
    QFont font = mFont();
    font.setWeight(mWeight);
    setFont(font);
}

HouseLabel *makeCaption(const QString &inText)
{
    return new HouseLabel(inText, &VantraFont::extraSmallFont);
}

HouseLabel *makeNote(const QString &inText)
{
    auto *note = new HouseLabel(inText, &VantraFont::smallFontPlus);
    note->setWordWrap(true);
    return note;
}

SampleGrid::SampleGrid(QVBoxLayout *ioLayout, int inColumns, Qt::Alignment inAlignment)
    : mGrid(new QGridLayout), mColumns(inColumns), mAlignment(inAlignment)
{
    mGrid->setHorizontalSpacing(24);
    mGrid->setVerticalSpacing(4);
    mGrid->setColumnStretch(inColumns, 1);
    ioLayout->addLayout(mGrid);
}

void SampleGrid::add(const QString &inCaption, QWidget *inSample)
{
    // Three grid rows for each row of samples: sample, caption, and air before the next.
    const int row = mNext / mColumns * 3;
    const int column = mNext % mColumns;
    if (row > 0)
        mGrid->setRowMinimumHeight(row - 1, 8);
    mGrid->addWidget(inSample, row, column, Qt::AlignLeft | mAlignment);
    mGrid->addWidget(makeCaption(inCaption), row + 1, column, Qt::AlignLeft | Qt::AlignTop);
    ++mNext;
}

void SampleGrid::endRow()
{
    mNext += (mColumns - mNext % mColumns) % mColumns;
}

GalleryPage::GalleryPage(QWidget *inParent) : QWidget(inParent), mLayout(new QVBoxLayout(this))
{
    mLayout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    mLayout->setSpacing(kSectionSpacing);
    mLayout->addStretch();
}

QVBoxLayout *GalleryPage::addSection(const QString &inTitle, const QString &inNote)
{
    auto *section = new QVBoxLayout;
    section->setSpacing(8);
    section->addWidget(new HouseLabel(inTitle, &VantraFont::largeFontPlus, QFont::Medium));
    if (!inNote.isEmpty())
        section->addWidget(makeNote(inNote));
    section->addSpacing(4);
    auto *body = new QVBoxLayout;
    body->setSpacing(8);
    section->addLayout(body);
    mLayout->insertLayout(mLayout->count() - 1, section);
    mSections.append({inTitle, section});
    return body;
}

QStringList GalleryPage::sectionTitles() const
{
    QStringList titles;
    for (const auto &section : mSections)
        titles << section.first;
    return titles;
}

QRect GalleryPage::sectionRect(const QString &inTitle) const
{
    for (const auto &section : mSections) {
        if (section.first.compare(inTitle, Qt::CaseInsensitive) == 0)
            return section.second->geometry();
    }
    return QRect();
}
