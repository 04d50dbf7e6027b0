#include "Interaction/UserActions.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"

#include <QtWidgets/QtWidgets>

#include <functional>
#include <memory>

// What a user does with Qt's own buttons, fields and sliders under the style.

namespace {

using namespace UserActions;

QComboBox *comboBox(bool inEditable = false)
{
    auto *box = new QComboBox;
    box->addItems(hundredItems());
    box->setEditable(inEditable);
    return box;
}

QSpinBox *spinBox()
{
    auto *box = new QSpinBox;
    box->setRange(0, 100);
    box->setValue(50);
    box->resize(100, 24);
    return box;
}

template <typename Button>
Button *checkable()
{
    auto *button = new Button;
    button->setProperty("text", "Check");
    button->setProperty("title", "Check");
    button->setCheckable(true);
    button->setChecked(false);
    button->resize(160, 24);
    return button;
}

QTabBar *tabBar()
{
    auto *bar = new QTabBar;
    for (const char *text : {"One", "Two", "Three"}) {
        bar->addTab(text);
    }
    return bar;
}

} // namespace

class tst_StockWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void answers_data();
    void answers();

    void comboBoxOpensAndCloses_data();
    void comboBoxOpensAndCloses();
    void openComboBoxIsChosenFrom_data();
    void openComboBoxIsChosenFrom();
    void editableComboBoxTakesText_data();
    void editableComboBoxTakesText();
    void dateIsSteppedAndPicked();

    void handleFollowsTheMouse_data() { sliders(); }
    void handleFollowsTheMouse();
    void controlsAskForWhatTheyHold();
    void bothPartsOfAToolButtonAnswer();
    void sliderMovesAsWithFusion_data() { sliders(); }
    void sliderMovesAsWithFusion();

private:
    static void sliders();
};

void tst_StockWidgets::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    QCoreApplication::addLibraryPath(PLUGIN_FOLDER);
    QVERIFY(QApplication::setStyle(QStringLiteral("Vantra")) != nullptr);
}

// A widget, what is done to it, and what one of its properties is then.
void tst_StockWidgets::answers_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Do>("act");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    const auto add = [](const char *inMade, const char *inAct, const Make &inMake, const Do &inDo,
                        const char *inProperty, const QVariant &inValue) {
        QTest::addRow("%s, %s", inMade, inAct) << inMake << inDo << QByteArray(inProperty) << inValue;
    };

    const auto combo = [&](const char *inAct, const Do &inDo, const char *inText) {
        add(
            "combo box", inAct, [] { return comboBox(); }, inDo, "currentText", inText);
    };
    combo("Down", pressing(Qt::Key_Down), "item1");
    combo("End", pressing(Qt::Key_End), "item99");
    combo("typing", typing("item77"), "item77");
    combo("wheel", turning(-1), "item1");

    const auto spin = [&](const char *inAct, const Do &inDo, int inValue) {
        add("spin box", inAct, spinBox, inDo, "value", inValue);
    };
    spin("wheel up", turning(1), 51);
    spin("wheel down", turning(-2), 48);
    spin("Up", pressing(Qt::Key_Up), 51);
    spin("Down", pressing(Qt::Key_Down), 49);
    spin("PageUp", pressing(Qt::Key_PageUp), 60);
    spin("PageDown", pressing(Qt::Key_PageDown), 40);
    // The buttons aren't painted, but they are where they always were.
    spin("click at the upper right", clicking(-12, 7), 51);
    spin("click at the lower right", clicking(-12, -8), 49);
    spin("typing",
         after(pressing(Qt::Key_A, Qt::ControlModifier), after(typing("37"), pressing(Qt::Key_Return))), 37);

    const auto toggle = [&](const char *inMade, const Make &inMake, const Do &inOnText) {
        add(inMade, "click on the indicator", inMake, clicking(12, 12), "checked", true);
        add(inMade, "click on the text", inMake, inOnText, "checked", true);
        add(inMade, "Space", inMake, pressing(Qt::Key_Space), "checked", true);
    };
    toggle("check box", checkable<QCheckBox>, clicking(40, 12));
    toggle("radio button", checkable<QRadioButton>, clicking(40, 12));
    toggle("group box", checkable<QGroupBox>, clicking(40, 10));
    toggle("push button", checkable<QPushButton>, clicking(40, 12));
    toggle("tool button", checkable<QToolButton>, clicking(40, 12));

    add(
        "tab bar", "click", [] { return tabBar(); }, clicking(-20, 10), "currentIndex", 2);
    add(
        "tab bar", "Right", [] { return tabBar(); }, pressing(Qt::Key_Right), "currentIndex", 1);
    add(
        "tab bar", "wheel", [] { return tabBar(); }, turning(-1), "currentIndex", 1);
}

