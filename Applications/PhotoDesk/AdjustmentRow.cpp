#include "AdjustmentRow.h"

#include "Controls/VantraDoubleLineEdit.h"
#include "Controls/VantraLabel.h"
#include "PhotoAdjustments.h"
#include "StyleOptions/VantraStyleOptionSlider.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QGridLayout>

#include <cmath>

GradientSlider::GradientSlider(const QGradientStops &inStops, QWidget *inParent)
    : QSlider(Qt::Horizontal, inParent), mStops(inStops)
{
}

void GradientSlider::paintEvent(QPaintEvent *)
{
    VantraStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    option.gradientStops = mStops;
    option.enlargeHandle = true;
    if (isSliderDown())
        option.state |= QStyle::State_On;
    QPainter painter(this);
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
}

void GradientSlider::wheelEvent(QWheelEvent *inEvent)
{
    inEvent->ignore();
}

AdjustmentRow::AdjustmentRow(const PhotoSliderInfo &inInfo, const QString &inName,
                             const QGradientStops &inStops, QWidget *inParent)
    : QWidget(inParent), mInfo(inInfo), mName(inName), mScale(std::pow(10.0, inInfo.decimals)),
      mSlider(new GradientSlider(inStops, this)), mField(new VantraDoubleLineEdit(this))
{
    auto *label = new VantraLabel(this);
    label->setText(inName);
    label->QWidget::setToolTip(tr("Double-click to reset"));
    mSlider->setObjectName(QLatin1String(inInfo.name) + QStringLiteral("Slider"));
    mSlider->setAccessibleName(inName);
    mSlider->setRange(qRound(inInfo.minimum * mScale), qRound(inInfo.maximum * mScale));
    mSlider->setPageStep(mSlider->maximum() / 10);
    mField->setObjectName(QLatin1String(inInfo.name) + QStringLiteral("Field"));
    mField->setAccessibleName(inName);
    mField->setMinimum(inInfo.minimum);
    mField->setMaximum(inInfo.maximum);
    mField->setDecimals(inInfo.decimals);
    mField->setAlignment(Qt::AlignRight);
    fitField();

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(0);
    layout->addWidget(label, 0, 0);
    layout->addWidget(mField, 0, 1, Qt::AlignRight);
    layout->addWidget(mSlider, 1, 0, 1, 2);

    connect(mSlider, &QSlider::valueChanged, this, [this](int inSteps) {
        mField->setValueAndBlockSignals(inSteps / mScale);
        emit valueChanged(inSteps / mScale);
        if (!mSlider->isSliderDown())
            emit finished();
    });
    connect(mSlider, &QSlider::sliderReleased, this, &AdjustmentRow::finished);
    connect(mField, &VantraDoubleLineEdit::valueChanged, this, [this](double inValue) {
        const QSignalBlocker blocker(mSlider);
        mSlider->setValue(qRound(inValue * mScale));
        emit valueChanged(inValue);
        emit finished();
    });
    connect(label, &VantraLabel::doubleClicked, this, [this] { mField->setValue(0.0); });
    setValue(0.0);
}

void AdjustmentRow::setValue(double inValue)
{
    const QSignalBlocker blocker(mSlider);
    mSlider->setValue(qRound(inValue * mScale));
    mField->setValueAndBlockSignals(inValue);
}

void AdjustmentRow::fitField()
{
    // All fields ask for the room of one number; these hold a sign as well.
    mField->setFixedWidth(mField->fontMetrics().horizontalAdvance(QStringLiteral("-100.00")));
}

void AdjustmentRow::changeEvent(QEvent *inEvent)
{
    QWidget::changeEvent(inEvent);
    if (inEvent->type() == QEvent::StyleChange || inEvent->type() == QEvent::FontChange)
        fitField();
}
