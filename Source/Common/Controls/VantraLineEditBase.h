#pragma once

// The library's line edit, without a font of its own.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QLineEdit>

class VTWIDGETSLITE_EXPORT VantraLineEditBase : public QLineEdit
{
    Q_OBJECT

public:
    enum BorderStyle {
        BorderNone = 0,      // a ground only while hovered
        BorderHighlight = 1, // always a ground
        BorderStandard = 2,  // a pill
    };
    Q_ENUM(BorderStyle)

    using QLineEdit::QLineEdit;
};
