#include "Controls/VantraComboBox.h"
#include "Controls/VantraComboBoxStyleItemDelegate.h"
#include "Interaction/UserActions.h"
#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtGui/QAccessible>

#include <memory>

namespace {

// A window with a box of three items, whose second one is current.
class Window : public QWidget
{
public:
    Window()
    {
        auto *layout = new QVBoxLayout(this);
        box = new VantraComboBox(this);
        box->addItems({QStringLiteral("Zero"), QStringLiteral("One"), QStringLiteral("Two")});
        box->setCurrentIndex(1);
        layout->addWidget(box, 0, Qt::AlignLeft | Qt::AlignTop);
        layout->addStretch();
        resize(300, 200);
    }

    bool showFocused()
    {
        box->setFocus();
        return UserActions::showActive(*this);
    }

    // The middle of a row, in the popup's window.
    QPoint row(int inRow) const
    {
        QAbstractItemView *view = box->view();
        const QRect rect = view->visualRect(view->model()->index(inRow, 0));
        return view->viewport()->mapTo(view->window(), rect.center());
    }
    QWindow *popup() const { return box->view()->window()->windowHandle(); }
    bool popupShows() const { return box->view()->isVisible(); }

    QPointer<VantraComboBox> box;
    int wheels = 0;

protected:
    void wheelEvent(QWheelEvent *) override { ++wheels; }
};

// Notes what combo boxes are painted with.
class RecordingStyle : public QProxyStyle
{
public:
    RecordingStyle() : QProxyStyle(new VantraStyle) {}

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        if (control == CC_ComboBox && option->version >= VantraStyleOptionComboBox::Version) {
            record = *static_cast<const VantraStyleOptionComboBox *>(option);
        }
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    mutable VantraStyleOptionComboBox record;
};

class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

QList<int> indexes(const QSignalSpy &inSpy)
{
    QList<int> result;
    for (const QList<QVariant> &arguments : inSpy) {
        result << arguments.first().toInt();
    }
    return result;
}

FATAL_CASE(itemOfAnotherModel)
{
    ThemeFixture::load();
    VantraComboBox box;
    box.setModel(new QStringListModel({QStringLiteral("One")}, &box));
    box.itemEnabled(0);
}

FATAL_CASE(widthOfNoComboBox)
{
    ThemeFixture::load();
    VantraComboBox().adjustMinimumViewWidth(nullptr);
}

} // namespace

class tst_VantraComboBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ThemeFixture::load());
        mStyle = new RecordingStyle;
        QApplication::setStyle(mStyle);
    }
    void keyboardAloneChooses();
    void mouseChooses();
    void openingIsTold();
    void leavingWithoutAChoiceGoesBack_data();
    void leavingWithoutAChoiceGoesBack();
    void separatorsAreLowLines();
    void placeholderReachesTheStyle();
    void drawsAtItsHintInTheCorner();
    void popupIsAsWideAsItsItems();
    void paintingComesToRest();
    void itemsCanBeDisabled();
    void otherModelsAreFatal();
    void wheelGoesToTheParent();
    void tabReachesTheBox();
    void disabledLetsTheMouseThrough();
    void editableHasTheFont();
    void accessible();
    void mayBeDeletedWithItsPopup();
    void reopenedListShowsTheCurrentItem();
    void viewMayBeReplaced();

private:
    RecordingStyle *mStyle = nullptr; // the application's
};

