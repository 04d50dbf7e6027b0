#include "Window/VantraMainWindow.h"

#include "Utilities/VTWidgetUtils.h"
#include "VTLog.h"
#include "VTQtSysInfo.h"
#include "VTQtUpdatesBlocker.h"
#include "Window/VantraMainWindowNative_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QShortcut>
#include <QtGui/QTabletEvent>
#include <QtWidgets/QMenu>

QWidget *VantraMainWindow::sActiveWindow = nullptr;

namespace Ui {

class VantraMainWindow
{
public:
    void setupUi(QMainWindow *inWindow)
    {
        if (inWindow->objectName().isEmpty()) {
            inWindow->setObjectName(QStringLiteral("VantraMainWindow"));
        }
        inWindow->resize(561, 430);
        centralwidget = new QWidget(inWindow);
        centralwidget->setObjectName(QStringLiteral("centralwidget"));
        inWindow->setCentralWidget(centralwidget);
        inWindow->setWindowTitle(QCoreApplication::translate("VantraMainWindow", "MainWindow"));
        QMetaObject::connectSlotsByName(inWindow);
    }

    QWidget *centralwidget = nullptr;
};

} // namespace Ui

namespace {

QString portableText(const QKeySequence &inKeySequence)
{
    return inKeySequence.toString(QKeySequence::PortableText);
}

QString titleOf(const QMenu *inMenu, const QString &inWithoutMenu)
{
    return inMenu != nullptr ? inMenu->title() : inWithoutMenu;
}

bool usesMetaOnMac(const QKeySequence &inKeySequence)
{
    return VTQtSysInfo::isMacPlatform() &&
           portableText(inKeySequence).contains(portableText(QKeySequence(Qt::META)));
}

// Calls the function with each menu, action and key sequence, in the order of menus and of their actions.
template <typename Function>
void forEachKeySequence(const QList<QMenu *> &inMenus, const Function &inFunction)
{
    for (QMenu *menu : inMenus) {
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            const QList<QKeySequence> keySequences = action->shortcuts();
            for (const QKeySequence &keySequence : keySequences) {
                if (!keySequence.isEmpty()) {
                    inFunction(menu, action, keySequence);
                }
            }
        }
    }
}

} // namespace

// Makes the window topmost and gives that up at once: what stays is that it lies above the others, which the
// system otherwise refuses to a program that isn't the active one.
class VantraMainWindow::WindowsBringToFrontHack
{
public:
    explicit WindowsBringToFrontHack(const QWidget &inWindow) : mWindow(inWindow.winId())
    {
        Q_ASSERT_X(mWindow != 0, "VantraMainWindow::WindowsBringToFrontHack::WindowsBringToFrontHack",
                   "WId should not be NULL");
        if (const unsigned long error = VantraMainWindowNative::setTopmost(mWindow, true)) {
            VTLog(CFSTR("WindowsBringToFrontHack::WindowsBringToFrontHack - SetWindowPos HWND_TOPMOST failed "
                        "(%08X, %d)"),
                  static_cast<unsigned int>(error), static_cast<int>(error));
        }
    }

    ~WindowsBringToFrontHack()
    {
        if (const unsigned long error = VantraMainWindowNative::setTopmost(mWindow, false)) {
            VTLog(CFSTR("WindowsBringToFrontHack::~WindowsBringToFrontHack - SetWindowPos HWND_NOTOPMOST "
                        "failed (%08X, %d)"),
                  static_cast<unsigned int>(error), static_cast<int>(error));
        }
    }

private:
    Q_DISABLE_COPY_MOVE(WindowsBringToFrontHack)

    WId mWindow;
};

VantraMainWindow::VantraMainWindow(QWidget *inParent)
    : QMainWindow(inParent), mUi(std::make_unique<Ui::VantraMainWindow>())
{
    VTWidgetsSetHasBorderInFullScreen(this, true);
    VTWidgetsMatchFrameToTheme(this);
    mUi->setupUi(this);
    if (VTQtSysInfo::isMacPlatform()) {
        VTWidgetUtils::objcSetCollectionBehaviorFullScreenPrimary(winId());
    }
    sActiveWindow = this;
}

VantraMainWindow::~VantraMainWindow() = default;

