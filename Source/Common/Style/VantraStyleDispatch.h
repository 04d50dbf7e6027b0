#pragma once

// Calls of a helper's member with the record that it wants. The cast of a plain option happens here and
// nowhere else; when it fails, the caller hands the call to Fusion.

#include "StyleOptions/VantraStyleOptionCast.h"

#include <QtCore/QRect>
#include <QtCore/QSize>

class QPainter;
class QWidget;

namespace VantraStyleDispatch {

template <typename Helper, typename Record>
bool paint(const Helper &helper, void (Helper::*member)(const Record &, QPainter *, const QWidget *) const,
           const QStyleOption *option, QPainter *painter, const QWidget *widget)
{
    const VantraStyleOptionCast<Record> record(option);
    if (record) {
        (helper.*member)(*record, painter, widget);
    }
    return static_cast<bool>(record);
}

// Elements that take any option.
template <typename Helper>
bool paint(const Helper &helper,
           void (Helper::*member)(const QStyleOption &, QPainter *, const QWidget *) const,
           const QStyleOption *option, QPainter *painter, const QWidget *widget)
{
    if (option != nullptr) {
        (helper.*member)(*option, painter, widget);
    }
    return option != nullptr;
}

template <typename Helper, typename Record>
std::optional<QSize> measure(const Helper &helper,
                             QSize (Helper::*member)(const Record &, const QWidget *) const,
                             const QStyleOption *option, const QWidget *widget)
{
    const VantraStyleOptionCast<Record> record(option);
    return record ? std::optional<QSize>((helper.*member)(*record, widget)) : std::nullopt;
}

template <typename Helper, typename Record, typename Part>
std::optional<QRect> place(const Helper &helper,
                           QRect (Helper::*member)(const Record &, Part, const QWidget *) const,
                           const QStyleOption *option, Part part, const QWidget *widget)
{
    const VantraStyleOptionCast<Record> record(option);
    return record ? std::optional<QRect>((helper.*member)(*record, part, widget)) : std::nullopt;
}

} // namespace VantraStyleDispatch
