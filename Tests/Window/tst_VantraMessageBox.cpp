#include "Style/VantraStyle.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"
#include "VTQtSysInfoPretence.h"
#include "Window/VantraMessageBox.h"

#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>

namespace {

QString text(const char *inText)
{
    return QString::fromLatin1(inText);
}

// Waits for the dialog of a static operation, has the function work on it, and gives what the operation
// returned.
template <typename Run>
int whileRunning(const Run &inRun, const std::function<void(QMessageBox *)> &inDo)
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            timer.stop();
            inDo(box);
        }
    });
    timer.start(10);
    return inRun();
}

// How a user or the program closes a dialog.
struct CloseRow
{
    const char *name;
    std::function<void(VantraMessageBox *)> close;
    int result;
};

const std::vector<CloseRow> &closeRows()
{
    static const std::vector<CloseRow> sRows = {
        {"mouse",
         [](VantraMessageBox *ioBox) { QTest::mouseClick(ioBox->button(QMessageBox::Yes), Qt::LeftButton); },
         QMessageBox::Yes},
        {"default button", [](VantraMessageBox *ioBox) { QTest::keyClick(ioBox, Qt::Key_Return); },
         QMessageBox::Yes},
        {"Escape", [](VantraMessageBox *ioBox) { QTest::keyClick(ioBox, Qt::Key_Escape); },
         QMessageBox::Cancel},
        {"the window's button", [](VantraMessageBox *ioBox) { ioBox->windowHandle()->close(); },
         QMessageBox::Cancel},
        {"the program", [](VantraMessageBox *ioBox) { ioBox->done(77); }, 77},
    };
    return sRows;
}

} // namespace

FATAL_CASE(noParent)
{
    const VantraMessageBox box(nullptr, QMessageBox::Ok);
}

FATAL_CASE(noCheckBox)
{
    VantraFont::loadApplicationFonts();
    QWidget parent;
    VantraMessageBox(&parent, QMessageBox::Ok).insertCheckboxBelowText(nullptr);
}

FATAL_CASE(noRole)
{
    VantraFont::loadApplicationFonts();
    QWidget parent;
    VantraMessageBox(&parent, QMessageBox::Ok)
        .addButton(QString(), QMessageBox::InvalidRole, nullptr, nullptr, true);
}

class tst_VantraMessageBox : public QObject
{
    Q_OBJECT

public slots:
    void onHelp() { ++mHelpCount; }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void mistakesStopTheProcess();
    void textIsBoldAndKeepsItsLines();
    void informativeTextIsSmallerAndWide();
    void visibleBoxMayChange();
    void anyTextIsShownWhole();
    void everyWayOfClosing_data();
    void everyWayOfClosing();
    void openButtonDoesItsWorkAndStays();
    void slotMayCloseOrDelete();
    void checkBoxStaysAndTells();
    void onlyChoiceIsTheWayOut_data();
    void onlyChoiceIsTheWayOut();
    void foreignCheckBoxMayGo();
    void tabVisitsEveryButton();
    void centresOnWhatIsVisible();
    void staticsGiveTheChosenButton();

private:
    std::unique_ptr<QWidget> mParent;
    int mHelpCount = 0;
};

void tst_VantraMessageBox::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    QApplication::setStyle(new VantraStyle);
}

void tst_VantraMessageBox::init()
{
    mHelpCount = 0;
    mParent = std::make_unique<QWidget>();
    mParent->setGeometry(100, 80, 400, 300);
    mParent->show();
    QVERIFY(QTest::qWaitForWindowExposed(mParent.get()));
}

