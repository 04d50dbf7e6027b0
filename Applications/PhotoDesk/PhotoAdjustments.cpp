#include "PhotoAdjustments.h"

#include <QtCore/QJsonArray>

#include <algorithm>

bool PhotoAdjustments::operator==(const PhotoAdjustments &inOther) const
{
    for (const PhotoSliderInfo &slider : kPhotoSliders) {
        if (this->*slider.value != inOther.*slider.value)
            return false;
    }
    return curve == inOther.curve && quarterTurns == inOther.quarterTurns && crop == inOther.crop;
}

void PhotoAdjustments::turn(int inQuarterTurns)
{
    quarterTurns = (quarterTurns + inQuarterTurns) % 4;
    for (int turned = 0; turned < inQuarterTurns; ++turned)
        crop = QRectF(1.0 - crop.bottom(), crop.left(), crop.height(), crop.width());
}

QJsonObject PhotoAdjustments::look() const
{
    QJsonObject look;
    for (const PhotoSliderInfo &slider : kPhotoSliders)
        look.insert(QLatin1String(slider.name), this->*slider.value);
    QJsonArray points;
    for (const QPointF &point : curve)
        points.append(QJsonArray{point.x(), point.y()});
    look.insert(QLatin1String("curve"), points);
    return look;
}

void PhotoAdjustments::setLook(const QJsonObject &inLook)
{
    const PhotoAdjustments defaults;
    for (const PhotoSliderInfo &slider : kPhotoSliders) {
        this->*slider.value =
            std::clamp(inLook.value(QLatin1String(slider.name)).toDouble(), slider.minimum, slider.maximum);
    }
    curve.clear();
    const QJsonArray points = inLook.value(QLatin1String("curve")).toArray();
    for (const QJsonValue &value : points) {
        const QJsonArray pair = value.toArray();
        const QPointF point(std::clamp(pair.at(0).toDouble(), 0.0, 1.0),
                            std::clamp(pair.at(1).toDouble(), 0.0, 1.0));
        if (pair.size() == 2 && (curve.isEmpty() || point.x() > curve.last().x()))
            curve.append(point);
    }
    if (curve.size() < 2)
        curve = defaults.curve;
}