void tst_VantraComboBox::keyboardAloneChooses()
{
    Window window;
    QVERIFY(window.showFocused());
    QSignalSpy activated(window.box, &QComboBox::activated);
    QTest::keyClick(window.box, Qt::Key_Space);
    QTRY_VERIFY(window.popupShows());
    QTest::keyClick(window.box->view(), Qt::Key_Down);
    QTest::keyClick(window.box->view(), Qt::Key_Return);
    QTRY_VERIFY(!window.popupShows());
    QCOMPARE(indexes(activated), QList<int>{2});
    QTest::keyClick(window.box, Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(window.popupShows());
    QTest::keyClick(window.box->view(), Qt::Key_Escape);
    QTRY_VERIFY(!window.popupShows());
    QTest::keyClick(window.box, Qt::Key_Home);
    QCOMPARE(window.box->currentIndex(), 0);
}

void tst_VantraComboBox::mouseChooses()
{
    Window window;
    QVERIFY(window.showFocused());
    QSignalSpy highlighted(window.box, &QComboBox::highlighted);
    UserActions::click(window.box, window.box->rect().center());
    QTRY_VERIFY(window.popupShows());
    UserActions::slowly(); // a release soon after the opening click counts as its end
    QTest::mouseMove(window.popup(), window.row(0));
    QTest::mouseClick(window.popup(), Qt::LeftButton, {}, window.row(2));
    QTRY_VERIFY(!window.popupShows());
    QCOMPARE(window.box->currentIndex(), 2);
    QCOMPARE(highlighted.last().first().toInt(), 2);
}

void tst_VantraComboBox::openingIsTold()
{
    QStringList log;
    Window window;
    QVERIFY(window.showFocused());
    VantraComboBox *box = window.box;
    const auto noting = [&](const char *name) {
        return [&log, box, name] { log << name + QString::number(box->view()->isVisible()); };
    };
    box->setAboutToShowPopupFunc([&](VantraComboBoxBase *inBox) {
        noting("func")();
        inBox->addItem(QStringLiteral("A late item that is a good deal wider than all others"));
        inBox->setAboutToShowPopupFunc({});
    });
    connect(box, &VantraComboBox::aboutToShowPopup, this, noting("about"));
    connect(box, &VantraComboBox::showingPopup, this, noting("showing"));
    box->showPopup();
    QCOMPARE(log, (QStringList{"func0", "about0", "showing1"}));
    QVERIFY(box->view()->minimumWidth() > box->width());
    connect(box, &VantraComboBox::hidingPopup, this, noting("hiding"));
    box->hidePopup();
    box->hidePopup();
    QCOMPARE(log.value(3), QStringLiteral("hiding1"));
    QVERIFY(!window.popupShows());
}

// What the user does between opening the popup and the view's loss of focus: h, p hover and press item 2, d
// drag onto it with the button down, l leave the list, o close it and open it again. Opening highlights the
// current item unless it is highlighted already, or the first when there is none.
void tst_VantraComboBox::leavingWithoutAChoiceGoesBack_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("deeds");
    QTest::addColumn<QList<int>>("highlighted");
    QTest::newRow("hover") << 1 << QByteArray("h") << QList<int>{1, 2, 1};
    QTest::newRow("press") << 1 << QByteArray("hp") << QList<int>{1, 2};
    QTest::newRow("nothing done") << 1 << QByteArray() << QList<int>{1, 1};
    QTest::newRow("nothing highlighted") << 1 << QByteArray("o") << QList<int>{};
    QTest::newRow("nothing to go back to") << -1 << QByteArray("h") << QList<int>{0, 2};
    QTest::newRow("press, leave") << 1 << QByteArray("hpl") << QList<int>{1, 2};
    QTest::newRow("drag") << 1 << QByteArray("d") << QList<int>{1, 2};
    QTest::newRow("drag, leave") << 1 << QByteArray("dl") << QList<int>{1, 2, 1};
}

void tst_VantraComboBox::leavingWithoutAChoiceGoesBack()
{
    QFETCH(const int, index);
    QFETCH(const QByteArray, deeds);
    QFETCH(const QList<int>, highlighted);
    Window window;
    QVERIFY(window.showFocused());
    QSignalSpy spy(window.box, &QComboBox::highlighted);
    window.box->setCurrentIndex(index);
    QTest::mouseMove(window.windowHandle(), QPoint(290, 190)); // a move to where the pointer is is none
    const bool drags = deeds.startsWith('d');
    if (drags) {
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, window.box->geometry().center());
    } else {
        window.box->showPopup();
    }
    QVERIFY(QTest::qWaitForWindowExposed(window.box->view()->window()));
    for (const char deed : deeds) {
        switch (deed) {
        case 'h':
        case 'd': QTest::mouseMove(window.popup(), window.row(2)); break;
        case 'p': QTest::mousePress(window.popup(), Qt::LeftButton, {}, window.row(2)); break;
        case 'l': QTest::mouseMove(window.popup(), QPoint(-50, -50)); break;
        default:
            window.box->hidePopup();
            window.box->showPopup();
            spy.clear();
            break;
        }
    }
    window.box->view()->clearFocus();
    QVERIFY(!window.popupShows());
    QCOMPARE(indexes(spy), highlighted);
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(290, 190));
}

