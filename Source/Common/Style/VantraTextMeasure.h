#pragma once

// Sizes and elisions of texts, remembered. Each costs a shaping of the text, and a control asks the same at
// every paint and every layout. All widths are in logical pixels. Nothing is remembered across a change of
// the font database. GUI thread only.

#include <QtCore/QSize>
#include <QtCore/QString>

class QFontMetrics;

namespace VantraTextMeasure {

// metrics.size(0, text)
QSize size(const QString &inText, const QFontMetrics &inMetrics);

// metrics.elidedText(text, mode, width, flags)
QString elided(const QString &inText, const QFontMetrics &inMetrics, Qt::TextElideMode inMode, int inWidth,
               int inFlags);

// What the rows of lists ask for, all of them at each layout and each opening of a popup. Lists of up to
// 16384 rows are remembered, for one font at a time; the last list's texts are held until another takes their
// place.

// metrics.size(flags, text)
QSize rowSize(const QString &inText, const QFontMetrics &inMetrics, int inFlags);

// metrics.boundingRect(text).width()
int rowBoundingWidth(const QString &inText, const QFontMetrics &inMetrics);

} // namespace VantraTextMeasure