void tst_StockWidgets::answers()
{
    QFETCH(const Make, make);
    QFETCH(const Do, act);
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    const std::unique_ptr<QWidget> widget(make());
    QVERIFY(showActive(*widget));
    QVERIFY(widget->property(property) != value);
    act(widget.get());
    QTRY_COMPARE(widget->property(property), value);
}

void tst_StockWidgets::comboBoxOpensAndCloses_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<Do>("open");
    QTest::newRow("Space") << false << false << pressing(Qt::Key_Space);
    QTest::newRow("F4") << false << false << pressing(Qt::Key_F4);
    QTest::newRow("Alt+Down") << false << false << pressing(Qt::Key_Down, Qt::AltModifier);
    QTest::newRow("click on the text") << false << false << clicking(20, 12);
    QTest::newRow("click on the arrow") << false << false << clicking(-20, 12);
    QTest::newRow("right to left, click on the left") << false << true << clicking(20, 12);
    QTest::newRow("right to left, click on the right") << false << true << clicking(-20, 12);
    QTest::newRow("editable, F4") << true << false << pressing(Qt::Key_F4);
    QTest::newRow("editable, Alt+Down") << true << false << pressing(Qt::Key_Down, Qt::AltModifier);
    QTest::newRow("editable, click on the arrow") << true << false << clicking(-20, 12);
    const Do widen = [](QWidget *inWidget) { inWidget->resize(200, inWidget->height()); };
    QTest::newRow("wide, click on the arrow") << false << false << after(widen, clicking(-20, 12));
    QTest::newRow("wide and editable, click on the arrow")
        << true << false << after(widen, clicking(-20, 12));
}

void tst_StockWidgets::comboBoxOpensAndCloses()
{
    QFETCH(const bool, editable);
    QFETCH(const bool, mirrored);
    QFETCH(const Do, open);
    const std::unique_ptr<QComboBox> box(comboBox(editable));
    box->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    QVERIFY(showActive(*box));
    open(box.get());
    QVERIFY(QTest::qWaitFor([&] { return box->view()->isVisible(); }, 1000));
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Escape);
    QTRY_VERIFY(!box->view()->isVisible());
    QCOMPARE(box->currentText(), QStringLiteral("item0"));
}

void tst_StockWidgets::openComboBoxIsChosenFrom_data()
{
    QTest::addColumn<Do>("choose"); // in the list
    QTest::addColumn<QString>("text");
    const Do choose = pressing(Qt::Key_Return);
    const auto clickIn = [](QWidget *inView) {
        click(static_cast<QAbstractItemView *>(inView)->viewport(), {20, 10});
    };
    const auto turn = [](QWidget *inView) {
        wheel(static_cast<QAbstractItemView *>(inView)->viewport(), -2);
    };
    QTest::newRow("Down") << after(pressing(Qt::Key_Down), choose) << "item1";
    QTest::newRow("End") << after(pressing(Qt::Key_End), choose) << "item99";
    QTest::newRow("typing") << after(typing("item42"), choose) << "item42";
    QTest::newRow("wheel and click") << after(turn, clickIn) << "item6"; // three rows a notch
}

