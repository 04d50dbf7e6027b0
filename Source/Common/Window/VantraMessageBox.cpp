#include "Window/VantraMessageBox.h"

#include "Theme/VantraFont.h"
#include "Utilities/VTWidgetUtils.h"
#include "VTQtSysInfo.h"

#include <QtCore/QEvent>
#include <QtCore/QMetaMethod>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

const QFlags<Qt::WindowType> VantraMessageBox::kDefaultWindowFlags =
    Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
    Qt::WindowCloseButtonHint;

namespace {

constexpr int kIconSize = 64;              // logical pixels
constexpr int kInformativeTextWidth = 350; // at least, in logical pixels

const Qt::WindowFlags kConstructionFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;

QLabel *informativeLabelOf(const QMessageBox &inBox)
{
    return inBox.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"));
}

QDialogButtonBox *buttonBoxOf(const QMessageBox &inBox)
{
    return inBox.findChild<QDialogButtonBox *>(QStringLiteral("qt_msgbox_buttonbox"));
}

void disconnectSignals(QObject *ioObject)
{
    const QMetaObject *meta = ioObject->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        // Who holds a pointer must still hear of the end.
        if (method.methodType() == QMetaMethod::Signal && method.name() != "destroyed") {
            QObject::disconnect(ioObject, method, nullptr, QMetaMethod());
        }
    }
}

// Answers "no" when a window is asked to close.
class CloseRefuser : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *inEvent) override
    {
        if (inEvent->type() != QEvent::Close) {
            return false;
        }
        inEvent->ignore();
        return true;
    }
};

int runWithTwoButtons(QWidget *inParent, const QString &inTitle, const QString &inText,
                      QMessageBox::StandardButton inFirstButton, QMessageBox::StandardButton inSecondButton)
{
    VantraMessageBox box(inTitle, inText, inParent, false);
    for (const QMessageBox::StandardButton button : {inFirstButton, inSecondButton}) {
        box.addButton(button, nullptr, nullptr, true);
    }
    if (inFirstButton != QMessageBox::NoButton) {
        box.setDefaultButton(inFirstButton);
    }
    return box.exec();
}

