#include "Style/VantraStyleHelperGroupBox.h"

#include "Style/VantraStyleHelperFrame.h"
#include "StyleOptions/VantraStyleOptionFrame.h"
#include "StyleOptions/VantraStyleOptionGroupBox.h"
#include "Theme/VantraStyleTheme.h"

namespace {

constexpr double kPlateRadius = 5.0; // what groupBoxRadii answers

} // namespace

void VantraStyleHelperGroupBox::drawFrame(const VantraStyleOptionFrame &option,
                                          const VantraStyleHelperFrame &frame, QPainter *painter,
                                          const QWidget *widget) const
{
    VantraStyleOptionFrame ground = option;
    ground.features = QStyleOptionFrame::Flat;
    frame.drawBackground(ground, painter, widget);

    VantraStyleOptionGroupBox groupBox;
    static_cast<QStyleOption &>(groupBox) = option;
    painter->setBrush(mTheme->groupBoxFrameBrush(&groupBox));
    painter->drawRoundedRect(groupBox.rect, kPlateRadius, kPlateRadius, Qt::AbsoluteSize);
    painter->setBrush(mTheme->groupBoxContentsBrush(&groupBox));
    const QRect contents =
        style()->subControlRect(QStyle::CC_GroupBox, &groupBox, QStyle::SC_GroupBoxContents, widget);
    painter->drawRoundedRect(contents, kPlateRadius, kPlateRadius, Qt::AbsoluteSize);
}
