#pragma once

// A frameless, translucent window with round corners and an empty widget to fill: the panel of the rich tool
// tips. It never takes the focus and doesn't activate when shown.
//
//     auto *panel = new VantraToolTipContentFrame;
//     auto *layout = new QVBoxLayout(panel->body());
//     panel->show();
//
// It is painted round, with a radius of 10, whatever the frame's own properties say. GUI thread only.

#include "Controls/VantraFrame.h"

#include <memory>

class VTWIDGETSLITE_EXPORT VantraToolTipContentFrame : public VantraFrame
{
    Q_OBJECT

public:
    // A window of its own, also with a parent.
    explicit VantraToolTipContentFrame(QWidget *inParent = nullptr);
    ~VantraToolTipContentFrame() override;

    // The widget to fill; the frame owns it.
    QWidget *body() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Ui;

    const std::unique_ptr<Ui> mUi;
};
