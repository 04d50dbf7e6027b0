#include "SampleModels.h"

#include "DrawnIcons.h"

#include <QtCore/QAbstractListModel>
#include <QtGui/QStandardItemModel>

namespace {
// Keeps none of its rows.
class ManyRowsModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &inParent) const override
    {
        return inParent.isValid() ? 0 : SampleModels::kManyRows;
    }

    QVariant data(const QModelIndex &inIndex, int inRole) const override
    {
        if (inRole == Qt::DisplayRole)
            return QStringLiteral("Picture %1").arg(inIndex.row() + 1, 6, 10, QLatin1Char('0'));
        if (inRole == Qt::DecorationRole)
            return mIcon;
        return QVariant();
    }

private:
    const QIcon mIcon = DrawnIcons::picture();
};

QStandardItem *makeItem(const QString &inText, const QIcon &inIcon = QIcon())
{
    auto *item = new QStandardItem(inText);
    if (!inIcon.isNull())
        item->setIcon(inIcon);
    return item;
}

QStandardItem *makeCheckItem(const QString &inText, Qt::CheckState inState, const QIcon &inIcon = QIcon())
{
    QStandardItem *item = makeItem(inText, inIcon);
    item->setCheckable(true);
    item->setCheckState(inState);
    return item;
}

QStandardItem *makeCategory(const QString &inText)
{
    QStandardItem *item = makeItem(inText);
    item->setData(true, SampleModels::kIsCategoryRole);
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}
} // namespace

void SampleModels::fillWithKinds(QStandardItem *ioParent)
{
    ioParent->appendRow(makeItem(QStringLiteral("Plain")));
    ioParent->appendRow(makeItem(QStringLiteral("Selected"), DrawnIcons::picture()));
    ioParent->appendRow(makeItem(QStringLiteral("With an icon"), DrawnIcons::folder()));
    ioParent->appendRow(makeCheckItem(QStringLiteral("Off"), Qt::Unchecked));
    ioParent->appendRow(makeCheckItem(QStringLiteral("Partly"), Qt::PartiallyChecked));
    ioParent->appendRow(makeCheckItem(QStringLiteral("On"), Qt::Checked));
    ioParent->appendRow(makeCheckItem(QStringLiteral("On, with icon"), Qt::Checked, DrawnIcons::adjust()));
    ioParent->appendRow(
        makeItem(QStringLiteral("A text that is longer than the view is wide, and then some more")));
    QStandardItem *disabled = makeCheckItem(QStringLiteral("Disabled"), Qt::Checked, DrawnIcons::folder());
    disabled->setEnabled(false);
    ioParent->appendRow(disabled);
}

void SampleModels::fillWithCategories(QStandardItem *ioParent)
{
    ioParent->appendRow(makeCategory(QStringLiteral("Places")));
    for (const char *place : {"Harbour", "Orchard"})
        ioParent->appendRow(makeItem(QLatin1String(place)));
    ioParent->appendRow(makeCategory(QStringLiteral("Seasons")));
    for (const char *season : {"Spring", "Autumn", "Winter"})
        ioParent->appendRow(makeItem(QLatin1String(season)));
}

void SampleModels::fillTree(QStandardItemModel *ioModel, bool inCategories)
{
    ioModel->setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Size")});
    for (const char *name : {"Open folder", "Closed folder"}) {
        QStandardItem *parent = inCategories ? makeCategory(QLatin1String(name))
                                             : makeItem(QLatin1String(name), DrawnIcons::folder());
        ioModel->appendRow({parent, makeItem(QStringLiteral("4"))});
        parent->appendRow(
            {makeItem(QStringLiteral("Picture"), DrawnIcons::picture()), makeItem(QStringLiteral("24"))});
        for (const auto &[text, state] :
             {std::pair("Off", Qt::Unchecked), std::pair("Partly", Qt::PartiallyChecked),
              std::pair("On", Qt::Checked)})
            parent->appendRow({makeCheckItem(QLatin1String(text), state), makeItem(QStringLiteral("8"))});
    }
}

void SampleModels::fillTable(QStandardItemModel *ioModel)
{
    ioModel->setRowCount(6);
    ioModel->setColumnCount(3);
    ioModel->setHorizontalHeaderLabels(
        {QStringLiteral("Name"), QStringLiteral("Ready"), QStringLiteral("Size")});
    for (int row = 0; row < ioModel->rowCount(); ++row) {
        ioModel->setItem(row, 0, makeItem(QStringLiteral("Picture %1").arg(row + 1), DrawnIcons::picture()));
        ioModel->setItem(row, 1, makeCheckItem(QString(), static_cast<Qt::CheckState>(row % 3)));
        ioModel->setItem(row, 2, makeItem(QString::number((row * 37 + 12) % 90)));
        ioModel->item(row, 2)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    ioModel->item(3, 0)->setEnabled(false);
}

void SampleModels::fillWithMovables(QStandardItem *ioParent)
{
    for (const char *text : {"First", "Second", "Third", "Fourth", "Fifth", "Sixth"}) {
        QStandardItem *item = makeItem(QLatin1String(text), DrawnIcons::picture());
        item->setDropEnabled(false);
        ioParent->appendRow(item);
    }
}

QAbstractItemModel *SampleModels::makeManyRows()
{
    return new ManyRowsModel;
}
