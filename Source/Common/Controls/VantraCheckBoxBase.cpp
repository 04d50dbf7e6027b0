#include "Controls/VantraCheckBoxBase.h"

#include "VTQtSignalBlocker.h"

#include <QtCore/QEvent>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

#include <cmath>

VantraCheckBoxBase::VantraCheckBoxBase(QWidget *inParent) : QCheckBox(inParent)
{
    setAttribute(Qt::WA_LayoutUsesWidgetRect);
}

VantraCheckBoxBase::~VantraCheckBoxBase() = default;

void VantraCheckBoxBase::setCheckStateAndBlockSignals(Qt::CheckState inState)
{
    const VTQtSignalBlocker blocker(this);
    QCheckBox::setCheckState(inState);
}

QSize VantraCheckBoxBase::minimumSizeHint() const
{
    QSize size = QCheckBox::minimumSizeHint();
    const int line = fontMetrics().height();
    size.setHeight(qMax(size.height(), line + static_cast<int>(std::ceil(line * 0.5))));
    return size;
}

void VantraCheckBoxBase::paintEvent(QPaintEvent *event)
{
    if (!mElideTextEnabled) {
        QCheckBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    option.text = QFontMetrics(font()).elidedText(option.text, Qt::ElideRight, contents.width(), 0);
    painter.drawControl(QStyle::CE_CheckBox, option);
}

void VantraCheckBoxBase::changeEvent(QEvent *event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    }
}
