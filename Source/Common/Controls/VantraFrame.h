#pragma once

// The library's plain panel: a QFrame whose corner shapes the style rounds.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QFrame>

class VTWIDGETSLITE_EXPORT VantraFrame : public QFrame
{
    Q_OBJECT

public:
    // Which corners are round. The sides and the full set are what the style paints; a single corner paints
    // square.
    enum CornerShape {
        CornerShapeNone = 0x0,
        CornerShapeRoundTopLeft = 0x1,
        CornerShapeRoundTopRight = 0x2,
        CornerShapeRoundBottomLeft = 0x4,
        CornerShapeRoundBottomRight = 0x8,
        CornerShapeRoundTop = 0x3,
        CornerShapeRoundBottom = 0xC,
        CornerShapeRoundLeft = 0x5,
        CornerShapeRoundRight = 0xA,
        CornerShapeRoundFull = 0xF,
    };
    Q_DECLARE_FLAGS(CornerShapes, CornerShape)
    Q_FLAG(CornerShapes)

    using QFrame::QFrame;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VantraFrame::CornerShapes)