void VantraMainWindow::registerAboutToTriggerShortcut(QMenu *inMenu)
{
    if (!mRegisteredMenus.contains(inMenu)) {
        mRegisteredMenus.append(inMenu);
    }
    forEachKeySequence(getMenus(inMenu), [this](QMenu *menu, QAction *action, const QKeySequence &inKeys) {
        insertIntoKeySequenceToMenuMap(inKeys, menu);
        const auto known = mKeySequenceToActionOrShortcutMap.constFind(inKeys);
        if (known == mKeySequenceToActionOrShortcutMap.constEnd()) {
            mKeySequenceToActionOrShortcutMap.insert(inKeys, action);
            return;
        }
        const auto *knownAction = qobject_cast<QAction *>(*known);
        VTLog(CFSTR("VantraMainWindow::registerAboutToTriggerShortcut(), mKeySequenceToActionOrShortcutMap "
                    "contains (%s, %s)"),
              portableText(inKeys).toLocal8Bit().constData(),
              knownAction != nullptr ? knownAction->text().toLocal8Bit().constData() : "NULL");
    });
}

void VantraMainWindow::unregisterAboutToTriggerShortcut(QMenu *inMenu)
{
    forEachKeySequence(getMenus(inMenu), [this](QMenu *menu, QAction *, const QKeySequence &inKeys) {
        const QMenu *testMenu = takeFromKeySequenceToMenuMap(inKeys);
        Q_ASSERT(testMenu == menu && "Menu mismatch for key sequence");
        Q_UNUSED(testMenu);
        Q_UNUSED(menu);
        mKeySequenceToActionOrShortcutMap.remove(inKeys);
    });
    mRegisteredMenus.removeOne(inMenu);
}

void VantraMainWindow::registerAboutToTriggerShortcut(QShortcut *inShortcut)
{
    Q_ASSERT(inShortcut != nullptr);
    if (!mRegisteredShortcuts.contains(inShortcut)) {
        mRegisteredShortcuts.append(inShortcut);
    }
    const QKeySequence keySequence = inShortcut->key();
    Q_ASSERT(!keySequence.isEmpty() && "Key sequence should not be empty");
    insertIntoKeySequenceToMenuMap(keySequence, nullptr);
    if (mKeySequenceToActionOrShortcutMap.contains(keySequence)) {
        VTLog(CFSTR("VantraMainWindow::registerAboutToTriggerShortcut(), mKeySequenceToActionOrShortcutMap "
                    "contains (%s)"),
              portableText(keySequence).toLocal8Bit().constData());
        return;
    }
    mKeySequenceToActionOrShortcutMap.insert(keySequence, inShortcut);
}

void VantraMainWindow::unregisterAboutToTriggerShortcut(QShortcut *inShortcut)
{
    Q_ASSERT(inShortcut != nullptr);
    const QKeySequence keySequence = inShortcut->key();
    Q_ASSERT(!keySequence.isEmpty() && "Key sequence should not be empty");
    const QMenu *testMenu = takeFromKeySequenceToMenuMap(keySequence);
    Q_ASSERT(testMenu == NULL && "Menu mismatch for shortcut, menu should be NULL");
    Q_UNUSED(testMenu);
    mKeySequenceToActionOrShortcutMap.remove(keySequence);
    mRegisteredShortcuts.removeOne(inShortcut);
}

void VantraMainWindow::verifyUnregisteredAboutToTriggerShortcuts()
{
    for (auto entry = mKeySequenceToMenuMap.cbegin(); entry != mKeySequenceToMenuMap.cend(); ++entry) {
        VTLog(CFSTR("VantraMainWindow::verifyUnregisteredAboutToTriggerShortcuts(), mKeySequenceToMenuMap "
                    "contains (%s, %s)"),
              portableText(entry.key()).toLocal8Bit().constData(),
              titleOf(entry.value(), QStringLiteral("NULL")).toLocal8Bit().constData());
    }
    Q_ASSERT(mKeySequenceToMenuMap.isEmpty() && "mKeySequenceToMenuMap should be empy");
    mKeySequenceToMenuMap.clear();
    mKeySequenceWithMetaToMenuMap.clear();
}

void VantraMainWindow::emitAboutToTriggerShortcut(QKeySequence inKeySequence)
{
    if (QMenu *menu = mKeySequenceToMenuMap.value(inKeySequence)) {
        emitAboutToTriggerShortcut(inKeySequence, menu);
    }
}

