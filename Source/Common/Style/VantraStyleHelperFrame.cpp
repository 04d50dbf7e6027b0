#include "Style/VantraStyleHelperFrame.h"

#include "StyleOptions/VantraStyleOptionFramePane.h"
#include "Theme/VantraStyleTheme.h"

void VantraStyleHelperFrame::drawBackground(const VantraStyleOptionFrame &option, QPainter *painter,
                                            const QWidget *) const
{
    painter->setBrush(mTheme->frameBrush(&option));
    painter->setPen(Qt::NoPen);
    const int r = option.cornerRadius;
    switch (static_cast<int>(option.cornerShapes)) {
    case VantraFrame::CornerShapeRoundTop: drawRoundedBackground(painter, option.rect, r, r, 0, 0); break;
    case VantraFrame::CornerShapeRoundLeft: drawRoundedBackground(painter, option.rect, r, 0, r, 0); break;
    case VantraFrame::CornerShapeRoundRight: drawRoundedBackground(painter, option.rect, 0, r, 0, r); break;
    case VantraFrame::CornerShapeRoundBottom: drawRoundedBackground(painter, option.rect, 0, 0, r, r); break;
    case VantraFrame::CornerShapeRoundFull: drawRoundedBackground(painter, option.rect, r, r, r, r); break;
    default: painter->drawRect(option.rect); break;
    }
}

void VantraStyleHelperFrame::drawShaped(const VantraStyleOptionFrame &option, QPainter *painter,
                                        const QWidget *widget) const
{
    if (option.version >= static_cast<int>(VantraStyleOptionFramePane::Version)) {
        drawPane(static_cast<const VantraStyleOptionFramePane &>(option), painter);
        return;
    }
    const QRectF rect(option.rect);
    switch (option.frameShape) {
    case QFrame::Box:
        painter->setBrush(Qt::NoBrush);
        painter->setPen(mTheme->frameLinePen(&option));
        painter->drawRect(option.rect);
        break;
    case QFrame::Panel:
    case QFrame::WinPanel:
    case QFrame::StyledPanel: drawBackground(option, painter, widget); break;
    case QFrame::HLine: {
        const double y = rect.top() + rect.height() * 0.5;
        painter->setBrush(Qt::NoBrush);
        painter->setPen(mTheme->frameLinePen(&option));
        painter->drawLine(QPointF(rect.left(), y), QPointF(option.rect.right() + 1, y));
        break;
    }
    case QFrame::VLine: {
        const double x = rect.left() + rect.width() * 0.5;
        painter->setBrush(Qt::NoBrush);
        painter->setPen(mTheme->frameLinePen(&option));
        painter->drawLine(QPointF(x, rect.top()), QPointF(x, rect.top() + rect.height()));
        break;
    }
    default: break;
    }
}

void VantraStyleHelperFrame::drawPane(const VantraStyleOptionFramePane &option, QPainter *painter) const
{
    switch (option.paneStyle) {
    case VantraFramePane::PaneStyleStandard: drawStandardPane(option, painter); break;
    case VantraFramePane::PaneStyleList: drawListPane(option, painter); break;
    case VantraFramePane::PaneStyleSubPane:
        // The last sub-pane of a run has no line under it.
        if ((option.panePart == VantraFramePane::PanePartContainer ||
             option.panePart == VantraFramePane::PanePartHeader) &&
            !option.paneState.testFlag(VantraFramePane::PaneStateLastPane)) {
            drawPaneLine(option, painter);
        }
        break;
    }
}

void VantraStyleHelperFrame::drawStandardPane(const VantraStyleOptionFramePane &option,
                                              QPainter *painter) const
{
    const VantraFramePane::PanePart part = option.panePart;
    if (part == VantraFramePane::PanePartNone) {
        return;
    }
    if (!option.paneState.testFlag(VantraFramePane::PaneStateExpanded)) {
        if (!option.paneState.testFlag(VantraFramePane::PaneStateExpandedAfter) &&
            part != VantraFramePane::PanePartBody) {
            drawPaneLine(option, painter);
        }
        return;
    }
    const VantraPainterSaver saver(painter);
    const int radius = mTheme->paneRadius(&option);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QBrush(mTheme->paneBackgroundColor(&option)));
    if (part == VantraFramePane::PanePartContainer) {
        painter->drawRoundedRect(QRectF(option.rect), radius, radius, Qt::AbsoluteSize);
    } else if (part == VantraFramePane::PanePartHeader) {
        drawRoundedBackground(painter, option.rect, radius, radius, 0, 0);
    } else {
        drawRoundedBackground(painter, option.rect, 0, 0, radius, radius);
    }
}

void VantraStyleHelperFrame::drawListPane(const VantraStyleOptionFramePane &option, QPainter *painter) const
{
    if (option.panePart == VantraFramePane::PanePartNone) {
        return;
    }
    if (option.paneState.testFlag(VantraFramePane::PaneStateSelected)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(QBrush(mTheme->paneBackgroundColor(&option)));
        painter->drawRect(QRectF(option.rect));
    } else if (option.panePart != VantraFramePane::PanePartBody) {
        drawPaneLine(option, painter);
    }
}

void VantraStyleHelperFrame::drawPaneLine(const VantraStyleOptionFramePane &option, QPainter *painter) const
{
    drawBottomLine(painter, option.rect, mTheme->paneLineColor(&option), mTheme->paneLineWidth(&option));
}
