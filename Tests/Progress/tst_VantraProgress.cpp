#include "Progress/VantraProgress.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"

#include <QtGui/QAccessible>
#include <QtGui/QShortcut>
#include <QtGui/QWindow>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

FATAL_CASE(dialogWithoutAParent)
{
    VantraProgress dialog;
}

class tst_VantraProgress : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void needsAParent();
    void beginsWithAFullBar();
    void growsWithItsTexts();
    void keys_data();
    void keys();
    void keyIsKnownAfterTheSignal();
    void closingAsksForACancel_data();
    void closingAsksForACancel();
    void setCanceledTellsEachTime();
    void cancelButtonAndCloseButtonGoTogether_data();
    void cancelButtonAndCloseButtonGoTogether();
    void noShortcutFiresWhileItHasTheFocus();
    void buttonWorksByKeyboard();
    void barIsAccessible();

private:
    // Shown, active and gone at the end of the test.
    VantraProgress *shownDialog(QWidget &ioWindow)
    {
        auto *dialog = new VantraProgress(&ioWindow);
        dialog->show();
        dialog->activateWindow();
        return QTest::qWaitForWindowActive(dialog) ? dialog : nullptr;
    }

    static QPushButton *buttonOf(const VantraProgress *inDialog)
    {
        return inDialog->findChild<QPushButton *>(QStringLiteral("buttonCancel"));
    }
};

void tst_VantraProgress::needsAParent()
{
    QCOMPARE(FatalTest::assertionOf("dialogWithoutAParent"),
             QStringLiteral("parent != NULL && \"parent should not be NULL, see bug #13294\""));
}

void tst_VantraProgress::beginsWithAFullBar()
{
    QWidget window;
    VantraProgress dialog(&window);
    QCOMPARE(dialog.objectName(), QStringLiteral("VantraProgress"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Progress"));
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QCOMPARE(int(VantraProgressBaseDlg::DEFAULT_WINDOW_FLAGS), 0x0A001003);
    QCOMPARE(int(VantraProgressBaseDlg::NO_TITLE_BAR_BUTTONS_WINDOW_FLAGS), 0x02001003);
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("labelOperation"))->text(),
             QStringLiteral("Loading..."));
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("labelStage"))->text(), QString());
    const auto *bar = dialog.findChild<QProgressBar *>(QStringLiteral("progressBar"));
    QCOMPARE(bar->value(), bar->maximum());
    QCOMPARE(buttonOf(&dialog)->text(), QStringLiteral("Cancel"));
    QVERIFY(!dialog.canceled());
    QCOMPARE(dialog.keyUsedToCancel(), 0);
}

void tst_VantraProgress::growsWithItsTexts()
{
    QWidget window;
    VantraProgress *dialog = shownDialog(window);
    QVERIFY(dialog != nullptr);
    const QSize before = dialog->size();
    QCOMPARE(before.width(), 320 + 2 * 12);
    QCOMPARE(dialog->layout()->contentsMargins(), QMargins(12, 12, 12, 12));
    const QWidget *button = buttonOf(dialog);
    QCOMPARE(button->mapTo(dialog, button->rect().bottomRight()).x(), before.width() - 12 - 1);
    dialog->setStageText(QString(200, QLatin1Char('m')));
    QTRY_VERIFY(dialog->width() > before.width());
    dialog->resize(100, 100);
    QTRY_VERIFY(dialog->width() > before.width());
}

void tst_VantraProgress::keys_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("pressed");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("cancels");
    const QList<int> none;
    const QList<int> escape = {Qt::Key_Escape, Qt::Key_Period};
    QTest::newRow("none set") << none << int(Qt::Key_Escape) << 0 << QString() << false;
    QTest::newRow("Return, none set") << none << int(Qt::Key_Return) << 0 << QString() << false;
    QTest::newRow("another") << escape << int(Qt::Key_Return) << 0 << QString() << false;
    QTest::newRow("set") << escape << int(Qt::Key_Escape) << 0 << QString() << true;
    QTest::newRow("with Shift") << escape << int(Qt::Key_Period) << int(Qt::ShiftModifier) << QString()
                                << true;
    QTest::newRow("button disabled") << escape << int(Qt::Key_Escape) << 0 << QStringLiteral("disabled")
                                     << true;
    QTest::newRow("button hidden") << escape << int(Qt::Key_Escape) << 0 << QStringLiteral("hidden") << true;
}

void tst_VantraProgress::keys()
{
    QFETCH(const QList<int>, keys);
    QFETCH(const int, pressed);
    QFETCH(const int, modifiers);
    QFETCH(const QString, button);
    QFETCH(const bool, cancels);
    QWidget window;
    VantraProgress *dialog = shownDialog(window);
    QVERIFY(dialog != nullptr);
    dialog->setCancelKeys(keys);
    dialog->setCancelEnabled(button != QLatin1String("disabled"));
    if (button == QLatin1String("hidden")) {
        dialog->setCancelVisible(false);
    }
    QSignalSpy spy(dialog, &VantraProgressBaseDlg::progressCanceled);
    QTest::keyClick(dialog, Qt::Key(pressed), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(dialog->canceled(), cancels);
    QCOMPARE(spy.count(), cancels ? 1 : 0);
    QCOMPARE(dialog->keyUsedToCancel(), cancels ? pressed : 0);
    QVERIFY(dialog->isVisible());
}

void tst_VantraProgress::keyIsKnownAfterTheSignal()
{
    QWidget window;
    VantraProgress dialog(&window);
    dialog.setCancelKeys({Qt::Key_Escape});
    int seen = -1;
    connect(&dialog, &VantraProgressBaseDlg::progressCanceled,
            [&] { seen = dialog.canceled() ? dialog.keyUsedToCancel() : -2; });
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(seen, 0);
    QCOMPARE(dialog.keyUsedToCancel(), int(Qt::Key_Escape));
}

void tst_VantraProgress::closingAsksForACancel_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("visible");
    QTest::newRow("enabled") << true << true;
    QTest::newRow("disabled") << false << true;
    QTest::newRow("hidden") << true << false;
}

