#pragma once

// The presets: a list to choose from, the program's own above a line and the user's below, and buttons to
// save, rename and delete.

#include "PresetStore.h"

#include <QtCore/QJsonObject>
#include <QtWidgets/QWidget>

class VantraButton;
class VantraComboBox;

class PresetControls : public QWidget
{
    Q_OBJECT

public:
    explicit PresetControls(QWidget *inParent = nullptr);

    // The look that "Save" keeps.
    void setLook(const QJsonObject &inLook);

signals:
    void chosen(const QString &inName, const QJsonObject &inLook);

private:
    void fill(const QString &inCurrent);
    void updateButtons();
    void save();
    void rename();
    void remove();
    QString askName(const QString &inTitle, const QString &inName);
    bool tell(const QString &inRefusal);

    PresetStore mStore;
    QJsonObject mLook;
    VantraComboBox *mList;
    VantraButton *mRename;
    VantraButton *mDelete;
};
