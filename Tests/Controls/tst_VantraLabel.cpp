#include "CBaseCore.h"
#include "Controls/VantraGroupLabel.h"
#include "Controls/VantraLabel.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <thread>
#include <vector>

namespace {

// Writes down, in order, what a label tells.
QStringList *recordSignals(VantraLabel *inLabel)
{
    static QStringList sLog;
    sLog.clear();
    const auto note = [](const char *inWord) { return [inWord] { sLog.append(QLatin1String(inWord)); }; };
    QObject::connect(inLabel, &VantraLabel::clicked, note("clicked"));
    QObject::connect(inLabel, &VantraLabel::doubleClicked, note("doubleClicked"));
    QObject::connect(inLabel, &VantraLabel::holdLabelPressed, note("held"));
    QObject::connect(inLabel, &VantraLabel::holdLabelReleased, note("released"));
    return &sLog;
}

QAccessibleInterface *accessibleOf(VantraLabel &inLabel)
{
    return QAccessible::queryAccessibleInterface(&inLabel);
}

// The window that tells clicks it gets through its children, and the label in its middle.
class Scene : public QWidget
{
public:
    Scene() : label(new VantraLabel(this))
    {
        resize(200, 100);
        label->setText(QStringLiteral("Before"));
        label->setGeometry(50, 30, 100, 30);
        show();
    }

    VantraLabel *label;
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

} // namespace

FATAL_CASE(elidedTextOfNoLabel)
{
    VantraLabel::setElidedText(nullptr, QStringLiteral("text"), Qt::ElideRight);
}

class tst_VantraLabel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void pressOnlyHoldsWhenItShould_data();
    void pressOnlyHoldsWhenItShould();
    void heldPressIsToldBeforeItsRelease();
    void doubleClickStartsTheHoldAnew();
    void secondPressRestartsTheHold();
    void releaseOfAHiddenLabelTellsNothing();
    void labelMayBeDeletedByItsClick();
    void disabledLabelLetsTheMouseThrough();
    void styleLeavesItsFont();
    void everyPictureFixesTheSize();
    void headerTakesThePictureAway();
    void elidedTextFitsAnyLabel();
    void toolTipShowsOnEntering();
    void roleFollowsWhatTheLabelIsFor();
    void pressActionClicks();
    void nameIsWhatTheLabelShows();
    void elidedTextNeedsALabel();
    void lastReferenceDeletes();
};

void tst_VantraLabel::pressOnlyHoldsWhenItShould_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<int>("time");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("short") << true << Qt::LeftButton << 0 << QStringList({"clicked", "released"});
    QTest::newRow("not asked for") << false << Qt::LeftButton << 600 << QStringList({"clicked"});
    QTest::newRow("right button") << true << Qt::RightButton << 600 << QStringList({"clicked", "released"});
}

void tst_VantraLabel::pressOnlyHoldsWhenItShould()
{
    QFETCH(const bool, enabled);
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const int, time);
    Scene scene;
    if (enabled) {
        scene.label->enableHoldMousePress();
    }
    const QStringList *log = recordSignals(scene.label);
    QTest::mousePress(scene.label, button);
    QTest::qWait(time);
    QTest::mouseRelease(scene.label, button);
    QTest::qWait(600 - time);
    QTEST(*log, "told");
    QCOMPARE(scene.presses, 1);
}

void tst_VantraLabel::heldPressIsToldBeforeItsRelease()
{
    Scene scene;
    scene.label->enableHoldMousePress();
    const QStringList *log = recordSignals(scene.label);
    QElapsedTimer clock;
    clock.start();
    QTest::mousePress(scene.label, Qt::LeftButton);
    QTRY_COMPARE(*log, QStringList({"held"}));
    QVERIFY(clock.elapsed() >= 475);
    QTest::mouseRelease(scene.label, Qt::LeftButton, {}, QPoint(500, 500));
    QCOMPARE(*log, QStringList({"held", "clicked", "released"}));
}

