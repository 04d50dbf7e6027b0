#pragma once

// What the tests of the style share: every record, the stock theme's colours with the blue accent, usual
// states, options of a size, and looks at a picture.

#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionFramePane.h"
#include "StyleOptions/VantraStyleOptionGroupBox.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "StyleOptions/VantraStyleOptionMenuItem.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionTextEdit.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"

#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtWidgets/QStyleOption>

namespace StyleSamples {

inline const QColor kNothing(0, 0, 0, 0);
inline const QColor kSunken(28, 28, 28);
inline const QColor kGround(36, 36, 36);
inline const QColor kPane(48, 48, 48);
inline const QColor kLine(60, 60, 60);
inline const QColor kText(170, 170, 170);
inline const QColor kAccent(4, 122, 255);
inline const QColor kDimAccent(53, 56, 61);
inline const QColor kDisabled(35, 35, 35);
inline const QColor kPanelAccentLine(46, 48, 51);

inline const QStyle::State kEnabled = QStyle::State_Enabled;
inline const QStyle::State kHovered = QStyle::State_Enabled | QStyle::State_MouseOver;
inline const QStyle::State kOn = QStyle::State_Enabled | QStyle::State_On;
inline const QStyle::State kSelected = QStyle::State_Enabled | QStyle::State_Selected;

template <typename Option>
Option of(const QSize &inSize, QStyle::State inState = kEnabled)
{
    Option option;
    option.rect = QRect(QPoint(0, 0), inSize);
    option.state = inState;
    return option;
}

inline QIcon icon()
{
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::white);
    return QIcon(pixmap);
}

inline QColor centre(const QImage &inImage)
{
    return inImage.pixelColor(inImage.width() / 2, inImage.height() / 2);
}

// The painted corners, from the top left over the top right and the bottom left to the bottom right.
inline QString squareCorners(const QImage &inImage)
{
    const int right = inImage.width() - 1;
    const int bottom = inImage.height() - 1;
    QString result;
    for (const QPoint &corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
        result += inImage.pixelColor(corner).alpha() == 255 ? '#' : '.';
    }
    return result;
}

inline QImage part(const QImage &inImage, int inLeft, int inRight)
{
    return inImage.copy(QRect(QPoint(inLeft, 0), QPoint(inRight, inImage.height() - 1)));
}

} // namespace StyleSamples
