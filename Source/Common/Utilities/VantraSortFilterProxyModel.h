#pragma once

// Sorts as a person expects: without regard to case, and numbers within a text by their value, so that
// "Item 2" comes before "Item 10".
//
//     VantraSortFilterProxyModel::setModelAndSort(comboBox);   // sorts what the combo box already has
//     ...
//     VantraSortFilterProxyModel::detachSortFilterProxyModel(comboBox);
//
// Rows are compared by their Qt::DisplayRole as text, whatever sortRole() and the type of the data; the order
// of letters is that of the default locale when the model was made. Equal texts keep their order. GUI thread
// only.

#include "VTWidgetsLiteExport.h"

#include <QtCore/QCollator>
#include <QtCore/QList>
#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QString>

#include <memory>

class QAbstractItemView;
class QComboBox;
class QListView;
class QTableView;
class QTreeView;

class VTWIDGETSLITE_EXPORT VantraSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit VantraSortFilterProxyModel(QObject *inParent = nullptr);
    ~VantraSortFilterProxyModel() override;

    // Puts a sorted model between the widget and its present model. From then on the widget owns the sorted
    // model, which owns the other one; model() of the widget is the sorted one, and so are the indexes that
    // the widget deals in. A combo box stays sorted when its rows change, a view only as long as
    // QSortFilterProxyModel's default has it so.
    static void setModelAndSort(QComboBox *inComboBox);
    static void setModelAndSort(QListView *inView);
    static void setModelAndSort(QTableView *inView);
    static void setModelAndSort(QTreeView *inView);

    // Gives a combo box its unsorted model back, and that model to the combo box. The sorted model is left to
    // nobody; who wants it gone deletes it. Does nothing for a combo box without a sorted model.
    static void detachSortFilterProxyModel(QComboBox *inComboBox);

    // Works without a widget, in any thread.
    static void sortStringList(QList<QString> &ioList);

    void setSourceModel(QAbstractItemModel *sourceModel) override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    bool lessThan(const QModelIndex &inLeft, const QModelIndex &inRight) const override;

private:
    class KeyCache;

    static void setModelAndSort(QAbstractItemView *inView);

    QCollator mCollator;
    std::unique_ptr<KeyCache> mKeys; // only while sort() runs
    QList<QMetaObject::Connection> mSourceConnections;
};
