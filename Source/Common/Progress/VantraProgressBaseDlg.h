#pragma once

// What the progress manager knows of a progress dialog: texts, a range, a value and whether the user wants to
// stop. VantraProgress is the one that applications see.
//
//     connect(dialog, &VantraProgressBaseDlg::progressCanceled, job, &Job::stop);
//     dialog->setOperationText(tr("Export"));
//     dialog->setRange(0, 99);
//
// A dialog serves one operation and never closes by itself; its owner calls accept(). GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QDialog>

class VTWIDGETSLITE_EXPORT VantraProgressBaseDlg : public QDialog
{
    Q_OBJECT

public:
    // A title bar with nothing but the close button, and one with no button at all.
    static const Qt::WindowFlags DEFAULT_WINDOW_FLAGS;
    static const Qt::WindowFlags NO_TITLE_BAR_BUTTONS_WINDOW_FLAGS;

    // A null parent stops the process: a modal dialog without one can end up behind the window it blocks.
    VantraProgressBaseDlg(QWidget *inParent, Qt::WindowFlags inFlags);
    ~VantraProgressBaseDlg() override;

    // Whether the user, or a call of setCanceled, has canceled. Stays true for the dialog's life unless taken
    // back.
    bool canceled() const { return mCanceled; }

    // Emits progressCanceled for each true, also when the dialog is canceled already.
    void setCanceled(bool inCanceled);

    // The Qt::Key that canceled, 0 for none and for the button.
    int keyUsedToCancel() const { return mKeyUsedToCancel; }

    // Called when the operation begins and when it has ended, for dialogs that show more than the texts.
    virtual void startProgress() = 0;
    virtual void endProgress() = 0;

    // The text of the whole operation, and of what it is at.
    virtual void setOperationText(const QString &inText) = 0;
    virtual void setStageText(const QString &inText) = 0;

    // First and last step. Two zeros stand for an operation of unknown length.
    virtual void setRange(int inMinimum, int inMaximum) = 0;
    virtual void setValue(int inValue) = 0;

    // Whether the user is offered to cancel; true by default.
    virtual void setCancelEnabled(bool inEnabled) = 0;

signals:
    void progressCanceled();

protected:
    bool mCanceled = false;
    int mKeyUsedToCancel = 0;
};
