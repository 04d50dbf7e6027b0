#include "Controls/VantraAccessible_p.h"

#include "Controls/VantraAccessibleToolButton_p.h"
#include "Controls/VantraLabel.h"
#include "Controls/VantraToolButton.h"

#include <QtGui/QTextDocument>
#include <QtWidgets/QAccessibleWidget>

namespace {

const QLatin1String kSeparator(", ");

} // namespace

// As Qt's interface of a label, which can't be derived from; and a button as long as something waits for
// clicks.
class VantraAccessibleLabel : public QAccessibleWidget, public QAccessibleImageInterface
{
public:
    explicit VantraAccessibleLabel(QWidget *inLabel) : QAccessibleWidget(inLabel, QAccessible::StaticText) {}

    QAccessible::Role role() const override
    {
        if (label()->isClickConnected()) {
            return QAccessible::Button;
        }
        return label()->pixmap().isNull() ? QAccessibleWidget::role() : QAccessible::Graphic;
    }

    QString text(QAccessible::Text inText) const override
    {
        const QString base = QAccessibleWidget::text(inText);
        if (inText == QAccessible::Description && base.isEmpty()) {
            return label()->mToolTip;
        }
        const QString shown = label()->text();
        if (inText != QAccessible::Name || !label()->accessibleName().isEmpty() || shown.isEmpty()) {
            return base;
        }
        const Qt::TextFormat format = label()->textFormat();
        if (format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(shown))) {
            QTextDocument document;
            document.setHtml(shown);
            return document.toPlainText();
        }
        if (label()->buddy() == nullptr) {
            return shown;
        }
        // Only a label with a buddy draws mnemonics.
        QString name = shown;
        return name.replace(QLatin1String("&&"), QLatin1String("\1"))
            .remove(QLatin1Char('&'))
            .replace(QLatin1Char('\1'), QLatin1Char('&'));
    }

    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation inMatch) const override
    {
        auto found = QAccessibleWidget::relations(inMatch);
        if (inMatch.testFlag(QAccessible::Labelled) && label()->buddy() != nullptr) {
            found.append({QAccessible::queryAccessibleInterface(label()->buddy()), QAccessible::Labelled});
        }
        return found;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (label()->isEnabled() && label()->isClickConnected()) {
            names.prepend(pressAction());
        }
        return names;
    }

    void doAction(const QString &inName) override
    {
        if (inName != pressAction()) {
            QAccessibleWidget::doAction(inName);
        } else if (label()->isVisible() && label()->isEnabled()) {
            emit label()->clicked();
        }
    }

    void *interface_cast(QAccessible::InterfaceType inType) override
    {
        if (inType == QAccessible::ImageInterface && !label()->pixmap().isNull()) {
            return static_cast<QAccessibleImageInterface *>(this);
        }
        return QAccessibleWidget::interface_cast(inType);
    }

    QString imageDescription() const override { return text(QAccessible::Description); }
    QSize imageSize() const override { return label()->pixmap().deviceIndependentSize().toSize(); }
    QPoint imagePosition() const override { return rect().topLeft(); }

private:
    VantraLabel *label() const { return static_cast<VantraLabel *>(object()); }
};

namespace {

// Qt asks for an object's class and then for each of its bases, until someone answers.
QAccessibleInterface *makeInterface(const QString &inClassName, QObject *inObject)
{
    if (inClassName == QLatin1String("VantraLabel")) {
        if (auto *label = qobject_cast<VantraLabel *>(inObject)) {
            return new VantraAccessibleLabel(label);
        }
    }
    if (inClassName == QLatin1String("VantraToolButton")) {
        if (auto *button = qobject_cast<VantraToolButton *>(inObject)) {
            return new VantraAccessibleToolButton(button);
        }
    }
    return nullptr;
}

struct Installation
{
    Installation() { QAccessible::installFactory(makeInterface); }
    ~Installation() { QAccessible::removeFactory(makeInterface); }
};

} // namespace

void VantraAccessible::install()
{
    static const Installation sInstallation;
}

void VantraAccessible::replaceDescription(QWidget *ioWidget, const QString &inOldPart,
                                          const QString &inNewPart)
{
    QString description = ioWidget->accessibleDescription();
    if (!inOldPart.isEmpty() && description.endsWith(inOldPart)) {
        description.chop(inOldPart.size());
        if (description.endsWith(kSeparator)) {
            description.chop(kSeparator.size());
        }
    }
    if (!description.isEmpty() && !inNewPart.isEmpty()) {
        description += kSeparator;
    }
    ioWidget->setAccessibleDescription(description + inNewPart);
}
