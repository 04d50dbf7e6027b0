#pragma once

// A check box that can cut its text to the room it has, is never lower than one and a half lines of its font,
// and lets the mouse through while it is disabled. It has the application's font; VantraCheckBox has the
// house font.
//
//     auto *checkBox = new VantraCheckBoxBase(parent);
//     checkBox->setText(tr("Remove chromatic aberration"));
//     checkBox->setElideTextEnabled(true);
//
// GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QCheckBox>

class VTWIDGETSLITE_EXPORT VantraCheckBoxBase : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(bool elideTextEnabled READ isElideTextEnabled WRITE setElideTextEnabled)

public:
    explicit VantraCheckBoxBase(QWidget *inParent = nullptr);
    ~VantraCheckBoxBase() override;

    // True for a text that ends in an ellipsis where the room ends; otherwise it is clipped. False by
    // default. Doesn't repaint: a change shows with the next paint.
    bool isElideTextEnabled() const { return mElideTextEnabled; }
    void setElideTextEnabled(bool inEnabled) { mElideTextEnabled = inEnabled; }

    // setCheckState without a word: neither stateChanged nor toggled is emitted.
    virtual void setCheckStateAndBlockSignals(Qt::CheckState inState);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    bool mElideTextEnabled = false;
};
