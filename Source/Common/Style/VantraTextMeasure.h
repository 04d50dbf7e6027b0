#pragma once

// Sizes and elisions of texts, remembered. Each costs a shaping of the text, and a control asks the same at
// every paint and every layout. All widths are in logical pixels. GUI thread only.

#include <QtCore/QSize>
#include <QtCore/QString>

class QFontMetrics;

namespace VantraTextMeasure {

// metrics.size(0, text)
QSize size(const QString &inText, const QFontMetrics &inMetrics);

// metrics.elidedText(text, mode, width, flags)
QString elided(const QString &inText, const QFontMetrics &inMetrics, Qt::TextElideMode inMode, int inWidth,
               int inFlags);

} // namespace VantraTextMeasure