void tst_StockWidgets::openComboBoxIsChosenFrom()
{
    QFETCH(const Do, choose);
    QFETCH(const QString, text);
    const std::unique_ptr<QComboBox> box(comboBox());
    QVERIFY(showActive(*box));
    click(box.get(), box->rect().center());
    QTRY_VERIFY(box->view()->isVisible());
    slowly(); // a click right after the one that opened it would be taken for a part of that
    choose(box->view());
    QTRY_COMPARE(box->currentText(), text);
    QTRY_VERIFY(!box->view()->isVisible());
}

void tst_StockWidgets::editableComboBoxTakesText_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::newRow("starts empty") << QStringList();
    QTest::newRow("starts with text") << QStringList{"apple", "banana"};
}

void tst_StockWidgets::editableComboBoxTakesText()
{
    QFETCH(const QStringList, items);
    QComboBox box;
    box.setEditable(true);
    box.addItems(items);
    box.setFixedWidth(200);
    QVERIFY(showActive(box));
    click(&box, QPoint(20, box.height() / 2));
    QTRY_VERIFY(box.lineEdit()->hasFocus());
    box.lineEdit()->selectAll();
    QTest::keyClicks(box.lineEdit(), "cherry pie");
    QVERIFY(box.lineEdit()->width() > box.fontMetrics().horizontalAdvance("cherry pie"));
    QTest::keyClick(box.lineEdit(), Qt::Key_Return);
    QCOMPARE(box.currentText(), QStringLiteral("cherry pie"));
    QCOMPARE(box.count(), items.size() + 1);
}

void tst_StockWidgets::dateIsSteppedAndPicked()
{
    QDateEdit edit(QDate(2024, 2, 3));
    edit.setDisplayFormat("yyyy-MM-dd");
    edit.setCalendarPopup(true);
    edit.resize(140, 24);
    QVERIFY(showActive(edit));
    auto *field = edit.findChild<QLineEdit *>();
    QVERIFY(field->width() > field->fontMetrics().horizontalAdvance("2024-02-03"));
    QTest::keyClick(&edit, Qt::Key_Up);
    QCOMPARE(edit.date(), QDate(2025, 2, 3));
    click(&edit, QPoint(edit.width() - 12, 12));
    QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 1000));
    auto *days = QApplication::activePopupWidget()->findChild<QTableView *>();
    QVERIFY(days != nullptr);
    QTest::keyClick(days, Qt::Key_Right);
    QTest::keyClick(days, Qt::Key_Return);
    QCOMPARE(edit.date(), QDate(2025, 2, 4));
}

namespace {

std::unique_ptr<QAbstractSlider> fetchedSlider()
{
    using Result = std::unique_ptr<QAbstractSlider>;
    const auto orientation =
        *static_cast<Qt::Orientation *>(QTest::qData("orientation", qMetaTypeId<Qt::Orientation>()));
    const bool isBar = *static_cast<bool *>(QTest::qData("isScrollBar", QMetaType::Bool));
    const bool mirrored = *static_cast<bool *>(QTest::qData("mirrored", QMetaType::Bool));
    Result slider = isBar ? Result(new QScrollBar(orientation)) : Result(new QSlider(orientation));
    slider->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    slider->setRange(0, 200);
    slider->setPageStep(20);
    slider->setValue(100);
    slider->resize(orientation == Qt::Horizontal ? QSize(300, 20) : QSize(20, 300));
    return slider;
}

// A way along the slider.
QPoint along(const QAbstractSlider &inSlider, int inWay)
{
    return inSlider.orientation() == Qt::Horizontal ? QPoint(inWay, 0) : QPoint(0, inWay);
}

QPoint handleOf(QAbstractSlider *inSlider)
{
    struct ReachableSlider : QSlider
    {
        using QSlider::initStyleOption;
    };
    struct ReachableBar : QScrollBar
    {
        using QScrollBar::initStyleOption;
    };
    QStyleOptionSlider option;
    const auto *bar = qobject_cast<QScrollBar *>(inSlider);
    if (bar != nullptr) {
        (bar->*(&ReachableBar::initStyleOption))(&option);
    } else {
        (static_cast<QSlider *>(inSlider)->*(&ReachableSlider::initStyleOption))(&option);
    }
    return inSlider->style()
        ->subControlRect(bar != nullptr ? QStyle::CC_ScrollBar : QStyle::CC_Slider, &option,
                         bar != nullptr ? QStyle::SC_ScrollBarSlider : QStyle::SC_SliderHandle, inSlider)
        .center();
}

} // namespace

