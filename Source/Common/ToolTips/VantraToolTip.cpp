#include "ToolTips/VantraToolTip.h"

#include "Controls/VantraToolButton.h"
#include "ToolTips/VantraToolTipContent.h"
#include "Utilities/CommonTransition.h"

#include <QtCore/QList>

namespace {

constexpr int kFadeDuration = 150; // milliseconds

QRect globalRect(const QWidget &inWidget)
{
    return QRect(inWidget.mapToGlobal(QPoint(0, 0)), inWidget.size());
}

// Where the tip's top left corner may stand, in order of preference. The edges are QRect's inclusive ones, so
// a tip on the right or below covers the button's last pixel.
QList<QPoint> candidates(VantraToolButton::ToolTipDirection inDirection, const QRect &inButton,
                         const QSize &inTip)
{
    const int before = inButton.left() - inTip.width();
    const int above = inButton.top() - inTip.height();
    const int upwards = inButton.bottom() - inTip.height();
    switch (inDirection) {
    case VantraToolButton::ToolTipDirectionLeft: return {{before, inButton.top()}, {before, upwards}};
    case VantraToolButton::ToolTipDirectionRight: return {inButton.topRight(), {inButton.right(), upwards}};
    case VantraToolButton::ToolTipDirectionBelow:
        return {inButton.bottomLeft(), {inButton.right() - inTip.width(), inButton.bottom()}};
    case VantraToolButton::ToolTipDirectionAbove:
        return {{inButton.left(), above}, {inButton.right() - inTip.width(), above}};
    case VantraToolButton::ToolTipDirectionAuto:
        return {inButton.bottomLeft(), {before, inButton.top()}, {inButton.left(), above},
                inButton.topRight(),   {before, upwards},        {inButton.right(), upwards}};
    }
    return {};
}

QPoint nearest(const QList<QPoint> &inCorners, const QPoint &inGlobalPos)
{
    QPoint result;
    float best = static_cast<float>(0x7FFFFFFF);
    for (const QPoint &corner : inCorners) {
        const auto distance = static_cast<float>((corner - inGlobalPos).manhattanLength());
        if (distance < best) {
            best = distance;
            result = corner;
        }
    }
    return result;
}

// 0, 0 when the tip fits nowhere.
QPoint position(const VantraToolButton &inButton, const QSize &inTip, const QPoint &inGlobalPos)
{
    const QRect limits = inButton.window()->frameGeometry();
    QList<QPoint> corners = candidates(inButton.toolTipDirection(), globalRect(inButton), inTip);
    corners.removeIf([&](const QPoint &inCorner) { return !limits.contains(QRect(inCorner, inTip)); });
    return inButton.toolTipDirection() == VantraToolButton::ToolTipDirectionAuto
               ? nearest(corners, inGlobalPos)
               : corners.value(0);
}

} // namespace

VantraToolTip::VantraToolTip(QWidget *inParent)
    : VantraToolTipContentFrame(inParent), mContent(new VantraToolTipContent(body()))
{
    CommonTransition::addDropShadow(this);
}

VantraToolTip::~VantraToolTip() = default;

void VantraToolTip::showAndPosition(const QString &inImage, const QString &inTitle, const QString &inDetailed,
                                    const QString &inUrl, QPoint inGlobalPos, VantraToolButton *inButton)
{
    // Assistive technology would otherwise read out the window's title.
    setAccessibleName(inTitle);
    mContent->setToolTip(inImage, inTitle, inDetailed, inUrl);
    setFixedSize(sizeHint());
    setMinimumSize(sizeHint());
    show();
    CommonTransition::fadeIn(this, kFadeDuration);
    updateGeometry();
    move(position(*inButton, size(), inGlobalPos));
}
