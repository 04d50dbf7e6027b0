#pragma once

// The face of a VantraToolButton to assistive technology. Qt's own one names a button by its text, which a
// button of a tool bar doesn't have; this one falls back on the tool name.
//
//     return new VantraAccessibleToolButton(button);   // in the factory of VantraAccessible
//
// Owned by QAccessible. GUI thread only.

#include <QtWidgets/QAccessibleWidget>

class VantraToolButton;

class VantraAccessibleToolButton : public QAccessibleWidget
{
public:
    explicit VantraAccessibleToolButton(VantraToolButton *inButton);

    QString text(QAccessible::Text inText) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString &inName) override;
    QStringList keyBindingsForAction(const QString &inName) const override;

private:
    VantraToolButton *button() const;
    QString keyText() const;
};
