#pragma once

// The application's modal message: its icon, a bold text with a smaller one below, and, if wanted, a check
// box that asks not to show the message again and buttons that do something without closing it.
//
//     VantraMessageBox box(tr("Export"), tr("The file exists."), tr("Replace it?"),
//                          QMessageBox::Yes | QMessageBox::Cancel, window, true);
//     box.addButton(tr("Show"), QMessageBox::ActionRole, this, SLOT(showFile()), false);   // stays open
//     const bool replace = box.exec() == QMessageBox::Yes;
//     remember(box.isDontShowMeThisAgainChecked());
//
// A box belongs to a window; a null parent stops the process. It comes up in the middle of its parent, or of
// the primary screen while the parent is hidden. It shows the same icon for questions, warnings and critical
// messages. One exec() for each box. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtWidgets/QMessageBox>

class QCheckBox;

class VTWIDGETSLITE_EXPORT VantraMessageBox : public QMessageBox
{
    Q_OBJECT

public:
    // Without title and text.
    VantraMessageBox(QWidget *inParent, QMessageBox::StandardButtons inButtons);

    // Without buttons.
    VantraMessageBox(const QString &inTitle, const QString &inText, QWidget *inParent,
                     bool inDontShowMeAgain);

    // inText is shown bold, its line breaks and blank lines as such; it may hold rich text. A text that
    // setText sets later stays as it is.
    VantraMessageBox(const QString &inTitle, const QString &inText, QMessageBox::StandardButtons inButtons,
                     QWidget *inParent, bool inDontShowMeAgain);
    VantraMessageBox(const QString &inTitle, const QString &inText, const QString &inInformativeText,
                     QMessageBox::StandardButtons inButtons, QWidget *inParent, bool inDontShowMeAgain);
    ~VantraMessageBox() override;

    // The smaller text, at least 350 pixels wide.
    void setInformativeText(const QString &inText);

    // False without the check box. May be asked after exec().
    bool isDontShowMeThisAgainChecked() const;

    // Puts a check box into the row of buttons and cuts all connections of its signals, so connect them
    // afterwards. The dialog owns it from then on. A click on it never closes the dialog.
    void insertCheckboxBelowText(QCheckBox *inCheckBox);

    // QMessageBox's own, whose buttons all close the dialog.
    using QMessageBox::addButton;

    // Each adds a button and connects its clicked() to SLOT(member) of the receiver, unless one of the two is
    // null. A click on a button that doesn't close the dialog makes it the clickedButton(), does what it is
    // connected to, and leaves the dialog and its result() alone.

    // Null for QMessageBox::NoButton and for buttons that QMessageBox refuses.
    virtual QPushButton *addButton(QMessageBox::StandardButton inButton, const QObject *inReceiver,
                                   const char *inMember, bool inCloseDialog);

    // Takes ownership of the button, which has a text. A null button and an invalid role stop the process.
    // For the result of such a button ask clickedButton(); the number that exec() returns differs between
    // versions of Qt.
    virtual void addButton(QAbstractButton *inButton, QMessageBox::ButtonRole inRole,
                           const QObject *inReceiver, const char *inMember, bool inCloseDialog);

    // An invalid role stops the process.
    virtual QPushButton *addButton(const QString &inText, QMessageBox::ButtonRole inRole,
                                   const QObject *inReceiver, const char *inMember, bool inCloseDialog);

    // Each runs a dialog to its end. The first three return what exec() returned; the first button, unless it
    // is NoButton, is the default one. critical() beeps; question() is warning() by another name.
    static int warning(QWidget *inParent, const QString &inTitle, const QString &inText,
                       QMessageBox::StandardButton inFirstButton, QMessageBox::StandardButton inSecondButton);
    static int question(QWidget *inParent, const QString &inTitle, const QString &inText,
                        QMessageBox::StandardButton inFirstButton,
                        QMessageBox::StandardButton inSecondButton);
    static int critical(QWidget *inParent, const QString &inTitle, const QString &inText,
                        QMessageBox::StandardButton inFirstButton,
                        QMessageBox::StandardButton inSecondButton);

    static QMessageBox::StandardButton warning(QWidget *inParent, const QString &inTitle,
                                               const QString &inText, QMessageBox::StandardButtons inButtons,
                                               QMessageBox::StandardButton inDefaultButton);
    static QMessageBox::StandardButton question(QWidget *inParent, const QString &inTitle,
                                                const QString &inText, QMessageBox::StandardButtons inButtons,
                                                QMessageBox::StandardButton inDefaultButton);

    void done(int inResult) override;
    void setVisible(bool visible) override;

signals:
    // The user has ticked or cleared the check box; a Qt::CheckState.
    void dontShowMeAgainStateChanged(int stateChanged);

    // The dialog is about to go, with this result(). The parent is activated afterwards.
    void aboutToHide(int result);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static const QFlags<Qt::WindowType> kDefaultWindowFlags;

    void init(const QString &inInformativeText, QMessageBox::StandardButtons inButtons,
              bool inDontShowMeAgain);
    void initIcon();
    void makeTextBold();
    void insertDontShowMeAgainCheckbox();
    void removeInformativeArea();
    void wrapInformativeText();
    void offerOnlyButtonToEscape();
    bool mayBeDetailsButton(QAbstractButton *inButton) const;
    void enterButton(QAbstractButton *inButton, bool inCloseDialog);
    void clickWithoutClosing(QAbstractButton *inButton);

    QMap<QAbstractButton *, bool> mButtonClosesDialogMap;
    QCheckBox *mDontShowMeAgainCheckBox = nullptr;
    QPointer<QWidget> mInformativeArea; // around the informative text, to give it a width
    bool mStayingOpen = false;          // while a click on a button that doesn't close the dialog is handled
};
