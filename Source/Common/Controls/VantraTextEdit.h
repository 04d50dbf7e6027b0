#pragma once

// The library's box for plain text of several lines.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QTextEdit>

class VTWIDGETSLITE_EXPORT VantraTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    enum BorderStyle {
        BorderNone = 0,      // a ground only while hovered
        BorderHighlight = 1, // always a ground
        BorderStandard = 2,  // a pill
    };
    Q_ENUM(BorderStyle)

    using QTextEdit::QTextEdit;
};
