#pragma once

// The base of the application's top-level windows. It maps key sequences to the menus that own them, so that
// a menu raises aboutToShow just before one of its actions is triggered by key; it toggles full screen, comes
// to the front, and knows the application's active main window.
//
//     class EditorWindow : public VantraMainWindow { ... };
//     window->registerAboutToTriggerShortcut(fileMenu);      // after its actions have their keys
//     ...
//     window->unregisterAboutToTriggerShortcut(fileMenu);    // before its actions change or go
//     window->verifyUnregisteredAboutToTriggerShortcuts();   // at shutdown
//
// Nothing that is registered is owned. Programming errors stop the process: an empty sequence, two owners of
// one sequence, a menu registered twice, an unregistering that doesn't match. GUI thread only.

#include "VTWidgetsLiteExport.h"
#include "Window/IVTShortcutManagerListener.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPoint>
#include <QtGui/QKeySequence>
#include <QtWidgets/QMainWindow>

#include <memory>

class QMenu;
class QShortcut;

namespace Ui {
class VantraMainWindow;
}

class VTWIDGETSLITE_EXPORT VantraMainWindow : public QMainWindow, public IVTShortcutManagerListener
{
    Q_OBJECT

public:
    // A window of 561 x 430 with an empty central widget. It becomes the active window of activeWindow().
    explicit VantraMainWindow(QWidget *inParent = nullptr);
    ~VantraMainWindow() override;

    // The window that dialogs without a parent of their own belong to: the main window made last, unless
    // another was set. It isn't reset when that window ends; who destroys it sets another or null.
    static QWidget *activeWindow() { return sActiveWindow; }
    static void setActiveWindow(QWidget *inWindow) { sActiveWindow = inWindow; }

    // True from the moment that a maximized or full-screen state is asked for, by the user or the program,
    // until the window's next change of state.
    bool isMaximizingWindow() const { return mMaximizingWindow; }

    // Enters all key sequences of the actions of a menu and of its submenus. Those must stay as they are
    // until the menu is unregistered, or keySequenceChanged must follow. The menu must stay until it is
    // unregistered.
    void registerAboutToTriggerShortcut(QMenu *inMenu);
    void unregisterAboutToTriggerShortcut(QMenu *inMenu);

    // The same for the first key sequence of a shortcut, which has no menu that could hear of it.
    void registerAboutToTriggerShortcut(QShortcut *inShortcut);
    void unregisterAboutToTriggerShortcut(QShortcut *inShortcut);

    // Logs what is still registered, and stops the process if anything is.
    void verifyUnregisteredAboutToTriggerShortcuts();

    // Emits aboutToTriggerShortcut and has the menu of the sequence raise aboutToShow. Does nothing for a
    // sequence that is unknown or belongs to a QShortcut.
    void emitAboutToTriggerShortcut(QKeySequence inKeySequence);

    // Does what the key would do: for an action, emitAboutToTriggerShortcut and then its trigger; a QShortcut
    // is activated without a notice. Does nothing for an unknown sequence.
    void triggerActionOrShortcut(QKeySequence inKeySequence);

    // Shows the window, out of the icon state, above all others, and activates it.
    void bringToFront();

    // False wherever the system itself keeps full screen, that is from macOS 10.13 on.
    bool isFullScreen() const;

    // Reads all registered menus and shortcuts anew. The arguments aren't looked at.
    void keySequenceChanged(const QKeySequence &inOld, const QKeySequence &inNew) override;

public slots:
    // Goes to full screen, or back to the state that the window had before. Does nothing where the system
    // itself keeps full screen, but for isMaximizingWindow().
    virtual void toggleFullScreen();

signals:
    // A registered key sequence was pressed and its action or shortcut is about to be triggered. Slots run
    // before the menu's own aboutToShow.
    void aboutToTriggerShortcut(QKeySequence keySequence);

protected:
    bool event(QEvent *event) override;
    void tabletEvent(QTabletEvent *event) override;
    bool nativeEvent(const QByteArray &eventType, void *message, qintptr *result) override;

    // Called for each QEvent::ShortcutOverride that no child has accepted, before the shortcut itself. Looks
    // the sequence up and never accepts the event.
    virtual void shortcutOverrideEvent(QKeyEvent *event);

private:
    class WindowsBringToFrontHack;

    void setMaximizingWindow(bool inMaximizing) { mMaximizingWindow = inMaximizing; }

    static QList<QMenu *> getMenus(QMenu *inMenu);
    static QList<QMenu *> getChildMenus(QMenu *inMenu);
    void insertIntoKeySequenceToMenuMap(QKeySequence inKeySequence, QMenu *inMenu);
    QMenu *takeFromKeySequenceToMenuMap(QKeySequence inKeySequence);
    void emitAboutToTriggerShortcut(QKeySequence inKeySequence, QMenu *inMenu);
    void notifyAllMenusThatUseTheMetaModifierInShortcutsOnTheMac(int inKey);
    void toggleFullScreenOnSnowLeopardAndWindows();

    static QWidget *sActiveWindow;

    std::unique_ptr<Ui::VantraMainWindow> mUi;
    int mWindowStateBeforeFullScreen = 0; // Qt::WindowStates, without Qt::WindowActive
    QPoint mLastTabletPos = QPoint(-1, -1);
    double mLastTabletPressure = -1.0; // stays so
    QMap<QKeySequence, QMenu *> mKeySequenceToMenuMap;
    QMap<QKeySequence, QMenu *> mKeySequenceWithMetaToMenuMap;
    QMap<QKeySequence, QObject *> mKeySequenceToActionOrShortcutMap;
    QList<QMenu *> mRegisteredMenus;
    QList<QShortcut *> mRegisteredShortcuts;
    bool mMaximizingWindow = false;
};
