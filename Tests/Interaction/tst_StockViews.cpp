#include "Interaction/UserActions.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"

#include <QtWidgets/QtWidgets>

#include <memory>

// What a user does with Qt's own menus, tabs, splitters and item views under the style.

using namespace UserActions;

class tst_StockViews : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void menuIsUsedByKeys();
    void menuIsUsedByMouse();
    void tabsAreDragged();
    void splitterIsDragged();
    void listIsUsedByKeys();
    void itemIsCheckedAndEdited_data();
    void itemIsCheckedAndEdited();
    void branchOpensAndCloses();
    void rowsAreDraggedAndDropped();
    void iconsStandAboveTheirTexts();
};

void tst_StockViews::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    QCoreApplication::addLibraryPath(PLUGIN_FOLDER);
    QVERIFY(QApplication::setStyle(QStringLiteral("Vantra")) != nullptr);
}

namespace {

// A menu bar with a menu that has an item, a checkable item and a submenu.
struct Menus
{
    Menus()
    {
        file = window.menuBar()->addMenu("&File");
        file->addAction("&Open");
        file->addSeparator();
        check = file->addAction("&Check");
        check->setCheckable(true);
        more = file->addMenu("&More");
        deep = more->addAction("&Deep");
        window.resize(300, 200);
    }

    void openFile()
    {
        QMenuBar *bar = window.menuBar();
        click(bar, bar->actionGeometry(file->menuAction()).center());
    }

    QMainWindow window;
    QMenu *file;
    QMenu *more;
    QAction *check;
    QAction *deep;
};

} // namespace

void tst_StockViews::menuIsUsedByKeys()
{
    Menus menus;
    QSignalSpy deep(menus.deep, &QAction::triggered);
    QVERIFY(showActive(menus.window));
    QTest::keyClick(&menus.window, Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(menus.file->isVisible());
    QTest::keyClick(menus.file, Qt::Key_Down); // over the separator
    QTest::keyClick(menus.file, Qt::Key_Return);
    QVERIFY(menus.check->isChecked());
    QTRY_VERIFY(!menus.file->isVisible());

    QTest::keyClick(&menus.window, Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(menus.file->isVisible());
    QTest::keyClick(menus.file, Qt::Key_M);
    QTRY_VERIFY(menus.more->isVisible());
    QTest::keyClick(menus.more, Qt::Key_Left);
    QTRY_VERIFY(!menus.more->isVisible());
    QTest::keyClick(menus.file, Qt::Key_Right);
    QTRY_VERIFY(menus.more->isVisible());
    QTest::keyClick(menus.more, Qt::Key_Return);
    QCOMPARE(deep.count(), 1);
    QTRY_VERIFY(!menus.file->isVisible());
}

void tst_StockViews::menuIsUsedByMouse()
{
    Menus menus;
    QSignalSpy deep(menus.deep, &QAction::triggered);
    QVERIFY(showActive(menus.window));
    menus.openFile();
    QTRY_VERIFY(menus.file->isVisible());
    click(menus.file, menus.file->actionGeometry(menus.check).center());
    QTRY_VERIFY(!menus.file->isVisible());
    QVERIFY(menus.check->isChecked());

    menus.openFile();
    QTRY_VERIFY(menus.file->isVisible());
    const QPoint more = menus.file->actionGeometry(menus.more->menuAction()).center();
    QTest::mouseMove(menus.file->windowHandle(), more - QPoint(5, 0));
    QTest::mouseMove(menus.file->windowHandle(), more);
    QTRY_VERIFY(menus.more->isVisible()); // by staying over it
    click(menus.more, menus.more->actionGeometry(menus.deep).center());
    QTRY_COMPARE(deep.count(), 1);
    QTRY_VERIFY(!menus.file->isVisible());
}

void tst_StockViews::tabsAreDragged()
{
    QTabBar bar;
    for (const char *text : {"One", "Two", "Three"}) {
        bar.addTab(text);
    }
    bar.setMovable(true);
    QVERIFY(showActive(bar));
    drag(&bar, bar.tabRect(0).center(), bar.tabRect(2).center() - bar.tabRect(0).center());
    QTRY_COMPARE(bar.tabText(2), QStringLiteral("One"));
}

void tst_StockViews::splitterIsDragged()
{
    QSplitter splitter;
    splitter.addWidget(new QListWidget);
    splitter.addWidget(new QListWidget);
    splitter.resize(300, 100);
    QVERIFY(showActive(splitter));
    const int left = splitter.sizes().at(0);
    drag(splitter.handle(1), splitter.handle(1)->rect().center(), QPoint(40, 0));
    QCOMPARE(splitter.sizes().at(0), left + 40);
}

void tst_StockViews::listIsUsedByKeys()
{
    QListWidget list;
    list.addItems(hundredItems());
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.resize(150, 200);
    QVERIFY(showActive(list));
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(list.selectedItems().size(), 2);
    QTest::keyClick(&list, Qt::Key_End);
    QCOMPARE(list.currentRow(), 99);
    QTRY_VERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(99)).center()));
    QTest::keyClicks(&list, "item5");
    QCOMPARE(list.currentRow(), 5);
    QTRY_VERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(5)).center()));
}