void tst_VantraProgress::closingAsksForACancel()
{
    QFETCH(const bool, enabled);
    QFETCH(const bool, visible);
    QWidget window;
    VantraProgress *dialog = shownDialog(window);
    QVERIFY(dialog != nullptr);
    dialog->setCancelEnabled(enabled);
    dialog->setCancelVisible(visible);
    QSignalSpy spy(dialog, &VantraProgressBaseDlg::progressCanceled);
    dialog->close();
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->canceled(), enabled && visible);
    QCOMPARE(spy.count(), enabled && visible ? 1 : 0);
    QCOMPARE(dialog->keyUsedToCancel(), 0);
    dialog->accept();
    QVERIFY(!dialog->isVisible());
}

void tst_VantraProgress::setCanceledTellsEachTime()
{
    QWidget window;
    VantraProgress dialog(&window);
    QSignalSpy spy(&dialog, &VantraProgressBaseDlg::progressCanceled);
    dialog.setCanceled(true);
    dialog.setCanceled(true);
    dialog.setCanceled(false);
    QCOMPARE(spy.count(), 2);
    QVERIFY(!dialog.canceled());
}

void tst_VantraProgress::cancelButtonAndCloseButtonGoTogether_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("before it is shown") << false;
    QTest::newRow("shown") << true;
}

// A dialog on the screen stays there.
void tst_VantraProgress::cancelButtonAndCloseButtonGoTogether()
{
    QFETCH(const bool, shown);
    QWidget window;
    VantraProgress *dialog = shown ? shownDialog(window) : new VantraProgress(&window);
    QVERIFY(dialog != nullptr);
    const QPoint position = dialog->pos();
    for (const bool visible : {false, true}) {
        dialog->setCancelVisible(visible);
        QCOMPARE(buttonOf(dialog)->isHidden(), !visible);
        // Qt adds a hint for the menu on some systems.
        QCOMPARE(dialog->windowFlags() & ~Qt::WindowSystemMenuHint,
                 visible ? VantraProgressBaseDlg::DEFAULT_WINDOW_FLAGS
                         : VantraProgressBaseDlg::NO_TITLE_BAR_BUTTONS_WINDOW_FLAGS);
        QCOMPARE(dialog->isVisible(), shown);
        QCOMPARE(dialog->pos(), position);
        if (shown) {
            QCOMPARE(dialog->windowHandle()->flags(), dialog->windowFlags());
        }
    }
}

void tst_VantraProgress::noShortcutFiresWhileItHasTheFocus()
{
    QWidget window;
    QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_E), &window);
    shortcut.setContext(Qt::ApplicationShortcut);
    QSignalSpy spy(&shortcut, &QShortcut::activated);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::keyClick(window.windowHandle(), Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(spy.count(), 1);
    VantraProgress *dialog = shownDialog(window);
    QVERIFY(dialog != nullptr);
    dialog->setModal(false);
    QTest::keyClick(dialog->windowHandle(), Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(spy.count(), 1);
}

void tst_VantraProgress::buttonWorksByKeyboard()
{
    QWidget window;
    VantraProgress *dialog = shownDialog(window);
    QVERIFY(dialog != nullptr);
    QTRY_COMPARE(QApplication::focusWidget(), buttonOf(dialog));
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Space);
    QVERIFY(dialog->canceled());
    QCOMPARE(dialog->keyUsedToCancel(), 0);
}

void tst_VantraProgress::barIsAccessible()
{
    QWidget window;
    VantraProgress dialog(&window);
    dialog.setOperationText(QStringLiteral("Export"));
    dialog.setRange(0, 9);
    dialog.setValue(4);
    QAccessibleInterface *bar = QAccessible::queryAccessibleInterface(
        dialog.findChild<QProgressBar *>(QStringLiteral("progressBar")));
    QVERIFY(bar != nullptr && bar->valueInterface() != nullptr);
    QCOMPARE(bar->role(), QAccessible::ProgressBar);
    QCOMPARE(bar->text(QAccessible::Name), QStringLiteral("Export"));
    QCOMPARE(bar->valueInterface()->currentValue().toInt(), 4);
    QCOMPARE(bar->valueInterface()->maximumValue().toInt(), 9);
    dialog.show(); // newer Qt names a window as the system shows its title
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&dialog);
    QCOMPARE(face->role(), QAccessible::Dialog);
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Progress"));
    QCOMPARE(QAccessible::queryAccessibleInterface(buttonOf(&dialog))->text(QAccessible::Name),
             QStringLiteral("Cancel"));
}

FATAL_TEST_MAIN(tst_VantraProgress)
#include "tst_VantraProgress.moc"
