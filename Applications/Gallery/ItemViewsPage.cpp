#include "GalleryPage.h"

#include "Controls/VantraStyledItemDelegate.h"
#include "SampleModels.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr QSize kViewSize(300, 258);

bool isCategory(const QModelIndex &inIndex)
{
    return inIndex.siblingAtColumn(0).data(SampleModels::kIsCategoryRole).toBool();
}

QBrush categoryBrush(const QStyleOption &inOption)
{
    return VantraStyleTheme::instance().colorPalette().brush(
        inOption.state & QStyle::State_Enabled ? VantraPalette::Normal : VantraPalette::Disabled,
        VantraPalette::CategoryViewItemBackground);
}

// What applications add to the delegate: category rows with a ground of their own, an indent for the others
// and tinted decorations.
class GalleryDelegate : public VantraStyledItemDelegate
{
public:
    GalleryDelegate(VantraIconPalette::IconTintings inTinting, bool inUseIndent, QObject *inParent)
        : VantraStyledItemDelegate(inParent), mTinting(inTinting), mUseIndent(inUseIndent)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem *ioOption, const QModelIndex &inIndex) const override
    {
        VantraStyledItemDelegate::initStyleOption(ioOption, inIndex);
        if (isCategory(inIndex))
            ioOption->backgroundBrush = categoryBrush(*ioOption);
        if (ioOption->version >= VantraStyleOptionViewItem::Version) {
            auto *record = static_cast<VantraStyleOptionViewItem *>(ioOption);
            record->iconTinting = mTinting;
            record->useIndent = mUseIndent && !isCategory(inIndex);
        }
    }

private:
    VantraIconPalette::IconTintings mTinting;
    bool mUseIndent;
};

// Gives a category row its ground under the branch as well, which the delegate doesn't reach.
class CategoryTree : public QTreeView
{
protected:
    void drawRow(QPainter *ioPainter, const QStyleOptionViewItem &inOption,
                 const QModelIndex &inIndex) const override
    {
        QStyleOptionViewItem option = inOption;
        if (isCategory(inIndex))
            option.backgroundBrush = categoryBrush(inOption);
        QTreeView::drawRow(ioPainter, option, inIndex);
    }
};

// Paints the drop line as if a drag were in a place of the list.
class DropLineList : public QListView
{
public:
    DropLineList(int inRow, bool inOnRow) : mRow(inRow), mOnRow(inOnRow) {}

protected:
    void paintEvent(QPaintEvent *inEvent) override
    {
        QListView::paintEvent(inEvent);
        QStyleOption option;
        option.initFrom(this);
        option.rect = visualRect(model()->index(mRow, 0));
        // Between rows, views hand over the lower row's upper edge.
        if (!mOnRow)
            option.rect.setHeight(0);
        QPainter painter(viewport());
        style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, &painter, this);
    }

private:
    int mRow;
    bool mOnRow;
};

template <typename View>
View *setUp(View *ioView, const QString &inName, QAbstractItemModel *inModel)
{
    ioView->setModel(inModel);
    inModel->setParent(ioView);
    ioView->setFixedSize(kViewSize);
    ioView->setAccessibleName(inName);
    return ioView;
}

QListView *makeList(const QString &inName, void (*inFill)(QStandardItem *))
{
    auto *model = new QStandardItemModel;
    inFill(model->invisibleRootItem());
    auto *list = setUp(new QListView, inName, model);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setCurrentIndex(model->index(1, 0));
    return list;
}

QTreeView *makeTree(const QString &inName, bool inCategories)
{
    auto *model = new QStandardItemModel;
    SampleModels::fillTree(model, inCategories);
    QTreeView *tree = setUp(new CategoryTree, inName, model);
    tree->setExpanded(model->index(0, 0), true);
    tree->setCurrentIndex(model->index(0, 0, model->index(0, 0)));
    tree->setColumnWidth(0, kViewSize.width() * 2 / 3);
    return tree;
}

QTableView *makeTable(const QString &inName)
{
    auto *model = new QStandardItemModel;
    SampleModels::fillTable(model);
    auto *table = setUp(new QTableView, inName, model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setCurrentIndex(model->index(1, 0));
    table->setColumnWidth(0, kViewSize.width() / 2);
    table->setColumnWidth(1, kViewSize.width() / 4);
    // The last one takes what is left.
    table->setColumnWidth(2, 1);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->hide();
    return table;
}

QListView *makeDropLineList(const QString &inName, int inRow, bool inOnRow)
{
    auto *model = new QStandardItemModel;
    SampleModels::fillWithMovables(model->invisibleRootItem());
    return setUp(new DropLineList(inRow, inOnRow), inName, model);
}

void addStockDelegate(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 3);
    grid.add(QStringLiteral("list"), makeList(QStringLiteral("List"), &SampleModels::fillWithKinds));
    grid.add(QStringLiteral("tree"), makeTree(QStringLiteral("Tree"), false));
    grid.add(QStringLiteral("table"), makeTable(QStringLiteral("Table")));
    QListView *mirrored = makeList(QStringLiteral("List, right to left"), &SampleModels::fillWithKinds);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    grid.add(QStringLiteral("list, right to left"), mirrored);
    QTreeView *mirroredTree = makeTree(QStringLiteral("Tree, right to left"), false);
    mirroredTree->setLayoutDirection(Qt::RightToLeft);
    grid.add(QStringLiteral("tree, right to left"), mirroredTree);
    QTableView *disabled = makeTable(QStringLiteral("Table, disabled"));
    disabled->setEnabled(false);
    grid.add(QStringLiteral("table, disabled"), disabled);
}

