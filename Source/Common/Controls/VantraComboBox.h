#pragma once

// The library's combo box: VantraComboBoxBase under the name that applications use.
//
//     auto *comboBox = new VantraComboBox(parent);
//     comboBox->addItem(tr("Portrait"));
//     comboBox->insertSeparator(1);

#include "Controls/VantraComboBoxBase.h"

class VTWIDGETSLITE_EXPORT VantraComboBox : public VantraComboBoxBase
{
    Q_OBJECT

public:
    explicit VantraComboBox(QWidget *inParent = nullptr);
    ~VantraComboBox() override;
};
