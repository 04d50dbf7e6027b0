#pragma once

// One number of the adjustments: name, field and slider, tied together.

#include <QtGui/QBrush>
#include <QtWidgets/QSlider>
#include <QtWidgets/QWidget>

struct PhotoSliderInfo;
class VantraDoubleLineEdit;

// A slider whose groove can be a gradient. The wheel is for scrolling the column.
class GradientSlider : public QSlider
{
    Q_OBJECT

public:
    explicit GradientSlider(const QGradientStops &inStops, QWidget *inParent = nullptr);

protected:
    void paintEvent(QPaintEvent *inEvent) override;
    void wheelEvent(QWheelEvent *inEvent) override;

private:
    const QGradientStops mStops; // none is the house slider
};

class AdjustmentRow : public QWidget
{
    Q_OBJECT

public:
    AdjustmentRow(const PhotoSliderInfo &inInfo, const QString &inName, const QGradientStops &inStops,
                  QWidget *inParent);

    const PhotoSliderInfo &info() const { return mInfo; }
    const QString &name() const { return mName; }

    // Without a signal.
    void setValue(double inValue);

signals:
    void valueChanged(double inValue);

    // The user has let go of the slider, or committed a number: the next change is another step.
    void finished();

protected:
    void changeEvent(QEvent *inEvent) override;

private:
    void fitField();

    const PhotoSliderInfo &mInfo;
    const QString mName;
    const double mScale; // slider steps for each unit
    GradientSlider *mSlider;
    VantraDoubleLineEdit *mField;
};
