#include "Style/VantraStyleHelperSplitter.h"

#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QStyleOption>

void VantraStyleHelperSplitter::drawSplitter(const QStyleOption &option, QPainter *painter,
                                             const QWidget *) const
{
    if (!(option.state & (QStyle::State_MouseOver | QStyle::State_Sunken))) {
        return;
    }
    const VantraPainterSaver saver(painter);
    painter->setPen(Qt::NoPen);
    painter->fillRect(option.rect, mTheme->splitterBackgroundBrush(&option));
    painter->setBrush(mTheme->splitterHandleBrush(&option));

    // The grip: the first and the last third of the handle's thickness.
    const int length = mTheme->splitterHandleSize(&option);
    const QPoint centre = option.rect.center();
    if (option.state & QStyle::State_Horizontal) {
        const int third = option.rect.width() / 3;
        painter->drawRect(0, centre.y() - length / 2, third, length);
        painter->drawRect(2 * third, centre.y() - length / 2, third, length);
    } else {
        const int third = option.rect.height() / 3;
        painter->drawRect(centre.x() - length / 2, 0, length, third);
        painter->drawRect(centre.x() - length / 2, 2 * third, length, third);
    }
}