void tst_VantraLabel::doubleClickStartsTheHoldAnew()
{
    Scene scene;
    scene.label->enableHoldMousePress();
    const QStringList *log = recordSignals(scene.label);
    QTest::mousePress(scene.label, Qt::LeftButton);
    QTest::mouseRelease(scene.label, Qt::LeftButton);
    QMouseEvent press(QEvent::MouseButtonDblClick, QPointF(5, 5), scene.label->mapToGlobal(QPointF(5, 5)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(scene.label, &press);
    QCOMPARE(*log, QStringList({"clicked", "released", "doubleClicked"}));
    QTRY_COMPARE(log->last(), QStringLiteral("held"));
    QTest::mouseRelease(scene.label, Qt::LeftButton);
    QCOMPARE(log->mid(3), QStringList({"held", "clicked", "released"}));
}

void tst_VantraLabel::secondPressRestartsTheHold()
{
    Scene scene;
    scene.label->enableHoldMousePress();
    const QStringList *log = recordSignals(scene.label);
    QTest::mousePress(scene.label, Qt::LeftButton);
    QTest::qWait(300);
    QTest::mousePress(scene.label, Qt::LeftButton);
    QTest::qWait(300);
    QVERIFY(log->isEmpty());
    QTest::qWait(500);
    QCOMPARE(*log, QStringList({"held"}));
}

void tst_VantraLabel::releaseOfAHiddenLabelTellsNothing()
{
    Scene scene;
    scene.label->enableHoldMousePress();
    const QStringList *log = recordSignals(scene.label);
    QTest::mousePress(scene.label, Qt::LeftButton);
    scene.label->hide();
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), scene.label->mapToGlobal(QPointF(5, 5)),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(scene.label, &release);
    QTest::qWait(600);
    QCOMPARE(*log, QStringList());
}

void tst_VantraLabel::labelMayBeDeletedByItsClick()
{
    Scene scene;
    scene.label->enableHoldMousePress();
    const QPointer<VantraLabel> label(scene.label);
    connect(scene.label, &VantraLabel::clicked, qApp, [label] { delete label.data(); });
    QTest::mouseClick(scene.windowHandle(), Qt::LeftButton, {}, scene.label->geometry().center());
    QVERIFY(label.isNull());
}

void tst_VantraLabel::disabledLabelLetsTheMouseThrough()
{
    Scene scene;
    const QStringList *log = recordSignals(scene.label);
    const QPoint middle = scene.label->geometry().center();
    scene.label->setEnabled(false);
    QTest::mouseClick(scene.windowHandle(), Qt::LeftButton, {}, middle);
    QCOMPARE(*log, QStringList());
    QCOMPARE(scene.presses, 1);
    scene.label->setEnabled(true);
    QTest::mouseClick(scene.windowHandle(), Qt::LeftButton, {}, middle);
    QCOMPARE(*log, QStringList({"clicked"}));
}

void tst_VantraLabel::everyPictureFixesTheSize()
{
    const QMetaEnum images = QMetaEnum::fromType<VantraLabel::LabelImage>();
    QCOMPARE(images.keyCount(), 16);
    for (int index = 1; index < images.keyCount(); ++index) {
        VantraLabel label;
        label.setText(QStringLiteral("text"));
        label.setLabelImage(static_cast<VantraLabel::LabelImage>(images.value(index)));
        QCOMPARE(label.labelStyle(), VantraLabel::LabelImageStyle);
        QVERIFY2(!label.pixmap().isNull(), images.key(index));
        QCOMPARE(label.text(), QString());
        const QSize size = label.pixmap().deviceIndependentSize().toSize();
        QCOMPARE(label.minimumSize(), size);
        QCOMPARE(label.maximumSize(), size);
        QCOMPARE(label.minimumSizeHint(), size);
        QCOMPARE(accessibleOf(label)->role(), QAccessible::Graphic);
    }
}

void tst_VantraLabel::styleLeavesItsFont()
{
    VantraLabel label;
    label.setText(QStringLiteral("text"));
    label.setLabelStyle(VantraLabel::NotificationStyle);
    QCOMPARE(label.text(), QString());
    label.setLabelStyle(VantraLabel::StandardStyle);
    QCOMPARE(label.font().pixelSize(), 10);
    QCOMPARE(label.alignment(), Qt::AlignCenter);
    QCOMPARE(VantraGroupLabel().font(), VantraFont::largeFont());
}

void tst_VantraLabel::headerTakesThePictureAway()
{
    VantraLabel label;
    label.setLabelImage(VantraLabel::WarningImage);
    const QSize size = label.minimumSize();
    label.setLabelStyle(VantraLabel::HeaderStyle);
    QVERIFY(label.pixmap().isNull());
    QCOMPARE(label.labelImage(), VantraLabel::NoImage);
    QCOMPARE(label.maximumSize(), size);
}

void tst_VantraLabel::elidedTextFitsAnyLabel()
{
    QLabel label;
    label.setFrameShape(QFrame::Box);
    label.resize(80, 20);
    const QString text = QStringLiteral("A text that is wider than its label");
    VantraLabel::setElidedText(&label, text, Qt::ElideMiddle);
    const QFontMetrics metrics(label.font());
    const int available = 80 - metrics.horizontalAdvance(QLatin1Char('x')) / 2;
    QCOMPARE(label.text(), metrics.elidedText(text, Qt::ElideMiddle, available));
    QVERIFY(label.text().contains(QChar(0x2026)));
    QCOMPARE(label.toolTip(), text);
}

void tst_VantraLabel::toolTipShowsOnEntering()
{
    Scene scene;
    scene.label->setToolTip(QStringLiteral("The picture as it was"));
    QCOMPARE(scene.label->toolTip(), QString());
    QVERIFY(scene.label->QWidget::toolTip().isEmpty());
    const auto enter = [&] {
        QEnterEvent event(QPointF(5, 5), QPointF(55, 35), scene.label->mapToGlobal(QPointF(5, 5)));
        QCoreApplication::sendEvent(scene.label, &event);
    };
    enter();
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), QStringLiteral("The picture as it was"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    scene.label->setToolTip(QString());
    enter();
    QVERIFY(!QToolTip::isVisible());
}

void tst_VantraLabel::roleFollowsWhatTheLabelIsFor()
{
    VantraGroupLabel label;
    QCOMPARE(accessibleOf(label)->role(), QAccessible::StaticText);
    const auto connection = connect(&label, &VantraLabel::clicked, [] {});
    QCOMPARE(accessibleOf(label)->role(), QAccessible::Button);
    disconnect(connection);
    QCOMPARE(accessibleOf(label)->role(), QAccessible::StaticText);
    QVERIFY(accessibleOf(label)->actionInterface()->actionNames().isEmpty());
}

void tst_VantraLabel::pressActionClicks()
{
    Scene scene;
    const QString press = QAccessibleActionInterface::pressAction();
    QSignalSpy spy(scene.label, &VantraLabel::clicked);
    QAccessibleActionInterface *actions = accessibleOf(*scene.label)->actionInterface();
    QCOMPARE(actions->actionNames(), QStringList(press));
    actions->doAction(press);
    QCOMPARE(spy.count(), 1);
    scene.label->setEnabled(false);
    QVERIFY(actions->actionNames().isEmpty());
    actions->doAction(press);
    QCOMPARE(spy.count(), 1);
}

void tst_VantraLabel::nameIsWhatTheLabelShows()
{
    QLineEdit field;
    VantraLabel label;
    const auto name = [&label] { return accessibleOf(label)->text(QAccessible::Name); };
    label.setText(QStringLiteral("Crop & rotate"));
    QCOMPARE(name(), QStringLiteral("Crop & rotate"));
    label.setText(QStringLiteral("<b>Crop</b> &amp; rotate"));
    QCOMPARE(name(), QStringLiteral("Crop & rotate"));
    label.setText(QStringLiteral("Crop && &rotate"));
    label.setBuddy(&field);
    QCOMPARE(name(), QStringLiteral("Crop & rotate"));
    QCOMPARE(accessibleOf(label)->relations(QAccessible::Labelled).value(0).first->object(), &field);
    label.setAccessibleName(QStringLiteral("Crop"));
    QCOMPARE(name(), QStringLiteral("Crop"));
    label.setToolTip(QStringLiteral("Cuts the edges off"));
    QCOMPARE(accessibleOf(label)->text(QAccessible::Description), QStringLiteral("Cuts the edges off"));
}

void tst_VantraLabel::elidedTextNeedsALabel()
{
    QCOMPARE(FatalTest::assertionOf("elidedTextOfNoLabel"), QStringLiteral("label != NULL"));
}

void tst_VantraLabel::lastReferenceDeletes()
{
    static std::atomic<int> sEnded = 0;
    class Shared : public CBaseCore
    {
        ~Shared() override { ++sEnded; }
    };
    auto *shared = new Shared;
    std::vector<std::thread> owners;
    for (int owner = 0; owner < 4; ++owner) {
        shared->AddRef();
        owners.emplace_back([shared] {
            for (int turn = 0; turn < 10000; ++turn) {
                shared->AddRef();
                shared->Release();
            }
            shared->Release();
        });
    }
    for (std::thread &owner : owners) {
        owner.join();
    }
    QCOMPARE(sEnded.load(), 0);
    shared->Release();
    QCOMPARE(sEnded.load(), 1);
}

FATAL_TEST_MAIN(tst_VantraLabel)
#include "tst_VantraLabel.moc"