void tst_VantraComboBox::separatorsAreLowLines()
{
    Window window;
    window.box->insertSeparator(1);
    const QAbstractItemView *view = window.box->view();
    const QModelIndex separator = view->model()->index(1, 0);
    QVERIFY(window.box->isSeparator(separator));
    QVERIFY(!window.box->isSeparator(view->model()->index(0, 0)));
    QVERIFY(!window.box->isSeparator(QModelIndex()));
    QCOMPARE(view->sizeHintForRow(1), 5);
    QVERIFY(view->sizeHintForRow(0) > 5);

    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 60, 5);
    const QImage line = ThemeFixture::paint(
        QSize(60, 5), [&](QPainter &painter) { view->itemDelegate()->paint(&painter, option, separator); });
    QCOMPARE(line.pixelColor(30, 0), QColor(Qt::transparent));
    QVERIFY(line.pixelColor(30, 2).alpha() > 0);
    QVERIFY(window.showFocused());
    window.box->setCurrentIndex(0);
    QTest::keyClick(window.box, Qt::Key_Down);
    QCOMPARE(window.box->currentIndex(), 2);
}

void tst_VantraComboBox::placeholderReachesTheStyle()
{
    Window window;
    VantraComboBox &box = *window.box;
    const VantraStyleOptionComboBox &record = mStyle->record;
    QPixmap icon(16, 16);
    icon.fill(Qt::red);
    box.setPlaceholderIcon(icon);
    box.setProperty("backgroundStyle", VantraComboBoxBase::BackgroundTransparent);
    QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
    box.setCurrentIndexAndBlockSignals(-1);
    QCOMPARE(changed.count(), 0);
    box.grab();
    QCOMPARE(record.currentText, QString());
    QVERIFY(!record.currentIcon.isNull());
    QCOMPARE(record.backgroundStyle, VantraComboBoxBase::BackgroundTransparent);
    box.setProperty("placeholderText", QStringLiteral("Choose"));
    box.grab();
    QCOMPARE(record.currentText, QStringLiteral("Choose"));
    box.setCurrentIndexTC(2);
    QCOMPARE(changed.count(), 1);
    box.grab();
    QCOMPARE(record.currentText, QStringLiteral("Two"));
    QVERIFY(record.currentIcon.isNull());
}

void tst_VantraComboBox::drawsAtItsHintInTheCorner()
{
    Window window;
    window.box->setFixedSize(200, 60);
    window.box->grab();
    QCOMPARE(mStyle->record.rect, QRect(QPoint(0, 0), window.box->sizeHint()));
}

// What is remembered of texts must not outlive the font.
void tst_VantraComboBox::popupIsAsWideAsItsItems()
{
    Window window;
    const QString text(80, QLatin1Char('W'));
    window.box->addItem(text);
    for (const int points : {11, 24, 11}) {
        QFont font = window.box->font();
        font.setPointSize(points);
        window.box->setFont(font);
        window.box->adjustMinimumViewWidth(window.box);
        const int width = window.box->fontMetrics().boundingRect(text).width() +
                          window.box->view()->verticalScrollBar()->sizeHint().width() +
                          qMax(0, window.box->view()->iconSize().width());
        QCOMPARE(window.box->view()->minimumWidth(), width);
    }
}

void tst_VantraComboBox::paintingComesToRest()
{
    Window window;
    QVERIFY(window.showFocused());
    QTest::qWait(50);
    PaintCounter counter;
    window.box->installEventFilter(&counter);
    window.box->setPlaceholderText(QStringLiteral("A placeholder wider than the items"));
    window.box->setCurrentIndex(-1);
    QTRY_COMPARE(window.box->width(), window.box->sizeHint().width());
    QTest::qWait(300);
    QVERIFY2(counter.count <= 4, qPrintable(QString::number(counter.count)));
}

void tst_VantraComboBox::itemsCanBeDisabled()
{
    Window window;
    QVERIFY(window.box->itemEnabled(2));
    window.box->setItemEnabled(2, false);
    QVERIFY(!window.box->itemEnabled(2));
    QVERIFY(!window.box->itemEnabled(7));
    window.box->setItemEnabled(7, true);
    QVERIFY(window.showFocused());
    QTest::keyClick(window.box, Qt::Key_Down);
    QCOMPARE(window.box->currentIndex(), 1);
}

void tst_VantraComboBox::otherModelsAreFatal()
{
    QCOMPARE(FatalTest::assertionOf("itemOfAnotherModel"),
             QStringLiteral("VantraComboBoxBase: ComboBox model isn't a QStandardItemModel"));
    QCOMPARE(FatalTest::assertionOf("widthOfNoComboBox"), QStringLiteral("comboBox != NULL"));
}

