#include "Controls/VantraLabel.h"
#include "Controls/VantraToolButton.h"
#include "Interaction/UserActions.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraStyleTheme.h"
#include "ToolTips/VantraToolTip.h"
#include "ToolTips/VantraToolTipContent.h"
#include "ToolTips/VantraToolTipFilter.h"
#include "Utilities/CommonTransition.h"

namespace {

using Button = VantraToolButton;

// A window of 600 by 400 in which a button stands somewhere.
struct Scene
{
    QWidget window;
    Button button{&window};

    explicit Scene(const QPoint &inPosition = QPoint(280, 180))
    {
        window.setWindowFlag(Qt::FramelessWindowHint);
        window.setGeometry(100, 60, 600, 400);
        prepare(button, inPosition);
        window.show();
    }

    static void prepare(Button &ioButton, const QPoint &inPosition)
    {
        ioButton.setGeometry(QRect(inPosition, QSize(40, 40)));
        ioButton.setToolTip(QStringLiteral("Brush (B)"));
        ioButton.setToolTipImage(QStringLiteral("/nowhere/brush.gif"));
    }
};

QList<VantraToolTip *> openTips()
{
    QList<VantraToolTip *> tips;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *tip = qobject_cast<VantraToolTip *>(widget);
        if (tip != nullptr && tip->isVisible()) {
            tips << tip;
        }
    }
    return tips;
}

// As Qt does when the pointer has rested. False when nobody has a tip for it.
bool rest(QWidget &ioWidget)
{
    const QPoint position = ioWidget.rect().center();
    QHelpEvent event(QEvent::ToolTip, position, ioWidget.mapToGlobal(position));
    QCoreApplication::sendEvent(&ioWidget, &event);
    return event.isAccepted();
}

VantraLabel *labelOf(VantraToolTip *inTip, const char *inName)
{
    return inTip->findChild<VantraLabel *>(QLatin1String(inName));
}

// Where the tip stands, as "the tip's edge at the button's edge": "right-left bottom-top" is up and to the
// left of it.
struct PlaceRow
{
    const char *name;
    Button::ToolTipDirection direction;
    QPoint button;
    QPoint pointer; // from the button's top left corner
    const char *place;
};

const PlaceRow kPlaces[] = {
    {"left", Button::ToolTipDirectionLeft, {280, 180}, {0, 0}, "right-left top-top"},
    {"left, low", Button::ToolTipDirectionLeft, {280, 350}, {0, 0}, "right-left bottom-bottom"},
    {"left, no room", Button::ToolTipDirectionLeft, {20, 180}, {0, 0}, "nowhere"},
    {"right", Button::ToolTipDirectionRight, {280, 180}, {0, 0}, "left-right top-top"},
    {"right, low", Button::ToolTipDirectionRight, {280, 350}, {0, 0}, "left-right bottom-bottom"},
    {"right, no room", Button::ToolTipDirectionRight, {550, 180}, {0, 0}, "nowhere"},
    {"below", Button::ToolTipDirectionBelow, {280, 180}, {0, 0}, "left-left top-bottom"},
    {"below, far right", Button::ToolTipDirectionBelow, {555, 180}, {0, 0}, "right-right top-bottom"},
    {"below, no room", Button::ToolTipDirectionBelow, {280, 350}, {0, 0}, "nowhere"},
    {"above", Button::ToolTipDirectionAbove, {280, 180}, {0, 0}, "left-left bottom-top"},
    {"above, far right", Button::ToolTipDirectionAbove, {555, 180}, {0, 0}, "right-right bottom-top"},
    {"above, no room", Button::ToolTipDirectionAbove, {280, 10}, {0, 0}, "nowhere"},
    {"auto, pointer low", Button::ToolTipDirectionAuto, {280, 180}, {5, 39}, "left-left top-bottom"},
    {"auto, pointer right", Button::ToolTipDirectionAuto, {280, 180}, {39, 2}, "left-right top-top"},
    {"auto, tie of below and right",
     Button::ToolTipDirectionAuto,
     {280, 180},
     {20, 20},
     "left-left top-bottom"},
    {"auto, bottom right corner",
     Button::ToolTipDirectionAuto,
     {555, 350},
     {0, 0},
     "right-left bottom-bottom"},
    {"auto, bottom left corner", Button::ToolTipDirectionAuto, {5, 350}, {0, 0}, "left-left bottom-top"},
    {"no direction", Button::ToolTipDirection(7), {280, 180}, {0, 0}, "nowhere"},
};

