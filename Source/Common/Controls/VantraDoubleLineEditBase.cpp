#include "Controls/VantraDoubleLineEditBase.h"

#include "VTQtLocale.h"
#include "VTQtSignalBlocker.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QDoubleValidator>
#include <QtGui/QKeyEvent>

#include <cmath>

namespace {

constexpr int kWrittenDecimals = 6;     // numbers are rounded here before their surplus digits are cut off
constexpr qint64 kTickTime = 500;       // ms
constexpr double kHeldIncrement = 0.1;  // the unit of steps of a held key, whatever the field's own increment
constexpr double kLargestFactor = 0.25; // of the range

// The parameters' names are part of the words with which a wrong range stops the process.
double bounded(double min, double value, double max)
{
    Q_ASSERT(!(max < min));
    return qMax(min, qMin(max, value));
}

// The digits of some scripts take two UTF-16 units each.
void chopCharacters(QString &ioText, int inCount)
{
    for (int count = 0; count < inCount && !ioText.isEmpty(); ++count) {
        ioText.chop(ioText.back().isLowSurrogate() ? 2 : 1);
    }
}

void trimEnd(QString &ioText, int inDecimals)
{
    const QString decimalPoint = VTQtLocale().decimalPoint();
    for (int count = 0; count <= inDecimals; ++count) {
        const QString last = ioText.right(1);
        if (last != QLatin1String("0") && last != decimalPoint) {
            return;
        }
        ioText.chop(1);
    }
}

} // namespace

VantraDoubleLineEditBase::VantraDoubleLineEditBase(QWidget *inParent)
    : VantraLineEditBase(inParent), mValidator(new QDoubleValidator(1.0, 100.0, 2, this))
{
    mKeyPressElapsedTimer.invalidate();
    mValidator->setNotation(QDoubleValidator::StandardNotation);
    mValidator->setLocale(VTQtLocale());
    setValidator(mValidator);
    connect(this, &QLineEdit::returnPressed, this, &VantraDoubleLineEditBase::onReturnPressed);
    connect(this, &QLineEdit::editingFinished, this, &VantraDoubleLineEditBase::onEditingFinished);
    connect(this, &QLineEdit::textEdited, this, &VantraDoubleLineEditBase::onEditingText);
    QCoreApplication::instance()->installEventFilter(this);
}

VantraDoubleLineEditBase::~VantraDoubleLineEditBase()
{
    // The application object may be gone before a field of static lifetime.
    if (QCoreApplication *application = QCoreApplication::instance()) {
        application->removeEventFilter(this);
    }
}

double VantraDoubleLineEditBase::value() const
{
    bool ok = false;
    const double number = VTQtLocale().toDouble(text(), &ok);
    return ok ? number : 0.0;
}

double VantraDoubleLineEditBase::minimum() const
{
    return mValidator->bottom();
}

double VantraDoubleLineEditBase::maximum() const
{
    return mValidator->top();
}

int VantraDoubleLineEditBase::decimals() const
{
    return mValidator->decimals();
}

void VantraDoubleLineEditBase::setValueAndBlockSignals(double inValue)
{
    const VTQtSignalBlocker blocker(this);
    setValue(inValue);
}

void VantraDoubleLineEditBase::setKeyPressIncrement(double inIncrement)
{
    mKeyPressIncrement = inIncrement;
}

void VantraDoubleLineEditBase::increment()
{
    setValue(keyPressIncrement() + value());
}

void VantraDoubleLineEditBase::decrement()
{
    setValue(value() - keyPressIncrement());
}

void VantraDoubleLineEditBase::startKeyPressElapsedTimer()
{
    if (!mKeyPressElapsedTimer.isValid()) {
        mKeyPressElapsedTimer.start();
    }
}

void VantraDoubleLineEditBase::stopKeyPressElapsedTimer()
{
    mKeyPressElapsedTimer.invalidate();
}

bool VantraDoubleLineEditBase::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::ApplicationDeactivate) {
        stopKeyPressElapsedTimer();
    }
    return QObject::eventFilter(watched, event);
}