void tst_VantraMessageBox::cleanup()
{
    mParent.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_VantraMessageBox::mistakesStopTheProcess()
{
    QCOMPARE(FatalTest::assertionOf("noParent"),
             "parent != NULL && \"parent should not be NULL, see bug #12851\"");
    QCOMPARE(FatalTest::assertionOf("noCheckBox"), "checkbox != NULL && \"Checkbox should not be NULL\"");
    QCOMPARE(FatalTest::assertionOf("noRole"), "role != QMessageBox::InvalidRole");
}

void tst_VantraMessageBox::textIsBoldAndKeepsItsLines()
{
    const VantraMessageBox box(text("Title"), text("One\n\nTwo\nThree"), QMessageBox::Ok, mParent.get(),
                               false);
    QCOMPARE(box.text(), text("<b>One<P>Two<BR>Three</b>"));
    QCOMPARE(box.font().pointSize(), 12);
    QCOMPARE(box.windowModality(), Qt::ApplicationModal);
    QVERIFY(VantraMessageBox(mParent.get(), QMessageBox::Ok).text().isEmpty());
}

void tst_VantraMessageBox::informativeTextIsSmallerAndWide()
{
    VantraMessageBox box(text("Title"), text("Text"), text("More"), QMessageBox::Ok, mParent.get(), false);
    const auto label = [&box] { return box.findChild<QLabel *>(text("qt_msgbox_informativelabel")); };
    // Each of these makes QMessageBox lay itself out anew.
    const std::vector<std::function<void()>> disturbances = {
        [] {},
        [&] { box.setInformativeText(text("Other")); },
        [&] { box.setDetailedText(text("Details")); },
        [&] { box.setIconPixmap(QPixmap(16, 16)); },
        [&] {
            box.setInformativeText(QString());
            box.setInformativeText(text("Again"));
        },
    };
    for (const auto &disturb : disturbances) {
        disturb();
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QCOMPARE(label()->font().pointSize(), 11);
        QVERIFY(label()->width() >= 350);
        QVERIFY(label()->isVisible());
        QCOMPARE(box.childAt(label()->mapTo(&box, label()->rect().center())), label());
        // Nothing of an earlier layout is left behind at the corner.
        QVERIFY(box.childAt(1, 1) == nullptr);
        box.hide();
    }
}

void tst_VantraMessageBox::visibleBoxMayChange()
{
    const std::vector<std::function<void(VantraMessageBox *)>> changes = {
        [](VantraMessageBox *ioBox) { ioBox->setInformativeText(QString()); },
        [](VantraMessageBox *ioBox) { ioBox->setInformativeText(text("Other")); },
        [](VantraMessageBox *ioBox) { ioBox->setDetailedText(text("Details")); },
        [](VantraMessageBox *ioBox) { ioBox->setIconPixmap(QPixmap(16, 16)); },
        [](VantraMessageBox *ioBox) {
            ioBox->setInformativeText(QString());
            ioBox->setInformativeText(text("Again"));
        },
    };
    for (const auto &change : changes) {
        VantraMessageBox box(text("Title"), text("Text"), text("More. ").repeated(100), QMessageBox::Ok,
                             mParent.get(), false);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        change(&box);
        QCoreApplication::processEvents();
        if (const auto *label = box.findChild<QLabel *>(text("qt_msgbox_informativelabel"))) {
            QVERIFY(label->width() >= 350);
            QTRY_VERIFY(box.rect().contains(QRect(label->mapTo(&box, QPoint()), label->size())));
        }
        const QAbstractButton *button = box.button(QMessageBox::Ok);
        QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {},
                          button->mapTo(&box, button->rect().center()));
        QVERIFY(!box.isVisible());
    }
}

void tst_VantraMessageBox::anyTextIsShownWhole()
{
    using Lengths = std::pair<int, int>;
    const QString sentence = text("All pictures of the folder are written again. ");
    for (const auto &lengths :
         {Lengths(0, 0), Lengths(1, 0), Lengths(1, 1), Lengths(20, 0), Lengths(1, 20), Lengths(20, 20)}) {
        for (const bool checkBox : {false, true}) {
            VantraMessageBox box(text("Title"), sentence.repeated(lengths.first),
                                 sentence.repeated(lengths.second), QMessageBox::Yes | QMessageBox::Cancel,
                                 mParent.get(), checkBox);
            box.show();
            QVERIFY(QTest::qWaitForWindowExposed(&box));
            const QList<QLabel *> labels = box.findChildren<QLabel *>();
            for (const QLabel *label : labels) {
                QVERIFY(!label->wordWrap() || label->height() >= label->heightForWidth(label->width()));
            }
            for (const QAbstractButton *button : box.buttons()) {
                QVERIFY(button->width() >= button->minimumSizeHint().width());
                QVERIFY(box.rect().contains(QRect(button->mapTo(&box, QPoint()), button->size())));
            }
        }
    }
}

void tst_VantraMessageBox::everyWayOfClosing_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("afterOpenButton");
    for (std::size_t row = 0; row < closeRows().size(); ++row) {
        QTest::addRow("%s", closeRows()[row].name) << static_cast<int>(row) << false;
        QTest::addRow("%s after a button that stays", closeRows()[row].name) << static_cast<int>(row) << true;
    }
}