void tst_StockWidgets::sliders()
{
    QTest::addColumn<bool>("isScrollBar");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("slider") << false << Qt::Horizontal << false;
    QTest::newRow("slider, right to left") << false << Qt::Horizontal << true;
    QTest::newRow("scroll bar") << true << Qt::Horizontal << false;
    QTest::newRow("scroll bar, right to left") << true << Qt::Horizontal << true;
    QTest::newRow("upright scroll bar") << true << Qt::Vertical << false;
    QTest::newRow("upright slider") << false << Qt::Vertical << false;
}

void tst_StockWidgets::handleFollowsTheMouse()
{
    const auto slider = fetchedSlider();
    QVERIFY(showActive(*slider));
    const QPoint from = handleOf(slider.get());
    for (const int way : {60, -60}) {
        slider->setValue(100);
        drag(slider.get(), from, along(*slider, way));
        const QPoint missed = handleOf(slider.get()) - from - along(*slider, way);
        QVERIFY2(missed.manhattanLength() <= 2, qPrintable(QString("by %1").arg(missed.x() + missed.y())));
        // A click beside the handle brings it nearer.
        const QPoint end = from + along(*slider, way * 2);
        slider->setValue(100);
        click(slider.get(), end);
        QVERIFY((handleOf(slider.get()) - end).manhattanLength() < 120);
    }
}

void tst_StockWidgets::sliderMovesAsWithFusion()
{
    const auto slider = fetchedSlider();
    const auto twin = fetchedSlider();
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
    twin->setStyle(fusion.get());
    QList<int> reached[2];
    for (QAbstractSlider *each : {slider.get(), twin.get()}) {
        QVERIFY(showActive(*each));
        QList<int> &values = reached[each == twin.get() ? 1 : 0];
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp,
                                  Qt::Key_PageDown, Qt::Key_Down, Qt::Key_End, Qt::Key_Home}) {
            QTest::keyClick(each, key);
            values << each->value();
        }
        for (const Do &act : {turning(1), turning(-2)}) {
            each->setValue(100);
            act(each);
            values << each->value();
        }
        for (const int way : {-100, 100}) { // the page areas on both sides
            each->setValue(100);
            click(each, each->rect().center() + along(*each, way));
            values << each->value();
        }
    }
    QCOMPARE(reached[0], reached[1]);
}

void tst_StockWidgets::controlsAskForWhatTheyHold()
{
    QSpinBox box;
    box.setRange(0, 1000000);
    box.resize(box.sizeHint());
    QVERIFY(box.findChild<QLineEdit *>()->width() > box.fontMetrics().horizontalAdvance("1000000"));

    QComboBox choices;
    choices.addItems({"a", "a much longer entry"});
    const QSize before = choices.sizeHint();
    QVERIFY(before.width() > choices.fontMetrics().horizontalAdvance("a much longer entry") + 16);
    choices.setCurrentIndex(1);
    QCOMPARE(choices.sizeHint(), before);
}

void tst_StockWidgets::bothPartsOfAToolButtonAnswer()
{
    QMenu menu;
    menu.addAction("Entry");
    QToolButton button;
    button.setText("Several");
    button.setMenu(&menu);
    button.setPopupMode(QToolButton::MenuButtonPopup);
    button.resize(80, 24);
    QVERIFY(showActive(button));
    QSignalSpy clicked(&button, &QToolButton::clicked);
    click(&button, QPoint(20, 12));
    QCOMPARE(clicked.count(), 1);
    bool opened = false;
    QTimer::singleShot(200, &menu, [&] {
        opened = menu.isVisible();
        menu.close();
    });
    click(&button, QPoint(75, 12));
    QVERIFY(opened);
    QCOMPARE(clicked.count(), 1);
}

FATAL_TEST_MAIN(tst_StockWidgets)
#include "tst_StockWidgets.moc"