void VantraMainWindow::triggerActionOrShortcut(QKeySequence inKeySequence)
{
    QObject *target = mKeySequenceToActionOrShortcutMap.value(inKeySequence);
    if (const QPointer<QAction> action = qobject_cast<QAction *>(target)) {
        emitAboutToTriggerShortcut(inKeySequence);
        // A menu may fill itself anew when it is about to show.
        if (!action.isNull()) {
            action->trigger();
        }
    } else if (auto *shortcut = qobject_cast<QShortcut *>(target)) {
        emit shortcut->activated();
    }
}

void VantraMainWindow::bringToFront()
{
    if (!VTQtSysInfo::highSierraOrGreater() && QWidget::isFullScreen()) {
        setMaximizingWindow(true);
        showFullScreen();
    } else if (isMaximized()) {
        setMaximizingWindow(true);
        showMaximized();
    } else {
        showNormal();
    }
    if (windowHandle() != nullptr) {
        const WindowsBringToFrontHack hack(*this);
    }
    raise();
    activateWindow();
}

bool VantraMainWindow::isFullScreen() const
{
    return !VTQtSysInfo::highSierraOrGreater() && QWidget::isFullScreen();
}

void VantraMainWindow::keySequenceChanged(const QKeySequence &, const QKeySequence &)
{
    mKeySequenceToMenuMap.clear();
    mKeySequenceWithMetaToMenuMap.clear();
    mKeySequenceToActionOrShortcutMap.clear();
    const QList<QMenu *> menus = mRegisteredMenus;
    for (QMenu *menu : menus) {
        registerAboutToTriggerShortcut(menu);
    }
    const QList<QShortcut *> shortcuts = mRegisteredShortcuts;
    for (QShortcut *shortcut : shortcuts) {
        registerAboutToTriggerShortcut(shortcut);
    }
}

void VantraMainWindow::toggleFullScreen()
{
    const VTQtUpdatesBlocker blocker(this, VTQtUpdatesBlocker::BlockUpdates);
    if (VTQtSysInfo::highSierraOrGreater() || !QWidget::isFullScreen()) {
        setMaximizingWindow(true);
    }
    if (!VTQtSysInfo::highSierraOrGreater()) {
        toggleFullScreenOnSnowLeopardAndWindows();
    }
}

void VantraMainWindow::toggleFullScreenOnSnowLeopardAndWindows()
{
    if (!isFullScreen()) {
        mWindowStateBeforeFullScreen = static_cast<int>(windowState() & ~Qt::WindowActive);
        showFullScreen();
    } else if (mWindowStateBeforeFullScreen == static_cast<int>(Qt::WindowMaximized)) {
        // By way of the normal state, or some systems stay in full screen.
        showNormal();
        setMaximizingWindow(true);
        showMaximized();
    } else {
        showNormal();
    }
}

bool VantraMainWindow::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: shortcutOverrideEvent(static_cast<QKeyEvent *>(event)); break;
    case QEvent::WindowStateChange: setMaximizingWindow(false); break;
    case QEvent::NonClientAreaMouseButtonDblClick:
        if (!windowState().testFlag(Qt::WindowMaximized)) {
            setMaximizingWindow(true);
        }
        break;
    default: break;
    }
    return QMainWindow::event(event);
}

void VantraMainWindow::tabletEvent(QTabletEvent *event)
{
    if (event->type() == QEvent::TabletMove) {
        if (event->position() == QPointF(mLastTabletPos) && event->pressure() == mLastTabletPressure) {
            event->accept();
        }
        mLastTabletPos = event->position().toPoint();
    }
    QWidget::tabletEvent(event);
}

bool VantraMainWindow::nativeEvent(const QByteArray &eventType, void *message, qintptr *result)
{
    if (VantraMainWindowNative::isMaximizeCommand(message)) {
        setMaximizingWindow(true);
    }
    return QWidget::nativeEvent(eventType, message, result);
}

