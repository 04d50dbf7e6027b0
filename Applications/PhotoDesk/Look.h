#pragma once

// The theme's accent and the text size, as the user has chosen them, kept in QSettings.

#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;

namespace Look {

// Loads fonts, theme and style in the order that the library asks for. Once, before the first window.
void start();

QStringList accents();
QString accent();
void setAccent(const QString &inAccent);

// Points added to all text: 0, 2 or 4.
int textSize();
void setTextSize(int inPoints);

} // namespace Look