void tst_StockViews::itemIsCheckedAndEdited_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("list") << Make([] { return new QListView; });
    QTest::newRow("tree") << Make([] { return new QTreeView; });
    QTest::newRow("table") << Make([] { return new QTableView; });
}

void tst_StockViews::itemIsCheckedAndEdited()
{
    QFETCH(const Make, make);
    QStandardItemModel model(2, 1);
    for (int row = 0; row < 2; ++row) {
        model.setItem(row, 0, new QStandardItem("Row"));
        model.item(row)->setCheckable(true);
    }
    const std::unique_ptr<QAbstractItemView> view(static_cast<QAbstractItemView *>(make()));
    view->setModel(&model);
    view->resize(200, 150);
    QVERIFY(showActive(*view));

    const QModelIndex index = model.index(1, 0);
    QStyleOptionViewItem option;
    option.initFrom(view.get());
    option.rect = view->visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    click(view->viewport(),
          view->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view.get()).center());
    QCOMPARE(model.item(1)->checkState(), Qt::Checked);
    view->setCurrentIndex(index);
    QTest::keyClick(view.get(), Qt::Key_Space);
    QCOMPARE(model.item(1)->checkState(), Qt::Unchecked);

    QTest::keyClick(view.get(), Qt::Key_F2);
    auto *editor = view->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor != nullptr && editor->isVisible());
    QVERIFY(view->visualRect(index).contains(editor->geometry().center()));
    QTest::keyClicks(editor, "new");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(model.item(1)->text(), QStringLiteral("new"));
}

void tst_StockViews::branchOpensAndCloses()
{
    QTreeWidget tree;
    auto *parent = new QTreeWidgetItem(&tree, {"Parent"});
    new QTreeWidgetItem(parent, {"Child"});
    QVERIFY(showActive(tree));
    const QRect row = tree.visualItemRect(parent);
    for (const bool open : {true, false}) {
        click(tree.viewport(), QPoint(row.left() - tree.indentation() / 2, row.center().y()));
        QCOMPARE(parent->isExpanded(), open);
        slowly();
    }
    tree.setCurrentItem(parent);
    QTest::keyClick(&tree, Qt::Key_Right);
    QVERIFY(parent->isExpanded());
}

namespace {

// Stops where the platform would take over the mouse.
class DraggedList : public QListWidget
{
public:
    int starts = 0;

protected:
    void startDrag(Qt::DropActions) override { ++starts; }
};

} // namespace

void tst_StockViews::rowsAreDraggedAndDropped()
{
    DraggedList list;
    list.addItems({"a", "b", "c", "d"});
    list.setDragDropMode(QAbstractItemView::DragDrop);
    QVERIFY(showActive(list));
    const QPoint from = list.visualItemRect(list.item(0)).center();
    drag(list.viewport(), from, QPoint(0, QApplication::startDragDistance() - 2));
    QCOMPARE(list.starts, 0);
    drag(list.viewport(), from, QPoint(0, QApplication::startDragDistance() * 2));
    QVERIFY(list.starts > 0);

    list.setCurrentRow(0);
    const std::unique_ptr<QMimeData> data(list.model()->mimeData({list.currentIndex()}));
    const QPoint place(20, list.visualItemRect(list.item(2)).bottom());
    QDragEnterEvent enter(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QDragMoveEvent move(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QDropEvent drop(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(list.viewport(), &enter);
    const QImage before = list.grab().toImage();
    QCoreApplication::sendEvent(list.viewport(), &move);
    QVERIFY(list.grab().toImage() != before); // a line shows where it would fall
    QCoreApplication::sendEvent(list.viewport(), &drop);
    QCOMPARE(list.count(), 5);
    QCOMPARE(list.item(3)->text(), QStringLiteral("a"));
}

void tst_StockViews::iconsStandAboveTheirTexts()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::green);
    QListWidget list;
    list.setViewMode(QListView::IconMode);
    list.addItem(new QListWidgetItem(QIcon(pixmap), "Picture"));
    list.setIconSize(QSize(32, 32));
    list.resize(200, 150);
    QVERIFY(showActive(list));
    const QRect item = list.visualItemRect(list.item(0));
    QVERIFY(item.height() > 32 + list.fontMetrics().height());
    QVERIFY(list.grab().toImage().pixelColor(item.center().x(), item.top() + 10).green() > 200);
    click(list.viewport(), item.center());
    QVERIFY(list.item(0)->isSelected());
}

FATAL_TEST_MAIN(tst_StockViews)
#include "tst_StockViews.moc"
