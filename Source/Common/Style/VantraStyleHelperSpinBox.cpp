#include "Style/VantraStyleHelperSpinBox.h"

#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "Theme/VantraCornerRadii.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QTextLayout>

void VantraStyleHelperSpinBox::drawComplex(const VantraStyleOptionSpinBox &option, QPainter *painter,
                                           const QWidget *) const
{
    const VantraPainterSaver saver(painter);
    painter->setBrush(mTheme->spinBoxBackgroundBrush(&option));
    drawRoundedBackground(painter, option.rect, mTheme->spinBoxRadii(&option));
    drawText(option, painter);
}

void VantraStyleHelperSpinBox::drawText(const VantraStyleOptionSpinBox &option, QPainter *painter) const
{
    if (option.displayText.isEmpty()) {
        return;
    }
    const VantraPainterSaver saver(painter);
    const QColor color = mTheme->spinBoxTextColor(&option);
    painter->setPen(color);
    const int radius = mTheme->spinBoxRadii(&option).topLeft();
    const QMargins margins = paddingWithRadii(mTheme->spinBoxPadding(&option), radius, radius);
    const QRect rect = painter->boundingRect(option.rect.adjusted(margins.left(), 0, -margins.right(), 0),
                                             Qt::AlignLeft | Qt::AlignVCenter, option.displayText);

    QTextLayout::FormatRange emphasis{0, 0, QTextCharFormat()};
    if (option.highlightStart < option.highlightEnd) {
        emphasis.start = option.highlightStart;
        emphasis.length = option.highlightEnd - option.highlightStart;
        emphasis.format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
        emphasis.format.setFontWeight(QFont::Bold);
        emphasis.format.setUnderlineColor(color);
    }

    QTextLayout layout(option.displayText, painter->font());
    const double leading = painter->fontMetrics().leading();
    double y = 0.0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(rect.width());
        y += leading;
        line.setPosition(QPointF(0.0, y));
        y += line.height();
    }
    layout.endLayout();
    layout.draw(painter, rect.topLeft(), {emphasis});
}

QSize VantraStyleHelperSpinBox::size(const VantraStyleOptionSpinBox &option, const QWidget *) const
{
    const QSize text = textSize(option.displayText, option.fontMetrics);
    const int spacing = text.width() > 0 ? mTheme->spinBoxSpacing(&option) : 0;
    const QSize content(text.width() + spacing + kArrowExtent, qMax(text.height(), kArrowExtent));
    const QMargins padding = mTheme->spinBoxPadding(&option);
    const int radius = content.grownBy(padding).height() / 2;
    return content.grownBy(paddingWithRadii(padding, radius, radius));
}
