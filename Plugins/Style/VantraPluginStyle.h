#pragma once

// The style as a program meets it that nobody wrote for this design. Its widgets are stock ones, in
// arrangements that the design doesn't have: icons above their texts, upright sliders, editable combo boxes
// wider than their text, layouts from right to left. Where the design's own geometry would take a function
// from such a widget, it keeps the one that Qt's widgets expect. Options of this library's controls are left
// to VantraStyle in all.

#include "Style/VantraStyle.h"

#include <QtGui/QFont>
#include <QtWidgets/QStyleOption>

class VantraPluginStyle final : public VantraStyle
{
public:
    // Makes the roles dark that the style leaves as Fusion has them.
    void polish(QPalette &ioPalette) override;

    // Brings the house font, unless the program has set one. Qt polishes the application while that is being
    // constructed, before any widget exists, so that no layout has to be made twice.
    void polish(QApplication *ioApplication) override;
    void unpolish(QApplication *ioApplication) override;
    using VantraStyle::polish;
    using VantraStyle::unpolish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                         const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                           const QWidget *widget = nullptr) const override;

private:
    QRect mirroredScrollBarRect(const QStyleOptionSlider &inOption, SubControl inSubControl,
                                const QWidget *inWidget) const;
    QSize spinBoxSize(const QStyleOptionSpinBox &inOption, const QSize &inContents,
                      const QWidget *inWidget) const;

    QFont mFont;
    bool mGaveFont = false;
};
