#pragma once

// Everything that the user has decided about one photo. A plain value: copied into undo steps, presets and
// export jobs.

#include <QtCore/QJsonObject>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QVector>

struct PhotoAdjustments
{
    double exposure = 0.0; // stops, -3 to 3
    double contrast = 0.0; // this and the next five: -100 to 100
    double highlights = 0.0;
    double shadows = 0.0;
    double temperature = 0.0; // above 0 is warmer
    double tint = 0.0;        // above 0 is more magenta
    double saturation = 0.0;
    QVector<QPointF> curve{{0.0, 0.0}, {1.0, 1.0}}; // input to output, both 0 to 1, by rising input
    int quarterTurns = 0;                           // clockwise, 0 to 3
    QRectF crop{0.0, 0.0, 1.0, 1.0}; // part of the turned photo that stays, in parts of its sides

    bool operator==(const PhotoAdjustments &inOther) const;
    bool operator!=(const PhotoAdjustments &inOther) const { return !(*this == inOther); }

    // Clockwise; the crop turns with the photo.
    void turn(int inQuarterTurns);

    // The look alone, without turning and cropping, which belong to one photo. That is what presets keep.
    QJsonObject look() const;

    // Takes a look over; values that are missing or no numbers become the defaults, others are bounded.
    void setLook(const QJsonObject &inLook);
};

// The adjustments that are one number each, in the order of the panes.
struct PhotoSliderInfo
{
    const char *name; // the key in a preset
    double PhotoAdjustments::*value;
    double minimum;
    double maximum;
    int decimals;
};
inline constexpr PhotoSliderInfo kPhotoSliders[] = {
    {"exposure", &PhotoAdjustments::exposure, -3.0, 3.0, 2},
    {"contrast", &PhotoAdjustments::contrast, -100.0, 100.0, 1},
    {"highlights", &PhotoAdjustments::highlights, -100.0, 100.0, 1},
    {"shadows", &PhotoAdjustments::shadows, -100.0, 100.0, 1},
    {"temperature", &PhotoAdjustments::temperature, -100.0, 100.0, 1},
    {"tint", &PhotoAdjustments::tint, -100.0, 100.0, 1},
    {"saturation", &PhotoAdjustments::saturation, -100.0, 100.0, 1},
};
