#pragma once

// The delegate of combo boxes: separators are low rows with a line and nothing else; all other rows are those
// of VantraStyledItemDelegate.
//
//     comboBox->setItemDelegate(new VantraComboBoxStyleItemDelegate(comboBox));
//
// VantraComboBoxBase sets it by itself. GUI thread only.

#include "Controls/VantraStyledItemDelegate.h"

class VTWIDGETSLITE_EXPORT VantraComboBoxStyleItemDelegate : public VantraStyledItemDelegate
{
    Q_OBJECT

public:
    explicit VantraComboBoxStyleItemDelegate(QObject *inParent = nullptr);
    ~VantraComboBoxStyleItemDelegate() override;

    // True for a row that QComboBox::insertSeparator has made. False for an invalid index.
    static bool isSeparator(const QModelIndex &inIndex);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    // A separator is 5 logical pixels high.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
