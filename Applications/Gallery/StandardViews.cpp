#include "StandardSections.h"

#include "DrawnIcons.h"
#include "GalleryPage.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr QSize kViewSize(226, 170);

// Paints the second row as if the pointer were over it.
class HoverDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *ioOption, const QModelIndex &inIndex) const override
    {
        QStyledItemDelegate::initStyleOption(ioOption, inIndex);
        if (inIndex.row() == 1 && ioOption->state.testFlag(QStyle::State_Enabled))
            ioOption->state |= QStyle::State_MouseOver;
    }
};

QListWidget *makeList()
{
    auto *list = new QListWidget;
    for (const char *text : {"Plain", "Hovered", "Selected", "Disabled"})
        list->addItem(QLatin1String(text));
    list->addItem(new QListWidgetItem(DrawnIcons::folder(), QStringLiteral("With an icon")));
    list->addItem(QStringLiteral("A text that is longer than the list is wide, and then some"));
    list->item(2)->setSelected(true);
    list->item(3)->setFlags(Qt::NoItemFlags);
    list->setItemDelegate(new HoverDelegate(list));
    list->setTextElideMode(Qt::ElideRight);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setFixedSize(kViewSize);
    return list;
}

QListWidget *makeCheckList()
{
    auto *list = new QListWidget;
    for (const auto &[text, state] :
         {std::pair("Off", Qt::Unchecked), std::pair("Partly", Qt::PartiallyChecked),
          std::pair("On", Qt::Checked)}) {
        auto *item = new QListWidgetItem(QLatin1String(text), list);
        item->setCheckState(state);
    }
    auto *withIcon = new QListWidgetItem(DrawnIcons::picture(), QStringLiteral("On, with icon"), list);
    withIcon->setCheckState(Qt::Checked);
    list->setFixedSize(kViewSize);
    return list;
}

QTreeWidget *makeTree()
{
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Size")});
    auto *open = new QTreeWidgetItem(tree, {QStringLiteral("Open folder"), QStringLiteral("3")});
    open->setIcon(0, DrawnIcons::folder());
    for (const auto &[text, state] :
         {std::pair("Off", Qt::Unchecked), std::pair("Partly", Qt::PartiallyChecked),
          std::pair("On", Qt::Checked)}) {
        auto *child = new QTreeWidgetItem(open, {QLatin1String(text), QStringLiteral("1")});
        child->setCheckState(0, state);
    }
    open->setExpanded(true);
    open->child(2)->setSelected(true);
    auto *closed = new QTreeWidgetItem(tree, {QStringLiteral("Closed folder"), QStringLiteral("1")});
    new QTreeWidgetItem(closed, {QStringLiteral("Child")});
    tree->setColumnWidth(0, 150);
    tree->setFixedSize(kViewSize);
    return tree;
}

QTableWidget *makeTable()
{
    auto *table = new QTableWidget(4, 3);
    table->setHorizontalHeaderLabels({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            table->setItem(row, column,
                           new QTableWidgetItem(QStringLiteral("%1.%2").arg(row + 1).arg(column + 1)));
    }
    table->item(1, 1)->setSelected(true);
    table->item(2, 2)->setBackground(QColor(60, 80, 60));
    table->horizontalHeader()->setDefaultSectionSize(64);
    table->setFixedSize(kViewSize);
    return table;
}
} // namespace

void addItemViews(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    grid.add(QStringLiteral("list"), makeList());
    grid.add(QStringLiteral("list with check marks"), makeCheckList());
    grid.add(QStringLiteral("tree"), makeTree());
    grid.add(QStringLiteral("table"), makeTable());
    QListWidget *disabledList = makeList();
    disabledList->setEnabled(false);
    grid.add(QStringLiteral("list, disabled"), disabledList);
    QTreeWidget *disabledTree = makeTree();
    disabledTree->setEnabled(false);
    grid.add(QStringLiteral("tree, disabled"), disabledTree);
}