void tst_VantraComboBox::wheelGoesToTheParent()
{
    Window window;
    QVERIFY(window.showFocused());
    const QPointF position(window.box->rect().center());
    QWheelEvent event(position, window.box->mapToGlobal(position), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // only what comes from outside goes on to the parent
    qApp->notify(window.box, &event);
    QCOMPARE(window.box->currentIndex(), 1);
    QCOMPARE(window.wheels, 1);
}

void tst_VantraComboBox::tabReachesTheBox()
{
    Window window;
    auto *next = new QLineEdit(&window);
    QShortcut shortcut(QKeySequence(Qt::Key_Tab), &window);
    QSignalSpy spy(&shortcut, &QShortcut::activated);
    QVERIFY(window.showFocused());
    next->show();
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(spy.count(), 0);
    QVERIFY(next->hasFocus());

    // A key that is held down is the shortcut's.
    for (const bool repeats : {false, true}) {
        QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Tab, Qt::NoModifier, QString(), repeats);
        event.ignore();
        window.box->event(&event);
        QCOMPARE(event.isAccepted(), !repeats);
    }
}

void tst_VantraComboBox::disabledLetsTheMouseThrough()
{
    Window window;
    window.box->setEnabled(false);
    QVERIFY(window.showFocused());
    QCOMPARE(window.childAt(window.box->geometry().center()), nullptr);
    window.setEnabled(false);
    window.box->setEnabled(true);
    window.setEnabled(true);
    QCOMPARE(window.childAt(window.box->geometry().center()), window.box);
}

void tst_VantraComboBox::editableHasTheFont()
{
    Window window;
    window.box->setEditable(true);
    QCOMPARE(window.box->lineEdit()->font(), VantraFont::mainFont());
    QVERIFY(window.showFocused());
    window.box->lineEdit()->selectAll();
    QTest::keyClicks(window.box, QStringLiteral("Zero"));
    QTest::keyClick(window.box, Qt::Key_Return);
    QCOMPARE(window.box->currentIndex(), 0);
}

void tst_VantraComboBox::accessible()
{
    Window window;
    window.box->setAccessibleDescription(QStringLiteral("Tells the format"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(window.box);
    QVERIFY(interface != nullptr);
    QCOMPARE(interface->role(), QAccessible::ComboBox);
    QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("One"));
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("Tells the format"));
    QVERIFY(interface->actionInterface() != nullptr);
    QVERIFY(window.showFocused());
    interface->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(window.popupShows());
    QVERIFY(interface->state().expanded);
}

void tst_VantraComboBox::mayBeDeletedWithItsPopup()
{
    Window window;
    QVERIFY(window.showFocused());
    window.box->showPopup();
    QTest::keyClick(window.box->view(), Qt::Key_Down);
    delete window.box;
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

void tst_VantraComboBox::reopenedListShowsTheCurrentItem()
{
    Window window;
    QVERIFY(window.showFocused());
    window.box->setCurrentIndex(0);
    window.box->showPopup();
    QTest::keyClick(window.box->view(), Qt::Key_Down);
    QTest::keyClick(window.box->view(), Qt::Key_Escape);
    QTRY_VERIFY(!window.popupShows());
    QCOMPARE(window.box->currentIndex(), 0);

    // A preview that follows the highlight must not run while the list is closed.
    QSignalSpy spy(window.box, &QComboBox::highlighted);
    window.box->setCurrentIndex(2);
    QCOMPARE(spy.count(), 0);
    window.box->showPopup();
    QCOMPARE(indexes(spy), QList<int>{2});
    QCOMPARE(window.box->view()->currentIndex().row(), 2);
}

void tst_VantraComboBox::viewMayBeReplaced()
{
    Window window;
    QVERIFY(window.showFocused());
    window.box->showPopup();
    window.box->setView(new QTreeView);
    window.box->hidePopup();
    window.box->showPopup();
    QVERIFY(window.popupShows());
    QTest::keyClick(window.box->view(), Qt::Key_Down);
    QTest::keyClick(window.box->view(), Qt::Key_Return);
    QTRY_VERIFY(!window.popupShows());
    QCOMPARE(window.box->currentIndex(), 2);
}

FATAL_TEST_MAIN(tst_VantraComboBox)
#include "tst_VantraComboBox.moc"
