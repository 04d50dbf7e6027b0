#pragma once

// A column of panes as an application builds it: each pane is a container with a header and a body. A click
// on a header expands or collapses its pane and selects it; with Ctrl it joins the selection. The pane that
// was clicked last is the targeted one. The keyboard reaches the headers by Tab, and Space clicks.

#include "Controls/VantraFramePane.h"

class QPropertyAnimation;
class QVBoxLayout;

// Shows title, arrow and target mark of its pane, and tells of clicks.
class PaneHeader : public VantraFramePane
{
    Q_OBJECT

public:
    explicit PaneHeader(const QString &inTitle, QWidget *inParent);

    QSize sizeHint() const override;

signals:
    void clicked(bool inWithControl);

protected:
    void paintEvent(QPaintEvent *inEvent) override;
    void mousePressEvent(QMouseEvent *inEvent) override;
    void keyPressEvent(QKeyEvent *inEvent) override;

private:
    QString mTitle;
};

// Clips its contents while it grows and shrinks.
class PaneBody : public VantraFramePane
{
    Q_OBJECT

public:
    PaneBody(QWidget *inContents, QWidget *inParent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return QSize(sizeHint().width(), 0); }

protected:
    void resizeEvent(QResizeEvent *inEvent) override;

private:
    QWidget *mContents;
};

class ColumnPane : public VantraFramePane
{
    Q_OBJECT

public:
    // Takes the contents. Starts collapsed.
    ColumnPane(const QString &inTitle, QWidget *inContents, PaneStyle inStyle, QWidget *inParent);

    void setExpanded(bool inExpanded, bool inAnimated = true);
    bool willBeExpanded() const { return mWillBeExpanded; }

signals:
    void headerClicked(bool inWithControl);

    // The pane has been expanded or collapsed, and the column's states are to be worked out anew.
    void expansionChanged();

protected:
    void enterEvent(QEnterEvent *inEvent) override;
    void leaveEvent(QEvent *inEvent) override;

private:
    void finish();

    PaneHeader *mHeader;
    PaneBody *mBody;
    QPropertyAnimation *mAnimation;
    bool mWillBeExpanded = false;
};

class PaneColumn : public QWidget
{
    Q_OBJECT

public:
    explicit PaneColumn(VantraFramePane::PaneStyle inStyle, QWidget *inParent = nullptr);

    // Takes the contents.
    ColumnPane *addPane(const QString &inTitle, QWidget *inContents);

    // Makes one pane the target and the selection, or one more of the selection.
    void choose(ColumnPane *inPane, bool inAlso);

protected:
    void showEvent(QShowEvent *inEvent) override;

private:
    VantraFramePane::PaneStyle mStyle;
    QVBoxLayout *mLayout;
    QList<ColumnPane *> mPanes;
};
