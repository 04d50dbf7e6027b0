#pragma once

// A push button in the house font, which lets the mouse through to what lies beneath while it is disabled.
// Base of VantraButton and of buttons that paint themselves.
//
//     class RoundButton : public VantraButtonBase { ... };
//
// Needs the loaded fonts of VantraFont. Layouts count its whole rectangle (Qt::WA_LayoutUsesWidgetRect). GUI
// thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QPushButton>

class VTWIDGETSLITE_EXPORT VantraButtonBase : public QPushButton
{
    Q_OBJECT

public:
    explicit VantraButtonBase(QWidget *inParent = nullptr);
    ~VantraButtonBase() override;

protected:
    void changeEvent(QEvent *event) override;
};