QMessageBox::StandardButton runWithButtons(QWidget *inParent, const QString &inTitle, const QString &inText,
                                           QMessageBox::StandardButtons inButtons,
                                           QMessageBox::StandardButton inDefaultButton)
{
    VantraMessageBox box(inTitle, inText, inButtons, inParent, false);
    box.setDefaultButton(inDefaultButton);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

VantraMessageBox::VantraMessageBox(QWidget *inParent, QMessageBox::StandardButtons inButtons)
    : QMessageBox(inParent)
{
    init(QString(), inButtons, false);
}

VantraMessageBox::VantraMessageBox(const QString &inTitle, const QString &inText, QWidget *inParent,
                                   bool inDontShowMeAgain)
    : VantraMessageBox(inTitle, inText, QString(), QMessageBox::NoButton, inParent, inDontShowMeAgain)
{
}

VantraMessageBox::VantraMessageBox(const QString &inTitle, const QString &inText,
                                   QMessageBox::StandardButtons inButtons, QWidget *inParent,
                                   bool inDontShowMeAgain)
    : VantraMessageBox(inTitle, inText, QString(), inButtons, inParent, inDontShowMeAgain)
{
}

VantraMessageBox::VantraMessageBox(const QString &inTitle, const QString &inText,
                                   const QString &inInformativeText, QMessageBox::StandardButtons inButtons,
                                   QWidget *inParent, bool inDontShowMeAgain)
    : QMessageBox(QMessageBox::NoIcon, inTitle, inText, QMessageBox::NoButton, inParent, kConstructionFlags)
{
    init(inInformativeText, inButtons, inDontShowMeAgain);
}

VantraMessageBox::~VantraMessageBox()
{
    if (mDontShowMeAgainCheckBox != nullptr) {
        disconnect(mDontShowMeAgainCheckBox, SIGNAL(stateChanged(int)), this,
                   SIGNAL(dontShowMeAgainStateChanged(int)));
    }
    for (auto entry = mButtonClosesDialogMap.cbegin(); entry != mButtonClosesDialogMap.cend(); ++entry) {
        disconnect(entry.key(), &QAbstractButton::clicked, nullptr, nullptr);
        disconnect(entry.key(), nullptr, this, nullptr);
    }
}

void VantraMessageBox::init(const QString &inInformativeText, QMessageBox::StandardButtons inButtons,
                            bool inDontShowMeAgain)
{
    const QWidget *const parent = parentWidget();
    Q_ASSERT(parent != NULL && "parent should not be NULL, see bug #12851");
    Q_UNUSED(parent);
    setWindowModality(Qt::ApplicationModal);
    setWindowFlags(kDefaultWindowFlags);
    VTWidgetsMatchFrameToTheme(this);
    initIcon();
    setFont(VantraFont::fontPlus());
    makeTextBold();
    if (!inInformativeText.isEmpty()) {
        setInformativeText(inInformativeText);
    }
    if (inDontShowMeAgain) {
        insertDontShowMeAgainCheckbox();
    }
    setStandardButtons(inButtons);
}

void VantraMessageBox::initIcon()
{
    setIconPixmap(QPixmap::fromImage(VTWidgetsGetAppIconAsImage(kIconSize, -1)));
}

void VantraMessageBox::makeTextBold()
{
    QString text = this->text();
    if (parentWidget() == nullptr || text.isEmpty()) {
        return;
    }
    text.replace(QStringLiteral("\n\n"), QStringLiteral("<P>"));
    text.replace(QStringLiteral("\n"), QStringLiteral("<BR>"));
    setText(QStringLiteral("<b>") + text + QStringLiteral("</b>"));
}

void VantraMessageBox::setInformativeText(const QString &inText)
{
    QMessageBox::setInformativeText(inText);
    if (inText.isEmpty()) {
        removeInformativeArea();
    }
    wrapInformativeText();
}

// The label and its area are deleted later, since a link in the label may have led here. Without its name
// nobody takes the label for the next one.
void VantraMessageBox::removeInformativeArea()
{
    if (QLabel *label = informativeLabelOf(*this)) {
        label->setObjectName(QString());
    }
    if (mInformativeArea != nullptr) {
        mInformativeArea->hide();
        mInformativeArea->deleteLater();
        mInformativeArea.clear();
    }
}

// QMessageBox takes its label out of the area whenever it makes a new layout, as it does for another icon or
// detailed text. This is therefore repeated then and when the dialog shows.
void VantraMessageBox::wrapInformativeText()
{
    QLabel *label = informativeLabelOf(*this);
    if (mInformativeArea != nullptr && (label == nullptr || label->parentWidget() != mInformativeArea)) {
        delete mInformativeArea;
    }
    if (label == nullptr || mInformativeArea != nullptr) {
        return;
    }
    mInformativeArea = new QWidget(this);
    mInformativeArea->setMinimumWidth(kInformativeTextWidth);
    auto *areaLayout = new QHBoxLayout(mInformativeArea);
    areaLayout->setContentsMargins(0, 0, 0, 0);
    QFont areaFont = font();
    areaFont.setPointSize(VantraFont::mainFontSize());
    mInformativeArea->setFont(areaFont);
    delete layout()->replaceWidget(label, mInformativeArea, Qt::FindChildrenRecursively);
    areaLayout->addWidget(label);
    mInformativeArea->installEventFilter(this);
    if (isVisible()) {
        mInformativeArea->show();
        label->show();
        // QMessageBox has chosen its size without the area.
        QEvent layoutRequest(QEvent::LayoutRequest);
        QCoreApplication::sendEvent(this, &layoutRequest);
    }
}

bool VantraMessageBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mInformativeArea && event->type() == QEvent::ChildRemoved) {
        // The empty area would cover the buttons. The new layout is still incomplete.
        mInformativeArea->hide();
        QMetaObject::invokeMethod(this, &VantraMessageBox::wrapInformativeText, Qt::QueuedConnection);
    }
    return QMessageBox::eventFilter(watched, event);
}

bool VantraMessageBox::isDontShowMeThisAgainChecked() const
{
    return mDontShowMeAgainCheckBox != nullptr && mDontShowMeAgainCheckBox->isChecked();
}

void VantraMessageBox::insertDontShowMeAgainCheckbox()
{
    mDontShowMeAgainCheckBox = new QCheckBox(tr("Don't show me this message again"), this);
    insertCheckboxBelowText(mDontShowMeAgainCheckBox);
    // By name, as newer Qt has another signal of the same sense.
    const bool test = connect(mDontShowMeAgainCheckBox, SIGNAL(stateChanged(int)), this,
                              SIGNAL(dontShowMeAgainStateChanged(int)));
    Q_ASSERT(test);
    Q_UNUSED(test);
}

