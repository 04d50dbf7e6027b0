#pragma once

// What the painting families share: the rounded fill, the arrow, the tick, the crisp bottom line, and the
// layout of an icon, a text and an arrow in one rectangle. All coordinates are logical pixels.
//
// A helper belongs to one style, lives as long as it, and has no state of its own. It calls back into
// style(), the outermost proxy over its style, so that a further proxy can restyle any element.

#include "Theme/VantraIconPalette.h"
#include "Theme/VantraPalette.h"

#include <QtCore/QMargins>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtGui/QFontMetrics>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QStyle>

class VantraCornerRadii;
class VantraStyleTheme;

// Saves a painter for a scope.
class VantraPainterSaver
{
public:
    explicit VantraPainterSaver(QPainter *painter) : mPainter(painter) { mPainter->save(); }
    ~VantraPainterSaver() { mPainter->restore(); }
    Q_DISABLE_COPY_MOVE(VantraPainterSaver)

private:
    QPainter *const mPainter;
};

// Keeps what painting a label changes, for a fraction of what saving the whole painter costs.
class VantraLabelSaver
{
public:
    explicit VantraLabelSaver(QPainter *painter)
        : mPainter(painter), mFont(painter->font()),
          mSmooth(painter->testRenderHint(QPainter::SmoothPixmapTransform))
    {
    }
    ~VantraLabelSaver()
    {
        mPainter->setRenderHint(QPainter::SmoothPixmapTransform, mSmooth);
        mPainter->setFont(mFont);
    }
    Q_DISABLE_COPY_MOVE(VantraLabelSaver)

private:
    QPainter *const mPainter;
    const QFont mFont;
    const bool mSmooth;
};

class VantraStyleHelper
{
public:
    // Room for an arrow beside a text, in logical pixels.
    static constexpr int kArrowExtent = 16;

    // An icon, a text and an arrow on their way to one rectangle. The references must outlive the call.
    struct Content
    {
        const QIcon &icon;
        QSize iconSize;
        const QString &text;
        const QFontMetrics &metrics;
        Qt::ArrowType arrow = Qt::NoArrow;
        int spacing = 0;
        bool noText = false;
        bool noIcon = false;
        bool textUnderIcon = false;

        bool hasIcon() const { return !noIcon && !icon.isNull(); }
        bool hasText() const { return !noText && !text.isEmpty(); }
    };

    // How the content is painted, beyond what it is.
    struct Look
    {
        VantraIconPalette::IconTintings tinting = VantraIconPalette::IconTintingNone;
        int textFlags = 0; // alignment of a text without an icon
        QStyle::State state;
        const QPalette &palette;
        VantraPalette::PaletteRole alternateRole = VantraPalette::Accent;
    };

    VantraStyleHelper(QStyle *inStyle, const VantraStyleTheme *inTheme) : mStyle(inStyle), mTheme(inTheme) {}
    Q_DISABLE_COPY_MOVE(VantraStyleHelper)

    // Fills with the painter's brush. Radii are limited to half the smaller side. A shape with some square
    // corners is a rounded rectangle grown past its square edges, which the paint clip cuts: rect is to fill
    // the device or the clip. Any combination that no control has stops the process.
    static void drawRoundedBackground(QPainter *painter, const QRect &rect, int topLeft, int topRight,
                                      int bottomLeft, int bottomRight);
    static void drawRoundedBackground(QPainter *painter, const QRect &rect, const VantraCornerRadii &radii);

    // A chevron of two strokes, centred in rect.
    static void drawArrow(Qt::ArrowType type, const QColor &color, const QSizeF &size, double lineWidth,
                          const QRect &rect, QPainter *painter);

    // A tick of fixed size, centred in rect.
    static void drawCheckMark(QPainter *painter, const QRectF &rect, const QColor &color);

    // A line along the bottom, whole device pixels thick at every ratio. Leaves its pen and brush behind.
    static void drawBottomLine(QPainter *painter, const QRect &rect, const QColor &color, int width);

    // True when anything was painted.
    bool drawIconTextArrow(const Content &content, const Look &look, const QRect &rect,
                           QPainter *painter) const;
    static QSize iconTextArrowSize(const Content &content);

    // The size of an icon beside a text; each side that is absent counts nothing.
    static QSize iconTextSize(const QIcon &icon, const QSize &iconSize, const QString &text,
                              const QFontMetrics &metrics, int spacing);

    // A text's size with the 4 pixels that every text gets, or 0 by 0.
    static QSize textSize(const QString &text, const QFontMetrics &metrics);

    // Active when enabled, otherwise Disabled.
    static QPalette::ColorGroup colorGroup(QStyle::State state);

    // Half the smaller side, rounded down.
    static int pillRadius(const QSize &size);

    // Takes from inPadding the left and right only where a round end doesn't already keep the content clear.
    static QMargins paddingWithRadii(const QMargins &padding, int left, int right);

protected:
    // drawArrow at the enlarged or the plain size of the design.
    void drawThemedArrow(Qt::ArrowType type, const QColor &color, bool enlarged, const QRect &rect,
                         QPainter *painter) const;

    const QStyle *style() const { return mStyle->proxy(); }

    QStyle *const mStyle;
    const VantraStyleTheme *const mTheme;
};