void VantraMainWindow::shortcutOverrideEvent(QKeyEvent *event)
{
    if (mKeySequenceToMenuMap.isEmpty() || event->isAutoRepeat()) {
        return;
    }
    const int key = event->key();
    if (key >= Qt::Key_Shift && key <= Qt::Key_Alt) {
        if (key == Qt::Key_Meta && VTQtSysInfo::isMacPlatform()) {
            notifyAllMenusThatUseTheMetaModifierInShortcutsOnTheMac(key);
        }
        return;
    }
    const Qt::KeyboardModifiers modifiers =
        event->modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    const QKeySequence keySequence(static_cast<int>(modifiers) + key);
    const auto entry = mKeySequenceToMenuMap.constFind(keySequence);
    if (entry != mKeySequenceToMenuMap.constEnd()) {
        emitAboutToTriggerShortcut(keySequence, *entry);
    }
}

QList<QMenu *> VantraMainWindow::getMenus(QMenu *inMenu)
{
    return QList<QMenu *>{inMenu} + getChildMenus(inMenu);
}

QList<QMenu *> VantraMainWindow::getChildMenus(QMenu *inMenu)
{
    return inMenu->findChildren<QMenu *>();
}

void VantraMainWindow::insertIntoKeySequenceToMenuMap(QKeySequence inKeySequence, QMenu *inMenu)
{
    const char *const where = "VantraMainWindow::insertIntoKeySequenceToMenuMap";
    const QString text = portableText(inKeySequence);
    const QString title = titleOf(inMenu, QStringLiteral("<NULL>"));
    Q_ASSERT_X(!inKeySequence.isEmpty() && !text.isEmpty(), where,
               qPrintable(QStringLiteral("Key sequence should not be empty in menu '%1'").arg(title)));
    Q_ASSERT_X(
        !mKeySequenceToMenuMap.contains(inKeySequence), where,
        qPrintable(
            QStringLiteral("There should only be one shortcut '%1' mapped to a menu '%2'").arg(text, title)));
    Q_UNUSED(where);
    mKeySequenceToMenuMap.insert(inKeySequence, inMenu);
    if (usesMetaOnMac(inKeySequence)) {
        mKeySequenceWithMetaToMenuMap.insert(inKeySequence, inMenu);
    }
}

QMenu *VantraMainWindow::takeFromKeySequenceToMenuMap(QKeySequence inKeySequence)
{
    const QKeySequence &keySequence = inKeySequence;
    Q_ASSERT(!keySequence.isEmpty() && !keySequence.toString().isEmpty() &&
             "Key sequence should not be empty");
    Q_ASSERT_X(
        mKeySequenceToMenuMap.contains(keySequence), "VantraMainWindow::takeFromKeySequenceToMenuMap",
        qPrintable(
            QStringLiteral("The shortcut '%1' should exist in the map").arg(portableText(keySequence))));
    if (usesMetaOnMac(keySequence)) {
        mKeySequenceWithMetaToMenuMap.remove(keySequence);
    }
    return mKeySequenceToMenuMap.take(keySequence);
}

void VantraMainWindow::emitAboutToTriggerShortcut(QKeySequence inKeySequence, QMenu *inMenu)
{
    QMetaObject::Connection connection;
    if (inMenu != nullptr) {
        auto *parentMenu = qobject_cast<QMenu *>(inMenu->parentWidget());
        connection = connect(this, &VantraMainWindow::aboutToTriggerShortcut,
                             parentMenu != nullptr ? parentMenu : inMenu, &QMenu::aboutToShow);
    }
    emit aboutToTriggerShortcut(inKeySequence);
    if (connection) {
        disconnect(connection);
    }
}

void VantraMainWindow::notifyAllMenusThatUseTheMetaModifierInShortcutsOnTheMac(int inKey)
{
    const int key = inKey;
    Q_ASSERT(VTQtSysInfo::isMacPlatform() && key == Qt::Key_Meta);
    Q_UNUSED(key);
    QList<QMenu *> notified;
    // A copy, as slots may change what is registered. They may also delete what they have unregistered.
    const QMap<QKeySequence, QMenu *> entries = mKeySequenceWithMetaToMenuMap;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        const auto live = mKeySequenceWithMetaToMenuMap.constFind(entry.key());
        const bool isLive = live != mKeySequenceWithMetaToMenuMap.constEnd() && *live == entry.value();
        if (isLive && !notified.contains(entry.value())) {
            emitAboutToTriggerShortcut(entry.key(), entry.value());
            notified.append(entry.value());
        }
    }
}