QSize VantraDoubleLineEditBase::sizeHint() const
{
    static_cast<void>(VantraLineEditBase::sizeHint());
    return fontMetrics().tightBoundingRect(QStringLiteral("99999.9")).size();
}

void VantraDoubleLineEditBase::setValue(double doubleValue)
{
    if (doubleValue == value() && !text().isEmpty()) {
        return;
    }
    const double clamped = bounded(minimum(), doubleValue, maximum());
    QString text = VTQtLocale().toString(clamped, decimals() > 0 ? 'f' : 'd', kWrittenDecimals);
    chopCharacters(text, kWrittenDecimals - decimals());
    if (decimals() > 0) {
        trimEnd(text, decimals());
    }
    if (isTextValid(text)) {
        setText(text);
        emit valueChanged(clamped);
    }
}

void VantraDoubleLineEditBase::setMinimum(double minimumValue)
{
    mValidator->setBottom(minimumValue);
}

void VantraDoubleLineEditBase::setMaximum(double maximumValue)
{
    mValidator->setTop(maximumValue);
}

void VantraDoubleLineEditBase::setDecimals(int decimals)
{
    mValidator->setDecimals(decimals);
    mKeyPressIncrement = 1.0 / std::pow(10.0, decimals);
}

void VantraDoubleLineEditBase::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up && !isReadOnly()) {
        startKeyPressElapsedTimer();
        increment();
    } else if (event->key() == Qt::Key_Down && !isReadOnly()) {
        startKeyPressElapsedTimer();
        decrement();
    } else if (decimals() != 0 || event->key() != Qt::Key_Period) {
        QLineEdit::keyPressEvent(event);
    }
}

void VantraDoubleLineEditBase::keyReleaseEvent(QKeyEvent *event)
{
    // X11 sends a release before each press of a held key.
    if ((event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) && !event->isAutoRepeat()) {
        stopKeyPressElapsedTimer();
    }
    QLineEdit::keyReleaseEvent(event);
}

void VantraDoubleLineEditBase::focusInEvent(QFocusEvent *event)
{
    const bool isBackFromOwnPopup = isFocusChangeForOwnPopup(event);
    VantraLineEditBase::focusInEvent(event);
    if (!isBackFromOwnPopup) {
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
    }
}

void VantraDoubleLineEditBase::focusOutEvent(QFocusEvent *event)
{
    stopKeyPressElapsedTimer();
    const bool isForOwnPopup = isFocusChangeForOwnPopup(event);
    VantraLineEditBase::focusOutEvent(event);
    if (isForOwnPopup) {
        return;
    }

    QString text = this->text();
    if (isTextValid(text)) {
        return;
    }
    // Read in the C locale: a bad text with another locale's digits or separators counts as 0.
    setValue(bounded(minimum(), text.toDouble(), maximum()));
    emit valueOutOfRange(text, minimum(), maximum(), decimals());
}

double VantraDoubleLineEditBase::keyPressIncrement() const
{
    if (!mKeyPressElapsedTimer.isValid()) {
        return mKeyPressIncrement;
    }
    Q_ASSERT(maximum() >= 4);
    auto ticks = static_cast<double>(mKeyPressElapsedTimer.elapsed() / kTickTime);
    double step = mKeyPressIncrement;
    if (ticks > 1.0) {
        step = kHeldIncrement;
        ticks *= 2.0;
    }
    const double limit = std::abs(maximum() - minimum()) * kLargestFactor;
    return bounded(1.0, ticks, limit) * step;
}

void VantraDoubleLineEditBase::onReturnPressed()
{
    clearFocus();
}

void VantraDoubleLineEditBase::onEditingFinished()
{
    emit valueChanged(value());
}

void VantraDoubleLineEditBase::onEditingText(const QString &inNewText)
{
    QString text = inNewText;
    if (isTextValid(text)) {
        emit valueChanging(VTQtLocale().toDouble(text));
    }
}

bool VantraDoubleLineEditBase::isTextValid(QString &ioText) const
{
    if (ioText.isEmpty()) {
        ioText = QString::number(minimum(), 'g', 6);
    }
    int position = 0;
    return mValidator->validate(ioText, position) == QValidator::Acceptable;
}