void tst_VantraMessageBox::everyWayOfClosing()
{
    QFETCH(const int, row);
    QFETCH(const bool, afterOpenButton);
    const CloseRow &way = closeRows()[static_cast<std::size_t>(row)];
    VantraMessageBox box(text("Title"), text("Text"), QMessageBox::Yes | QMessageBox::Cancel, mParent.get(),
                         false);
    QPushButton *help = box.addButton(text("Show"), QMessageBox::HelpRole, this, SLOT(onHelp()), false);
    box.setDefaultButton(QMessageBox::Yes);
    QSignalSpy finished(&box, &QDialog::finished);
    QSignalSpy aboutToHide(&box, &VantraMessageBox::aboutToHide);
    const int result = whileRunning([&] { return box.exec(); },
                                    [&](QMessageBox *) {
                                        if (afterOpenButton) {
                                            QTest::mouseClick(help, Qt::LeftButton);
                                            box.setFocus();
                                        }
                                        way.close(&box);
                                    });
    QCOMPARE(result, way.result);
    QCOMPARE(mHelpCount, afterOpenButton ? 1 : 0);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(aboutToHide.count(), 1);
}

void tst_VantraMessageBox::openButtonDoesItsWorkAndStays()
{
    VantraMessageBox box(text("Title"), text("Text"), QMessageBox::Ok, mParent.get(), false);
    QPushButton *own = box.addButton(text("Show"), QMessageBox::ActionRole, this, SLOT(onHelp()), false);
    QPushButton *standard = box.addButton(QMessageBox::Apply, this, SLOT(onHelp()), false);
    QSignalSpy clicked(&box, &QMessageBox::buttonClicked);
    QSignalSpy finished(&box, &QDialog::finished);
    QSignalSpy aboutToHide(&box, &VantraMessageBox::aboutToHide);
    box.setAttribute(Qt::WA_DeleteOnClose);
    box.setResult(5);
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    for (int count = 1; count <= 4; ++count) {
        QPushButton *button = count % 2 == 0 ? own : standard;
        button->setFocus();
        count <= 2 ? QTest::mouseClick(button, Qt::LeftButton) : QTest::keyClick(button, Qt::Key_Space);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(box.isVisible());
        QCOMPARE(mHelpCount, count);
        QCOMPARE(clicked.count(), count);
        QCOMPARE(box.clickedButton(), button);
    }
    QCOMPARE(finished.count() + aboutToHide.count(), 0);
    QCOMPARE(box.result(), 5);
    QVERIFY(!box.signalsBlocked());
    box.setAttribute(Qt::WA_DeleteOnClose, false);
}

void tst_VantraMessageBox::slotMayCloseOrDelete()
{
    auto *box = new VantraMessageBox(mParent.get(), QMessageBox::Ok);
    QPushButton *button = box->addButton(text("Do"), QMessageBox::ActionRole, nullptr, nullptr, false);
    connect(button, &QPushButton::clicked, box, [box] { box->done(9); });
    box->show();
    QVERIFY(QTest::qWaitForWindowExposed(box));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!box->isVisible());
    QCOMPARE(box->result(), 9);
    connect(box, &QMessageBox::buttonClicked, box, &QObject::deleteLater);
    const QPointer<VantraMessageBox> guard(box);
    button->click();
    QTRY_VERIFY(guard.isNull());
}

void tst_VantraMessageBox::checkBoxStaysAndTells()
{
    for (const auto system : {VTQtSysInfoPretence::Windows, VTQtSysInfoPretence::Other}) {
        const VTQtSysInfoPretence pretence(system);
        VantraMessageBox box(text("Title"), text("Text"), QMessageBox::Ok, mParent.get(), true);
        QSignalSpy spy(&box, &VantraMessageBox::dontShowMeAgainStateChanged);
        auto *checkBox = box.findChild<QCheckBox *>();
        QCOMPARE(checkBox->text(), text("Don't show me this message again"));
        whileRunning([&] { return box.exec(); },
                     [&](QMessageBox *) {
                         QVERIFY(QTest::qWaitForWindowActive(&box));
                         checkBox->setFocus();
                         QTest::keyClick(checkBox, Qt::Key_Space);
                         QVERIFY(box.isVisible());
                         QVERIFY(box.clickedButton() == nullptr);
                         // The check box makes the one button no less a way out.
                         QTest::keyClick(&box, Qt::Key_Escape);
                     });
        QVERIFY(box.isDontShowMeThisAgainChecked());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toInt(), static_cast<int>(Qt::Checked));
    }
}

void tst_VantraMessageBox::onlyChoiceIsTheWayOut_data()
{
    QTest::addColumn<bool>("details");
    QTest::addColumn<bool>("secondChoice");
    QTest::newRow("one choice") << false << false;
    QTest::newRow("one choice and details") << true << false;
    QTest::newRow("two choices") << false << true;
    QTest::newRow("two choices and details") << true << true;
}

