#pragma once

// The progress dialog: the operation's text, a bar, the stage's text and a Cancel button.
//
//     auto *dialog = new VantraProgress(window);
//     dialog->setCancelKeys({Qt::Key_Escape});
//     dialog->setOperationText(tr("Export"));
//     dialog->open();
//     ...
//     dialog->accept();
//
// Canceling only asks: the dialog stays until its owner closes it. Most code doesn't make one but goes
// through VantraProgressMgr, which also keeps it out of sight for the first seconds. GUI thread only.
//
// Keys: those of setCancelKeys cancel, with any modifiers and whatever the button's state. The dialog drops
// every other key that reaches it, Escape and Return among them, and while it has the focus no shortcut of
// the application fires. The focused button takes its own keys, as any button does.

#include "Progress/VantraProgressBaseDlg.h"

#include <QtCore/QList>

#include <memory>

class VTWIDGETSLITE_EXPORT VantraProgress : public VantraProgressBaseDlg
{
    Q_OBJECT

public:
    // Application modal, sized by its texts and at least 344 pixels wide, "Loading..." over a full bar. A
    // null parent stops the process.
    explicit VantraProgress(QWidget *inParent = nullptr);
    ~VantraProgress() override;

    // Qt::Key values that cancel; none by default.
    void setCancelKeys(const QList<int> &inKeys);

    // Both do nothing here.
    void startProgress() override;
    void endProgress() override;

    // The operation's text also names the bar for assistive technology.
    void setOperationText(const QString &inText) override;
    void setStageText(const QString &inText) override;
    void setRange(int inMinimum, int inMaximum) override;
    void setValue(int inValue) override;

    // The button and with it the close button of the title bar, which then does nothing. The cancel keys go
    // on working.
    void setCancelEnabled(bool inEnabled) override;

    // Shows or hides the button together with the close button of the title bar; visible by default. A
    // visible dialog stays visible, so that a running exec() goes on.
    virtual void setCancelVisible(bool inVisible);

public slots:
    // What the button and the title bar's close button do: cancel, if the button is visible and enabled.
    // Never closes the dialog.
    void reject() override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Form;

    std::unique_ptr<Form> mUi;
    QList<int> mCancelKeys;
};
