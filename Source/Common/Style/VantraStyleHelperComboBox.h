#pragma once

// Combo boxes: the pill, the current text with its arrow, and the width of the popup.

#include "Style/VantraStyleHelper.h"

class VantraStyleOptionComboBox;

class VantraStyleHelperComboBox : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawComplex(VantraStyleOptionComboBox &option, QPainter *painter, const QWidget *widget) const;
    void drawPanel(const VantraStyleOptionComboBox &option, QPainter *painter, const QWidget *widget) const;
    void drawLabel(VantraStyleOptionComboBox &option, QPainter *painter, const QWidget *widget) const;
    QSize size(const VantraStyleOptionComboBox &option, const QWidget *widget) const;
    QRect subControlRect(const VantraStyleOptionComboBox &option, QStyle::SubControl subControl,
                         const QWidget *widget) const;

private:
    QRect popupRect(const VantraStyleOptionComboBox &option, const QWidget *widget) const;
};