void tst_VantraMessageBox::onlyChoiceIsTheWayOut()
{
    QFETCH(const bool, details);
    QFETCH(const bool, secondChoice);
    for (const bool byKey : {true, false}) {
        VantraMessageBox box(text("Title"), text("Text"), QMessageBox::Ok, mParent.get(), true);
        if (secondChoice) {
            box.addButton(text("Replace"), QMessageBox::ActionRole);
        }
        if (details) {
            box.setDetailedText(text("Details"));
        }
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        if (byKey) {
            QTest::keyClick(&box, Qt::Key_Escape);
        } else {
            box.windowHandle()->close();
        }
        QCOMPARE(box.isVisible(), secondChoice);
        QCOMPARE(box.clickedButton(), secondChoice ? nullptr : box.button(QMessageBox::Ok));
    }
}

void tst_VantraMessageBox::foreignCheckBoxMayGo()
{
    VantraMessageBox box(text("Title"), text("Text"), QMessageBox::Ok, mParent.get(), false);
    auto *checkBox = new QCheckBox(text("Apply to all"));
    QSignalSpy spy(checkBox, SIGNAL(stateChanged(int)));
    box.insertCheckboxBelowText(checkBox);
    checkBox->click();
    QCOMPARE(spy.count(), 0); // earlier connections are cut
    QVERIFY(!box.isDontShowMeThisAgainChecked());
    delete checkBox;
    box.setStandardButtons(QMessageBox::Cancel);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QCOMPARE(box.buttons().count(), 1);
}

void tst_VantraMessageBox::tabVisitsEveryButton()
{
    VantraMessageBox box(text("Title"), text("Text"), QMessageBox::Yes | QMessageBox::No, mParent.get(),
                         true);
    box.show();
    QTRY_VERIFY(box.focusWidget() != nullptr);
    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        visited << QAccessible::queryAccessibleInterface(box.focusWidget())->text(QAccessible::Name);
        QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited.first(), text("Yes"));
    QCOMPARE(visited.takeLast(), text("Yes"));
    visited.sort(); // each system has the buttons in its own order
    QCOMPARE(visited, QStringList({text("Don't show me this message again"), text("No"), text("Yes")}));
}

void tst_VantraMessageBox::centresOnWhatIsVisible()
{
    VantraMessageBox box(text("Title"), text("Text"), QMessageBox::Ok, mParent.get(), false);
    for (const bool visible : {true, false, true}) {
        mParent->setVisible(visible);
        box.show();
        const QPoint centre = visible ? mParent->mapToGlobal(mParent->rect().center())
                                      : QGuiApplication::primaryScreen()->availableGeometry().center();
        QCOMPARE(box.pos(), centre - box.rect().center());
        box.hide();
    }
}

void tst_VantraMessageBox::staticsGiveTheChosenButton()
{
    using Box = VantraMessageBox;
    const auto pressReturn = [](QMessageBox *inBox) { QTest::keyClick(inBox, Qt::Key_Return); };
    const auto pressEscape = [](QMessageBox *inBox) { QTest::keyClick(inBox, Qt::Key_Escape); };
    QWidget *parent = mParent.get();
    const QString title = text("Title");
    const std::vector<std::function<int()>> runs = {
        [=] { return Box::warning(parent, title, title, QMessageBox::Yes, QMessageBox::No); },
        [=] { return Box::question(parent, title, title, QMessageBox::Yes, QMessageBox::No); },
        [=] { return Box::critical(parent, title, title, QMessageBox::Yes, QMessageBox::No); },
        [=] {
            return Box::warning(parent, title, title, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        },
        [=] {
            return Box::question(parent, title, title, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        },
    };
    for (const auto &run : runs) {
        QCOMPARE(whileRunning(run, pressReturn), static_cast<int>(QMessageBox::Yes));
        QCOMPARE(whileRunning(run, pressEscape), static_cast<int>(QMessageBox::No));
    }
    const auto single = [=] {
        return Box::warning(parent, title, title, QMessageBox::Ok, QMessageBox::NoButton);
    };
    QCOMPARE(whileRunning(single,
                          [](QMessageBox *inBox) {
                              QCOMPARE(inBox->buttons().count(), 1);
                              QTest::keyClick(inBox, Qt::Key_Escape);
                          }),
             static_cast<int>(QMessageBox::Ok));
}

FATAL_TEST_MAIN(tst_VantraMessageBox)
#include "tst_VantraMessageBox.moc"
