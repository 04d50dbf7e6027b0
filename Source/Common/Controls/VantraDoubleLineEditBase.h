#pragma once

// A field for a number, without a font of its own. Text and number are one: the number is what the text says.
//
//     auto *radius = new VantraDoubleLineEdit(parent);
//     radius->setMaximum(250.0);
//     radius->setDecimals(1);
//     connect(radius, &VantraDoubleLineEdit::valueChanged, this, &Filter::setRadius);
//
// Numbers are shown and read in the locale of VTQtLocale; choose it before the field is made. The field
// selects its text when it gets the focus. Return commits by giving the focus away. When the focus leaves, a
// text that isn't a number of the range is replaced by the nearest one and reported by valueOutOfRange. The
// field's own context menu doesn't commit anything.
//
// Up and Down step by the increment. After a key has been held for a second the steps count in tenths, and
// grow until a quarter of the range, in tenths, is reached. Stepping by key needs a maximum of at least 4.0
// and a range of at least 4.0; on any other field it stops the process. GUI thread only.

#include "Controls/VantraLineEditBase.h"

#include <QtCore/QElapsedTimer>

class QDoubleValidator;

class VTWIDGETSLITE_EXPORT VantraDoubleLineEditBase : public VantraLineEditBase
{
    Q_OBJECT
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    // After those that bound it: forms write and set properties in this order.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit VantraDoubleLineEditBase(QWidget *inParent = nullptr);
    ~VantraDoubleLineEditBase() override;

    // The number that the text says, 0.0 when it says none. It may lie outside the range while the user
    // types.
    double value() const;

    double minimum() const;
    double maximum() const;
    int decimals() const;

    // setValue without any signal.
    void setValueAndBlockSignals(double inValue);

    // The step of one key press; 0.01 by default. setDecimals sets it anew.
    void setKeyPressIncrement(double inIncrement);

    // One step up or down, as by a key but without starting the clock of a held key.
    void increment();
    void decrement();

    // Start and stop the clock by which steps grow, for stepping by means of the application's own. Starting
    // a running clock does nothing. Release of the key, loss of the focus and deactivation of the application
    // stop it too. The releases of an auto-repeated key do not.
    void startKeyPressElapsedTimer();
    void stopKeyPressElapsedTimer();

    bool eventFilter(QObject *watched, QEvent *event) override;
    QSize sizeHint() const override;

public slots:
    // Writes a number into the field, bounded to the range, with the digits behind decimals() cut off rather
    // than rounded and without zeros at the end, and emits valueChanged with the bounded number. Nothing
    // happens when the field says that number already. The text also stays, silently, when what would be
    // written isn't a valid text of the field: a limit with more digits than decimals() may be cut to outside
    // the range, and the locale's sign may be one that Qt's validator doesn't know. A maximum below the
    // minimum stops the process.
    void setValue(double doubleValue);

    // The range, 1.0 to 100.0 by default. The text stays as it is.
    void setMinimum(double minimumValue);
    void setMaximum(double maximumValue);

    // Digits behind the decimal point, 0 to 6; 2 by default. The text stays as it is. The increment becomes
    // one unit of the last place.
    void setDecimals(int decimals);

signals:
    // The field has a committed number: by setValue or a step, or because the user has ended the editing.
    void valueChanged(double newDoubleValue);

    // The user's typing has come to a valid number. An emptied field counts as the minimum.
    void valueChanging(double newDoubleValue);

    // The focus has left a bad text, which is told here along with the limits; valueChanged with the number
    // that replaces it has come before.
    void valueOutOfRange(QString textValue, double minimum, double maximum, int decimals);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

    // The step of the next key press, which grows with the time that the key is held. Replace it for another
    // acceleration.
    virtual double keyPressIncrement() const;

private slots:
    void onReturnPressed();
    void onEditingFinished();
    void onEditingText(const QString &inNewText);

private:
    bool isTextValid(QString &ioText) const;

    QDoubleValidator *mValidator;
    QElapsedTimer mKeyPressElapsedTimer;
    double mKeyPressIncrement = 0.01;
};
