#pragma once

// A pane of the column at the window's right: a header that expands and collapses it, and a body.

#include "Controls/VantraFramePane.h"

class QVBoxLayout;

// Shows title and arrow of its pane, and tells of clicks.
class PaneHeader : public VantraFramePane
{
    Q_OBJECT

public:
    PaneHeader(const QString &inTitle, QWidget *inParent);

    QSize sizeHint() const override;

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *inEvent) override;
    void mousePressEvent(QMouseEvent *inEvent) override;
    void keyPressEvent(QKeyEvent *inEvent) override;

private:
    QFont titleFont() const;

    const QString mTitle;
};

class Pane : public VantraFramePane
{
    Q_OBJECT

public:
    Pane(const QString &inTitle, QWidget *inParent);

    // Where the contents go.
    QVBoxLayout *contents() const { return mContents; }
    PaneHeader *header() const { return mHeader; }

protected:
    void enterEvent(QEnterEvent *inEvent) override;
    void leaveEvent(QEvent *inEvent) override;

private:
    PaneHeader *mHeader;
    VantraFramePane *mBody;
    QVBoxLayout *mContents;
};