void VantraMessageBox::insertCheckboxBelowText(QCheckBox *inCheckBox)
{
    QCheckBox *const checkbox = inCheckBox;
    Q_ASSERT(checkbox != NULL && "Checkbox should not be NULL");
    QDialogButtonBox *const buttonBox = buttonBoxOf(*this);
    Q_ASSERT(buttonBox != NULL);
    QFont checkBoxFont = checkbox->font();
    checkBoxFont.setPointSize(VantraFont::mainFontSize());
    checkbox->setFont(checkBoxFont);
    // The role decides on the place in the row alone.
    buttonBox->addButton(checkbox, VTQtSysInfo::isWinPlatform() ? QDialogButtonBox::AcceptRole
                                                                : QDialogButtonBox::ActionRole);
    mButtonClosesDialogMap.insert(checkbox, false);
    disconnectSignals(checkbox);
    connect(checkbox, &QObject::destroyed, this, [this, checkbox] {
        mButtonClosesDialogMap.remove(checkbox);
        if (mDontShowMeAgainCheckBox == checkbox) {
            mDontShowMeAgainCheckBox = nullptr;
        }
    });
}

QPushButton *VantraMessageBox::addButton(QMessageBox::StandardButton inButton, const QObject *inReceiver,
                                         const char *inMember, bool inCloseDialog)
{
    QPushButton *button = QMessageBox::addButton(inButton);
    if (button == nullptr) {
        return nullptr;
    }
    enterButton(button, inCloseDialog);
    if (inReceiver != nullptr && inMember != nullptr) {
        const bool test = connect(button, SIGNAL(clicked()), inReceiver, inMember);
        Q_ASSERT(test);
        Q_UNUSED(test);
    }
    return button;
}

void VantraMessageBox::addButton(QAbstractButton *inButton, QMessageBox::ButtonRole inRole,
                                 const QObject *inReceiver, const char *inMember, bool inCloseDialog)
{
    QAbstractButton *const button = inButton;
    const QMessageBox::ButtonRole role = inRole;
    Q_ASSERT(button != NULL);
    Q_ASSERT(role != QMessageBox::InvalidRole);
    if (inReceiver != nullptr && inMember != nullptr) {
        const bool test = connect(button, SIGNAL(clicked()), inReceiver, inMember);
        Q_ASSERT(test);
        Q_UNUSED(test);
    }
    QMessageBox::addButton(button, role);
    enterButton(button, inCloseDialog);
}

QPushButton *VantraMessageBox::addButton(const QString &inText, QMessageBox::ButtonRole inRole,
                                         const QObject *inReceiver, const char *inMember, bool inCloseDialog)
{
    const QMessageBox::ButtonRole role = inRole;
    Q_ASSERT(role != QMessageBox::InvalidRole);
    auto *button = new QPushButton(inText, this);
    addButton(button, role, inReceiver, inMember, inCloseDialog);
    return button;
}

void VantraMessageBox::enterButton(QAbstractButton *inButton, bool inCloseDialog)
{
    mButtonClosesDialogMap.insert(inButton, inCloseDialog);
    connect(inButton, &QObject::destroyed, this,
            [this, inButton] { mButtonClosesDialogMap.remove(inButton); });
    if (!inCloseDialog) {
        // QMessageBox closes on a click without asking done(), so the click takes another way to it.
        disconnect(inButton, &QAbstractButton::clicked, buttonBoxOf(*this), nullptr);
        connect(inButton, &QAbstractButton::clicked, this,
                [this, inButton] { clickWithoutClosing(inButton); });
    }
}

// Has QMessageBox take note of the clicked button, and keeps back what it does then: closing its window and
// telling that it has finished.
void VantraMessageBox::clickWithoutClosing(QAbstractButton *inButton)
{
    const int earlierResult = result();
    const bool signalsWereBlocked = signalsBlocked();
    CloseRefuser refuser;
    if (windowHandle() != nullptr) {
        windowHandle()->installEventFilter(&refuser);
    }
    // Made last, so the application's own slots run with open signals.
    const QMetaObject::Connection beforeClosing =
        connect(this, &QMessageBox::buttonClicked, this, [this] { blockSignals(true); });

    mStayingOpen = true;
    const QPointer<VantraMessageBox> self(this);
    emit buttonBoxOf(*this)->clicked(inButton);
    if (self.isNull()) {
        return;
    }
    mStayingOpen = false;
    disconnect(beforeClosing);
    blockSignals(signalsWereBlocked);
    setResult(earlierResult);
}

