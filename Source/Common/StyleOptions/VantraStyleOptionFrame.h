#pragma once

// What a frame tells the style: which corners are round, by how much, and whether it lies over the picture.

#include "Controls/VantraFrame.h"
#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QStyleOption>

class VTWIDGETSLITE_EXPORT VantraStyleOptionFrame : public QStyleOptionFrame
{
public:
    using QtOption = QStyleOptionFrame;
    enum StyleOptionType { Type = SO_Frame };
    enum StyleOptionVersion { Version = 2 };

    VantraFrame::CornerShapes cornerShapes = VantraFrame::CornerShapeNone; // which corners are round
    int cornerRadius = 0x7FFFFFFF; // logical pixels; the default stands for the largest that fits
    bool hudOverlay = false;       // the frame lies over the picture

    VantraStyleOptionFrame() : VantraStyleOptionFrame(Version) {}
    VantraStyleOptionFrame(const VantraStyleOptionFrame &inOther) : VantraStyleOptionFrame()
    {
        *this = inOther;
    }
    VantraStyleOptionFrame &operator=(const VantraStyleOptionFrame &) = default;

protected:
    explicit VantraStyleOptionFrame(int inVersion) : QStyleOptionFrame(inVersion) {}
};