QPoint cornerAt(const QByteArray &inPlace, const QRect &inButton, const QSize &inTip)
{
    if (inPlace == "nowhere") {
        return QPoint(0, 0);
    }
    const auto edge = [&](const QByteArray &inWord) {
        return inWord == "left"    ? inButton.left()
               : inWord == "right" ? inButton.right()
               : inWord == "top"   ? inButton.top()
                                   : inButton.bottom();
    };
    QPoint corner;
    for (const QByteArray &part : inPlace.split(' ')) {
        const QByteArray own = part.split('-').first();
        const int at = edge(part.split('-').last());
        if (own == "left" || own == "right") {
            corner.setX(own == "left" ? at : at - inTip.width());
        } else {
            corner.setY(own == "top" ? at : at - inTip.height());
        }
    }
    return corner;
}

} // namespace

class tst_VantraToolTip : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void cleanup();
    void standsBesideItsButton_data() { DataRows::add(kPlaces); }
    void standsBesideItsButton();
    void saysAllOfTheButton();
    void playsTheDoubleResolutionFile();
    void neverTakesTheFocus();
    void leavesPlainTipsToQt();
    void opensOnceForAButton();
    void staysUnderThePointer();
    void linkOpens();
    void outlivesItsButton();
    void fadesAndCastsAShadow();
    void cleanupTestCase();

private:
    std::unique_ptr<Scene> mLast;
};

void tst_VantraToolTip::cleanup()
{
    QCursor::setPos(5, 5);
    QTRY_VERIFY(openTips().isEmpty());
}

// Leaves a tip open for the end of the application: it must go without the filter, which lives on.
void tst_VantraToolTip::cleanupTestCase()
{
    mLast = std::make_unique<Scene>();
    QVERIFY(rest(mLast->button));
    QCOMPARE(openTips().size(), 1);
}

void tst_VantraToolTip::standsBesideItsButton()
{
    const PlaceRow row = DataRows::current(kPlaces);
    Scene scene(row.button);
    scene.button.setToolTipDirection(row.direction);
    const QRect button(scene.button.mapToGlobal(QPoint(0, 0)), scene.button.size());
    VantraToolTip tip;
    tip.showAndPosition(QString(), QStringLiteral("Brush"), QStringLiteral("Paints."), QString(),
                        button.topLeft() + row.pointer, &scene.button);
    QVERIFY2(tip.size().boundedTo(QSize(200, 175)) == tip.size(), "larger than the rows are made for");
    QCOMPARE(tip.pos(), cornerAt(row.place, button, tip.size()));
}

void tst_VantraToolTip::saysAllOfTheButton()
{
    Scene scene;
    scene.button.setToolTipDetailed(QStringLiteral("Paints <b>100%1</b> %4"));
    scene.button.setToolTipUrl(QStringLiteral("https://example.com/%2"));
    QVERIFY(rest(scene.button));
    VantraToolTip *tip = openTips().constFirst();
    QCOMPARE(labelOf(tip, "mTitleLabel")->text(), QStringLiteral("Brush (B)"));
    QCOMPARE(QAccessible::queryAccessibleInterface(tip)->text(QAccessible::Name),
             QStringLiteral("Brush (B)"));
    const QString text = labelOf(tip, "mContentLabel")->text();
    QVERIFY(text.contains(QStringLiteral("<div>\n\tPaints <b>100%1</b> %4\n\t</div>")));
    const QString color = VantraStyleTheme::instance()
                              .colorPalette()
                              .color(VantraPalette::Normal, VantraPalette::WindowText)
                              .name();
    QVERIFY(text.contains(
        QStringLiteral("style=\"color: %1\" href=\"https://example.com/%2\"").replace("%1", color)));
    QVERIFY(text.contains(QStringLiteral(">Learn how</a>")));
    QVERIFY(tip->rect().contains(labelOf(tip, "mContentLabel")->geometry()));
}

void tst_VantraToolTip::playsTheDoubleResolutionFile()
{
    QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/a.png-XXXXXX"));
    QImage picture(80, 60, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QWidget body;
    VantraToolTipContent content(&body);
    auto *label = body.findChild<QLabel *>(QStringLiteral("mMovieLabel"));
    const QString named = QString(folder.path()).replace(QStringLiteral(".png"), QStringLiteral("@2x.png"));
    QVERIFY(QDir().mkpath(named));
    QVERIFY(picture.save(named + QStringLiteral("/brush@2x.png")));
    content.setToolTip(folder.filePath(QStringLiteral("brush.png")), QString(), QString(), QString());
    QMovie *movie = label->movie();
    QCOMPARE(movie->currentPixmap().size(), picture.size());
    QCOMPARE(label->sizeHint(), QSize(40, 30));
    content.setToolTip(folder.filePath(QStringLiteral("brush.png")), QString(), QString(), QString());
    QCOMPARE(label->movie(), movie);
    content.setToolTip(QStringLiteral("a.b/plain"), QString(), QString(), QString());
    QCOMPARE(label->movie()->fileName(), QStringLiteral("a@2x.b/plain"));
    QVERIFY(QDir(named).removeRecursively());
}

void tst_VantraToolTip::neverTakesTheFocus()
{
    Scene scene;
    QLineEdit edit(&scene.window);
    edit.show();
    QVERIFY(UserActions::showActive(scene.window));
    edit.setFocus();
    QVERIFY(rest(scene.button));
    VantraToolTip *tip = openTips().constFirst();
    QCOMPARE(tip->windowFlags(), Qt::WindowFlags(0x80F));
    QVERIFY(tip->testAttribute(Qt::WA_ShowWithoutActivating));
    // The platform without a screen activates every window that is shown.
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        QVERIFY(edit.hasFocus() && scene.window.isActiveWindow());
    }
    QTest::keyClicks(&scene.window, QStringLiteral("x"));
    UserActions::click(&scene.window, QPoint(3, 3));
    QVERIFY(tip->isVisible());
}

