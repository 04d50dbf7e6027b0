#pragma once

// A picture painted in code, for what lies over pictures.

#include <QtWidgets/QWidget>

// Sky, hills and a low sun, filling the rectangle.
void paintPhotograph(QPainter &ioPainter, const QRect &inRect);

// Shows that picture behind its children.
class PhotographWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override;
};