void VantraMessageBox::done(int inResult)
{
    if (mStayingOpen && !mButtonClosesDialogMap.value(clickedButton(), true)) {
        return;
    }
    QDialog::done(inResult);
}

// QMessageBox looks for its escape button here or, up to Qt 6.4, when the window shows. Newer Qt also decides
// here whether a dialog of the system serves, which only a polished subclass declines.
void VantraMessageBox::setVisible(bool visible)
{
    if (visible) {
        ensurePolished();
        offerOnlyButtonToEscape();
    }
    QMessageBox::setVisible(visible);
}

// A check box in the row isn't a choice, though QMessageBox counts it as one and then finds that Escape is
// ambiguous. Without a check box QMessageBox finds the only choice itself.
void VantraMessageBox::offerOnlyButtonToEscape()
{
    QList<QAbstractButton *> choices = buttons();
    const auto checkBoxes = choices.removeIf(
        [](const QAbstractButton *inButton) { return qobject_cast<const QCheckBox *>(inButton) != nullptr; });
    if (!detailedText().isEmpty() && choices.count() == 2) {
        choices.removeIf([this](QAbstractButton *inButton) { return mayBeDetailsButton(inButton); });
    }
    if (escapeButton() == nullptr && checkBoxes > 0 && choices.count() == 1) {
        setEscapeButton(choices.first());
    }
}

// True for the button that QMessageBox adds for a detailed text, since QMessageBox gives no access to it.
// Also true for an action button that the application added by a function of QMessageBox.
bool VantraMessageBox::mayBeDetailsButton(QAbstractButton *inButton) const
{
    return standardButton(inButton) == QMessageBox::NoButton &&
           buttonRole(inButton) == QMessageBox::ActionRole && !mButtonClosesDialogMap.contains(inButton);
}

// Once a button has been clicked, QMessageBox no longer takes its own closing for a click on the escape
// button.
void VantraMessageBox::closeEvent(QCloseEvent *event)
{
    if (!mButtonClosesDialogMap.value(clickedButton(), true)) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QMessageBox::keyPressEvent(&escape);
    }
    QMessageBox::closeEvent(event);
}

void VantraMessageBox::showEvent(QShowEvent *event)
{
    wrapInformativeText();
    QMessageBox::showEvent(event);
    const QWidget *parent = parentWidget();
    const QPoint centre = parent != nullptr && parent->isVisible()
                              ? parent->mapToGlobal(parent->rect().center())
                              : QGuiApplication::primaryScreen()->availableGeometry().center();
    move(centre - rect().center());
}

void VantraMessageBox::hideEvent(QHideEvent *event)
{
    emit aboutToHide(result());
    if (parentWidget() != nullptr) {
        parentWidget()->activateWindow();
    }
    QWidget::hideEvent(event);
}

int VantraMessageBox::warning(QWidget *inParent, const QString &inTitle, const QString &inText,
                              QMessageBox::StandardButton inFirstButton,
                              QMessageBox::StandardButton inSecondButton)
{
    return runWithTwoButtons(inParent, inTitle, inText, inFirstButton, inSecondButton);
}

int VantraMessageBox::question(QWidget *inParent, const QString &inTitle, const QString &inText,
                               QMessageBox::StandardButton inFirstButton,
                               QMessageBox::StandardButton inSecondButton)
{
    return runWithTwoButtons(inParent, inTitle, inText, inFirstButton, inSecondButton);
}

int VantraMessageBox::critical(QWidget *inParent, const QString &inTitle, const QString &inText,
                               QMessageBox::StandardButton inFirstButton,
                               QMessageBox::StandardButton inSecondButton)
{
    QApplication::beep();
    return runWithTwoButtons(inParent, inTitle, inText, inFirstButton, inSecondButton);
}

QMessageBox::StandardButton VantraMessageBox::warning(QWidget *inParent, const QString &inTitle,
                                                      const QString &inText,
                                                      QMessageBox::StandardButtons inButtons,
                                                      QMessageBox::StandardButton inDefaultButton)
{
    return runWithButtons(inParent, inTitle, inText, inButtons, inDefaultButton);
}

QMessageBox::StandardButton VantraMessageBox::question(QWidget *inParent, const QString &inTitle,
                                                       const QString &inText,
                                                       QMessageBox::StandardButtons inButtons,
                                                       QMessageBox::StandardButton inDefaultButton)
{
    return runWithButtons(inParent, inTitle, inText, inButtons, inDefaultButton);
}
