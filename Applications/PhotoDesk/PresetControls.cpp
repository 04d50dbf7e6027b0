#include "PresetControls.h"

#include "Controls/VantraButton.h"
#include "Controls/VantraComboBox.h"
#include "Window/VantraMessageBox.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QVBoxLayout>

namespace {
VantraButton *makeButton(const QString &inText, const char *inName, QWidget *inParent)
{
    auto *button = new VantraButton(inParent);
    button->setText(inText);
    button->setObjectName(QLatin1String(inName));
    return button;
}
} // namespace

PresetControls::PresetControls(QWidget *inParent)
    : QWidget(inParent), mList(new VantraComboBox(this)),
      mRename(makeButton(tr("Rename…"), "renamePreset", this)),
      mDelete(makeButton(tr("Delete"), "deletePreset", this))
{
    mList->setObjectName(QStringLiteral("presets"));
    mList->setAccessibleName(tr("Preset"));
    mList->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    VantraButton *save = makeButton(tr("Save…"), "savePreset", this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(mList);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    for (VantraButton *button : {save, mRename, mDelete})
        buttons->addWidget(button, 1);
    layout->addLayout(buttons);
    connect(save, &VantraButton::clicked, this, &PresetControls::save);
    connect(mRename, &VantraButton::clicked, this, &PresetControls::rename);
    connect(mDelete, &VantraButton::clicked, this, &PresetControls::remove);
    connect(mList, &VantraComboBox::currentIndexChanged, this, &PresetControls::updateButtons);
    connect(mList, &VantraComboBox::activated, this, [this] {
        const QString name = mList->currentText();
        emit chosen(name, mStore.look(name));
    });
    fill({});
}

void PresetControls::setLook(const QJsonObject &inLook)
{
    mLook = inLook;
    // A look that isn't the shown preset's any more is another preset's or nobody's.
    if (mStore.look(mList->currentText()) == inLook)
        return;
    int index = -1;
    for (int row = 0; row < mList->count() && index < 0; ++row) {
        if (mStore.look(mList->itemText(row)) == inLook)
            index = row;
    }
    mList->setCurrentIndex(index);
}

void PresetControls::fill(const QString &inCurrent)
{
    mList->clear();
    mList->addItems(mStore.builtInNames());
    if (!mStore.ownNames().isEmpty()) {
        mList->insertSeparator(mList->count());
        mList->addItems(mStore.ownNames());
    }
    mList->setPlaceholderText(tr("Custom"));
    mList->setCurrentIndex(inCurrent.isEmpty() ? -1 : mList->findText(inCurrent));
    updateButtons();
}

void PresetControls::updateButtons()
{
    const QString name = mList->currentText();
    const bool isOwn = !name.isEmpty() && !mStore.isBuiltIn(name);
    mRename->setEnabled(isOwn);
    mDelete->setEnabled(isOwn);
}

QString PresetControls::askName(const QString &inTitle, const QString &inName)
{
    return QInputDialog::getText(window(), inTitle, tr("Name"), QLineEdit::Normal, inName).trimmed();
}

bool PresetControls::tell(const QString &inRefusal)
{
    if (!inRefusal.isEmpty()) {
        VantraMessageBox::warning(window(), tr("Presets"), inRefusal, QMessageBox::Ok, QMessageBox::NoButton);
    }
    return inRefusal.isEmpty();
}

void PresetControls::save()
{
    const QString name = askName(tr("Save Preset"), mList->currentText());
    if (!name.isEmpty() && tell(mStore.save(name, mLook)))
        fill(name);
}

void PresetControls::rename()
{
    const QString old = mList->currentText();
    const QString name = askName(tr("Rename Preset"), old);
    if (!name.isEmpty() && tell(mStore.rename(old, name)))
        fill(name);
}

void PresetControls::remove()
{
    if (tell(mStore.remove(mList->currentText())))
        fill({});
}
