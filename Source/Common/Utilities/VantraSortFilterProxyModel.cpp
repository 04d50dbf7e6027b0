#include "Utilities/VantraSortFilterProxyModel.h"

#include "VTQtSysInfo.h"

#include <QtCore/QLocale>
#include <QtCore/QStringListModel>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

// The sort keys of the rows that one run of sort() has compared so far. A collator needs several times as
// long to compare two texts as to compare their keys, and a sort compares each text some twenty times.
class VantraSortFilterProxyModel::KeyCache
{
public:
    explicit KeyCache(const QCollator &inCollator) : mCollator(inCollator)
    {
        // The keys of the "C" locale don't agree with its comparison. Those of Windows don't either, as Qt
        // compares their bytes in pairs and what was in the memory after them.
        mUsable =
            !VTQtSysInfo::isWinPlatform() && inCollator.locale().language() != QLocale::C &&
            inCollator.sortKey(QStringLiteral("a")).compare(inCollator.sortKey(QStringLiteral("b"))) < 0;
    }

    bool isUsable() const { return mUsable; }
    void drop() { mUsable = false; }

    // The indexes are of one parent and column, as in each sort.
    bool lessThan(const QModelIndex &inLeft, const QModelIndex &inRight, const QAbstractItemModel &inModel)
    {
        const std::size_t left = enter(inLeft, inModel);
        const std::size_t right = enter(inRight, inModel);
        return mEntries[left].key->compare(*mEntries[right].key) < 0;
    }

private:
    // Each row has one place, which the next parent's children take over.
    struct Entry
    {
        QModelIndex index;
        std::optional<QCollatorSortKey> key;
    };

    std::size_t enter(const QModelIndex &inIndex, const QAbstractItemModel &inModel)
    {
        const auto place = static_cast<std::size_t>(inIndex.row());
        if (place >= mEntries.size()) {
            const auto rowCount = static_cast<std::size_t>(inModel.rowCount(inIndex.parent()));
            mEntries.resize(std::max(rowCount, place + 1));
        }
        if (mEntries[place].index != inIndex) {
            QCollatorSortKey key = mCollator.sortKey(inModel.data(inIndex, Qt::DisplayRole).toString());
            mEntries[place].index = inIndex;
            mEntries[place].key = std::move(key);
        }
        return place;
    }

    const QCollator &mCollator;
    std::vector<Entry> mEntries;
    bool mUsable = true;
};

VantraSortFilterProxyModel::VantraSortFilterProxyModel(QObject *inParent) : QSortFilterProxyModel(inParent)
{
    setSortLocaleAware(true);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    mCollator.setNumericMode(true);
    mCollator.setCaseSensitivity(Qt::CaseInsensitive);
}

VantraSortFilterProxyModel::~VantraSortFilterProxyModel() = default;

void VantraSortFilterProxyModel::setModelAndSort(QComboBox *inComboBox)
{
    auto *proxy = new VantraSortFilterProxyModel(inComboBox);
    QAbstractItemModel *source = inComboBox->model();
    proxy->setSourceModel(source);
    proxy->setDynamicSortFilter(true);
    // Before setModel, which deletes a model that the combo box owns.
    source->setParent(proxy);
    inComboBox->setModel(proxy);
    inComboBox->model()->sort(0, Qt::AscendingOrder);
}

void VantraSortFilterProxyModel::setModelAndSort(QListView *inView)
{
    setModelAndSort(static_cast<QAbstractItemView *>(inView));
}

void VantraSortFilterProxyModel::setModelAndSort(QTableView *inView)
{
    setModelAndSort(static_cast<QAbstractItemView *>(inView));
}

void VantraSortFilterProxyModel::setModelAndSort(QTreeView *inView)
{
    setModelAndSort(static_cast<QAbstractItemView *>(inView));
}

void VantraSortFilterProxyModel::setModelAndSort(QAbstractItemView *inView)
{
    auto *proxy = new VantraSortFilterProxyModel(inView);
    QAbstractItemModel *source = inView->model();
    proxy->setSourceModel(source);
    source->setParent(proxy);
    inView->setModel(proxy);
    inView->model()->sort(0, Qt::AscendingOrder);
}

void VantraSortFilterProxyModel::detachSortFilterProxyModel(QComboBox *inComboBox)
{
    auto *proxy = qobject_cast<QSortFilterProxyModel *>(inComboBox->model());
    if (proxy == nullptr) {
        return;
    }
    proxy->setParent(nullptr);
    QAbstractItemModel *source = proxy->sourceModel();
    if (source == nullptr) {
        return;
    }
    source->setParent(inComboBox);
    inComboBox->setModel(source);
}

void VantraSortFilterProxyModel::sortStringList(QList<QString> &ioList)
{
    QStringListModel model(ioList);
    VantraSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    model.setParent(&proxy);
    proxy.sort(0, Qt::AscendingOrder);
    QList<QString> sorted;
    sorted.reserve(proxy.rowCount());
    for (int row = 0; row < proxy.rowCount(); ++row) {
        sorted.append(proxy.data(proxy.index(row, 0), Qt::DisplayRole).toString());
    }
    ioList.clear();
    ioList.append(sorted);
    model.setParent(nullptr);
    proxy.setSourceModel(nullptr);
}

void VantraSortFilterProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    const auto dropKeys = [this] {
        if (mKeys != nullptr) {
            mKeys->drop();
        }
    };
    dropKeys();
    for (const QMetaObject::Connection &connection : std::as_const(mSourceConnections)) {
        disconnect(connection);
    }
    mSourceConnections.clear();
    // Before the base class makes its connections, so that it never sorts by keys of earlier data.
    if (sourceModel != nullptr) {
        using Model = QAbstractItemModel;
        mSourceConnections = {
            connect(sourceModel, &Model::dataChanged, this, dropKeys),
            connect(sourceModel, &Model::layoutChanged, this, dropKeys),
            connect(sourceModel, &Model::modelReset, this, dropKeys),
            connect(sourceModel, &Model::rowsInserted, this, dropKeys),
            connect(sourceModel, &Model::rowsRemoved, this, dropKeys),
            connect(sourceModel, &Model::rowsMoved, this, dropKeys),
            connect(sourceModel, &Model::columnsInserted, this, dropKeys),
            connect(sourceModel, &Model::columnsRemoved, this, dropKeys),
            connect(sourceModel, &Model::columnsMoved, this, dropKeys),
        };
    }
    QSortFilterProxyModel::setSourceModel(sourceModel);
}

void VantraSortFilterProxyModel::sort(int column, Qt::SortOrder order)
{
    if (mKeys != nullptr) {
        // A slot of a sort that is under way sorts again.
        mKeys->drop();
        QSortFilterProxyModel::sort(column, order);
        return;
    }
    mKeys = std::make_unique<KeyCache>(mCollator);
    QSortFilterProxyModel::sort(column, order);
    mKeys.reset();
}

bool VantraSortFilterProxyModel::lessThan(const QModelIndex &inLeft, const QModelIndex &inRight) const
{
    const QAbstractItemModel &model = *sourceModel();
    if (mKeys != nullptr && mKeys->isUsable()) {
        return mKeys->lessThan(inLeft, inRight, model);
    }
    const QString left = model.data(inLeft, Qt::DisplayRole).toString();
    const QString right = model.data(inRight, Qt::DisplayRole).toString();
    return mCollator.compare(left, right) < 0;
}
