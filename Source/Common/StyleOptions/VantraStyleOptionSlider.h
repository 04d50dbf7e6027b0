#pragma once

// What a slider tells the style: a gradient for its groove and a handle that grows.

#include "VTWidgetsLiteExport.h"

#include <QtGui/QBrush>
#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionSlider : public QStyleOptionSlider
{
public:
    using QtOption = QStyleOptionSlider;
    enum StyleOptionType { Type = SO_Slider };
    enum StyleOptionVersion { Version = 2 };

    QGradientStops gradientStops; // when not empty, the groove is this gradient and no value span is painted
    bool enlargeHandle = false;   // the handle grows while pressed or hovered

    VantraStyleOptionSlider() : VantraStyleOptionSlider(Version) {}
    VantraStyleOptionSlider(const VantraStyleOptionSlider &inOther) : VantraStyleOptionSlider()
    {
        *this = inOther;
    }
    VantraStyleOptionSlider &operator=(const VantraStyleOptionSlider &) = default;

protected:
    explicit VantraStyleOptionSlider(int inVersion) : QStyleOptionSlider(inVersion) {}
};
