#pragma once

// Rows of item views, in a fixed order from the left: decoration, check indicator, text. Any other position
// of the decoration stops the process.

#include "Style/VantraStyleHelper.h"

class QStyleOption;
class VantraStyleOptionViewItem;

// QStyle::State_Editing. Newer Qt deprecates the name, since its own views don't set the state; other callers
// may.
constexpr QStyle::StateFlag kStateEditing = static_cast<QStyle::StateFlag>(0x00400000);

class VantraStyleHelperItemView : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawItem(VantraStyleOptionViewItem &item, QPainter *painter, const QWidget *widget) const;
    void drawPanel(const VantraStyleOptionViewItem &option, QPainter *painter, const QWidget *widget) const;
    void drawBranch(const VantraStyleOptionViewItem &option, QPainter *painter, const QWidget *widget) const;
    void drawDropIndicator(const QStyleOption &option, QPainter *painter, const QWidget *widget) const;
    QRect subElementRect(const VantraStyleOptionViewItem &option, QStyle::SubElement element,
                         const QWidget *widget) const;
    QSize size(VantraStyleOptionViewItem &item, const QWidget *widget) const;

private:
    void drawCheck(const VantraStyleOptionViewItem &option, QPainter *painter, const QWidget *widget) const;
    void drawDecoration(const VantraStyleOptionViewItem &option, QPainter *painter,
                        const QWidget *widget) const;
    void drawText(const VantraStyleOptionViewItem &option, QPainter *painter, const QWidget *widget) const;
};