void addHouseDelegate(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 3);
    const auto add = [&grid](const QString &inCaption, QAbstractItemView *inView,
                             VantraIconPalette::IconTintings inTinting, bool inUseIndent) {
        inView->setItemDelegate(new GalleryDelegate(inTinting, inUseIndent, inView));
        grid.add(inCaption, inView);
    };
    add(QStringLiteral("categories, without indent"),
        makeList(QStringLiteral("Categories"), &SampleModels::fillWithCategories),
        VantraIconPalette::IconTintingNone, false);
    add(QStringLiteral("categories, useIndent"),
        makeList(QStringLiteral("Categories with indent"), &SampleModels::fillWithCategories),
        VantraIconPalette::IconTintingNone, true);
    add(QStringLiteral("categories in a tree"), makeTree(QStringLiteral("Categories in a tree"), true),
        VantraIconPalette::IconTintingForeground, false);
    add(QStringLiteral("icons in the text's colour"), makeTree(QStringLiteral("Foreground tinting"), false),
        VantraIconPalette::IconTintingForeground, false);
    add(QStringLiteral("icons in the accent"), makeTable(QStringLiteral("Alternate tinting")),
        VantraIconPalette::IconTintingAlternate, false);
    add(QStringLiteral("text's colour, selected in the accent"),
        makeList(QStringLiteral("Selected tinting"), &SampleModels::fillWithKinds),
        VantraIconPalette::IconTintings(VantraIconPalette::IconTintingNormalForeground) |
            VantraIconPalette::IconTintingSelectedAlternate,
        false);
}

void addEditingAndDragging(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 3);
    QListView *edited = makeList(QStringLiteral("Editing"), &SampleModels::fillWithKinds);
    edited->openPersistentEditor(edited->model()->index(2, 0));
    grid.add(QStringLiteral("an open editor"), edited);
    QTableView *editedTable = makeTable(QStringLiteral("Editing a table"));
    editedTable->openPersistentEditor(editedTable->model()->index(2, 0));
    editedTable->openPersistentEditor(editedTable->model()->index(4, 2));
    grid.add(QStringLiteral("open editors in a table"), editedTable);

    QListView *movable = makeList(QStringLiteral("Movable rows"), &SampleModels::fillWithMovables);
    movable->setDragDropMode(QAbstractItemView::InternalMove);
    movable->setDefaultDropAction(Qt::MoveAction);
    grid.add(QStringLiteral("drag the rows to move them"), movable);
    grid.add(QStringLiteral("drop line above the third row"),
             makeDropLineList(QStringLiteral("Drop line between rows"), 2, false));
    grid.add(QStringLiteral("drop line for a drop onto the third row"),
             makeDropLineList(QStringLiteral("Drop line on a row"), 2, true));
}

void addManyRows(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 3, Qt::AlignTop);
    auto *list = setUp(new QListView, QStringLiteral("100,000 rows"), SampleModels::makeManyRows());
    list->setUniformItemSizes(true);
    list->setItemDelegate(new GalleryDelegate(VantraIconPalette::IconTintingForeground, false, list));
    grid.add(QStringLiteral("100,000 rows"), list);
    auto *row = new QSpinBox;
    row->setRange(1, SampleModels::kManyRows);
    row->setFixedWidth(110);
    row->setAccessibleName(QStringLiteral("Row to go to"));
    QObject::connect(row, &QSpinBox::valueChanged, list,
                     [list](int inRow) { list->setCurrentIndex(list->model()->index(inRow - 1, 0)); });
    row->setValue(SampleModels::kManyRows / 2);
    grid.add(QStringLiteral("row to go to"), row);
}

class ItemViewsPage : public GalleryPage
{
public:
    explicit ItemViewsPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addStockDelegate(addSection(
            QStringLiteral("Qt's delegate"),
            QStringLiteral("A list shows a tick for what is checked and nothing for what is not; trees and "
                           "tables show all three states.")));
        addHouseDelegate(addSection(QStringLiteral("The house delegate"),
                                    QStringLiteral("Subclasses set the ground of category rows, the indent "
                                                   "and the tinting of icons.")));
        addEditingAndDragging(addSection(QStringLiteral("Editing and dragging")));
        addManyRows(addSection(QStringLiteral("Many rows")));
    }
};
} // namespace

GalleryPage *makeItemViewsPage(QWidget *inParent)
{
    return new ItemViewsPage(inParent);
}
