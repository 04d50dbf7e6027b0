#pragma once

// Keeps an object's signals back for a scope, and gives the earlier state back at its end.
//
//     const VTQtSignalBlocker blocker(mComboBox);
//     mComboBox->setCurrentIndex(0);
//
// The object must outlive the blocker, or be null.

#include <QtCore/QSignalBlocker>

using VTQtSignalBlocker = QSignalBlocker;
