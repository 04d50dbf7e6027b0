#pragma once

// The library's combo box, without a font of its own.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QComboBox>

class VTWIDGETSLITE_EXPORT VantraComboBoxBase : public QComboBox
{
    Q_OBJECT

public:
    enum BackgroundStyle {
        BackgroundStyleNone = 0,     // no pill
        BackgroundStyleStandard = 1, // a filled pill
        BackgroundTransparent = 2,   // a transparent pill, with its room kept
    };
    Q_ENUM(BackgroundStyle)

    using QComboBox::QComboBox;
};
