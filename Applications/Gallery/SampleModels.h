#pragma once

// What the page of item views shows in its views.

#include <QtCore/qnamespace.h>

class QAbstractItemModel;
class QStandardItem;
class QStandardItemModel;

namespace SampleModels {
// True in rows that head a category.
constexpr int kIsCategoryRole = Qt::UserRole + 1;

constexpr int kManyRows = 100000;

// Every kind of row that the design knows.
void fillWithKinds(QStandardItem *ioParent);

// Rows under two category rows.
void fillWithCategories(QStandardItem *ioParent);

// Rows between which others can be dropped, but not into them.
void fillWithMovables(QStandardItem *ioParent);

// Two parents, categories or plain, with children and values in a second column.
void fillTree(QStandardItemModel *ioModel, bool inCategories);

// Icons, check marks and numbers in three columns.
void fillTable(QStandardItemModel *ioModel);

// A list of kManyRows rows, for the caller to own.
QAbstractItemModel *makeManyRows();
} // namespace SampleModels
