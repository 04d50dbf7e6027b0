#pragma once

// The parts of the page of stock widgets, a source for each family. Each adds its samples to a layout.

class QVBoxLayout;

// Push buttons, tool buttons, check boxes and radio buttons.
void addPushButtons(QVBoxLayout *ioLayout);
void addToolButtons(QVBoxLayout *ioLayout);
void addCheckBoxes(QVBoxLayout *ioLayout);
void addRadioButtons(QVBoxLayout *ioLayout);

// What takes a value.
void addComboBoxes(QVBoxLayout *ioLayout);
void addLineEdits(QVBoxLayout *ioLayout);
void addTextEdits(QVBoxLayout *ioLayout);
void addSpinBoxes(QVBoxLayout *ioLayout);
void addSliders(QVBoxLayout *ioLayout);
void addScrollBars(QVBoxLayout *ioLayout);
void addProgressBars(QVBoxLayout *ioLayout);

// What holds others.
void addTabs(QVBoxLayout *ioLayout);
void addGroupBoxes(QVBoxLayout *ioLayout);
void addFrames(QVBoxLayout *ioLayout);
void addSplitters(QVBoxLayout *ioLayout);
void addLabels(QVBoxLayout *ioLayout);
void addBars(QVBoxLayout *ioLayout);
void addToolBoxAndDock(QVBoxLayout *ioLayout);

// Lists, trees and tables.
void addItemViews(QVBoxLayout *ioLayout);

// A row of the common controls in right-to-left order.
void addRightToLeft(QVBoxLayout *ioLayout);