void tst_VantraToolTip::leavesPlainTipsToQt()
{
    Scene scene;
    QWidget other;
    other.installEventFilter(VantraToolTipFilter::sharedInstance());
    QVERIFY(!rest(other));
    scene.button.setToolTipImage(QString());
    QVERIFY(rest(scene.button));
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("Brush (B)"));
    QVERIFY(openTips().isEmpty());
    QToolTip::hideText();
}

void tst_VantraToolTip::opensOnceForAButton()
{
    Scene scene;
    Button second(&scene.window);
    Scene::prepare(second, QPoint(20, 20));
    second.show();
    QVERIFY(rest(scene.button));
    QPointer<VantraToolTip> first(openTips().constFirst());
    const QPoint place = first->pos();
    scene.button.move(0, 0);
    QVERIFY(rest(scene.button));
    QCOMPARE(openTips(), QList<VantraToolTip *>{first});
    QCOMPARE(first->pos(), place);
    QVERIFY(rest(second));
    QCOMPARE(openTips().size(), 1);
    QVERIFY(openTips().constFirst() != first);
    QTRY_VERIFY(first.isNull());
}

void tst_VantraToolTip::staysUnderThePointer()
{
    Scene scene;
    QCursor::setPos(scene.button.mapToGlobal(QPoint(20, 20)));
    QVERIFY(rest(scene.button));
    QPointer<VantraToolTip> tip(openTips().constFirst());
    QTest::qWait(1200);
    QVERIFY(tip->isVisible());
    QCursor::setPos(tip->frameGeometry().bottomRight());
    QTest::qWait(1200);
    QVERIFY(tip->isVisible());
    QCursor::setPos(tip->frameGeometry().bottomRight() + QPoint(1, 1));
    QTRY_VERIFY_WITH_TIMEOUT(tip.isNull(), 2000);
    QVERIFY(rest(scene.button));
    QCOMPARE(openTips().size(), 1);
}

void tst_VantraToolTip::linkOpens()
{
    Scene scene;
    scene.button.setToolTipUrl(QStringLiteral("vttest:brush"));
    QVERIFY(rest(scene.button));
    VantraToolTip *tip = openTips().constFirst();
    QVERIFY(QTest::qWaitForWindowExposed(tip));
    QUrl opened;
    auto *label = labelOf(tip, "mContentLabel");
    QVERIFY(label->openExternalLinks());
    connect(label, &QLabel::linkActivated, this, [&](const QString &inUrl) { opened = inUrl; });
    label->setOpenExternalLinks(false);
    // The link stands at the right; a search downwards finds it whatever the font.
    for (int y = 0; y < label->height() && opened.isEmpty(); y += 4) {
        UserActions::click(label, QPoint(label->width() - 10, y));
    }
    QCOMPARE(opened, QUrl(QStringLiteral("vttest:brush")));
}

void tst_VantraToolTip::outlivesItsButton()
{
    auto scene = std::make_unique<Scene>();
    QVERIFY(rest(scene->button));
    QPointer<VantraToolTip> tip(openTips().constFirst());
    scene.reset();
    QTest::qWait(50);
    // Windows closes a window with the one it belongs to.
    QVERIFY(QGuiApplication::platformName() == "windows" || (!tip.isNull() && tip->isVisible()));
    QCursor::setPos(5, 5);
    QTRY_VERIFY_WITH_TIMEOUT(tip.isNull(), 2000);
}

void tst_VantraToolTip::fadesAndCastsAShadow()
{
    QWidget window;
    window.show();
    CommonTransition::fadeOut(&window, 60);
    QCOMPARE(window.windowOpacity(), 1.0);
    QTRY_COMPARE(window.windowOpacity(), 0.0);
    QVERIFY(window.isVisible());
    CommonTransition::fadeIn(&window, 0);
    QCOMPARE(window.windowOpacity(), 1.0);
    CommonTransition::addDropShadow(&window);
    QVERIFY(qobject_cast<QGraphicsDropShadowEffect *>(window.graphicsEffect()) != nullptr);
}

FATAL_TEST_MAIN(tst_VantraToolTip)
#include "tst_VantraToolTip.moc"
