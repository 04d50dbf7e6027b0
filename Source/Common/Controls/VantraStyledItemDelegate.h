#pragma once

// The delegate for item views in the house design: it hands the style a record with the tinting and the
// indent that plain options lack. Subclasses set those in initStyleOption:
//
//     void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
//     {
//         VantraStyledItemDelegate::initStyleOption(option, index);
//         if (option->version >= VantraStyleOptionViewItem::Version) {
//             static_cast<VantraStyleOptionViewItem *>(option)->iconTinting =
//                 VantraIconPalette::IconTintingForeground;
//         }
//     }
//
// Sizes are the base class's, which asks the style. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyledItemDelegate>

class VantraStyleOptionViewItem;

class VTWIDGETSLITE_EXPORT VantraStyledItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit VantraStyledItemDelegate(QObject *inParent = nullptr);
    ~VantraStyledItemDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    // Also called by the base class with plain options, for sizes: check the version before writing the
    // record's fields.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

    // Copies an option into a record: a record whole, a plain option with the defaults of the added fields.
    // Leaves the record as it is for an option of another type.
    void copyStyleOption(VantraStyleOptionViewItem &outRecord, const QStyleOptionViewItem &inOption) const;
};
