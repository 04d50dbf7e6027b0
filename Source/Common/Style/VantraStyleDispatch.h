#pragma once

// Calls of a helper's member with the record that it wants. The cast of a plain option happens here and
// nowhere else; when it fails, the caller hands the call to Fusion.

#include "StyleOptions/VantraStyleOptionCast.h"

#include <QtCore/QRect>
#include <QtCore/QSize>

#include <optional>
#include <type_traits>
#include <utility>

class QPainter;
class QWidget;

namespace VantraStyleDispatch {

// A member that takes its record by plain reference gets one of its own to change.
template <typename Option>
decltype(auto) argument(VantraStyleOptionCast<std::remove_const_t<Option>> &ioCast)
{
    if constexpr (std::is_const_v<Option>) {
        return *std::as_const(ioCast);
    } else {
        return ioCast.writable();
    }
}

template <typename Helper, typename Option>
bool paint(const Helper &helper, void (Helper::*member)(Option &, QPainter *, const QWidget *) const,
           const QStyleOption *option, QPainter *painter, const QWidget *widget)
{
    VantraStyleOptionCast<std::remove_const_t<Option>> cast(option);
    if (cast) {
        (helper.*member)(argument<Option>(cast), painter, widget);
    }
    return static_cast<bool>(cast);
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

template <typename Helper, typename Option>
std::optional<QSize> measure(const Helper &helper, QSize (Helper::*member)(Option &, const QWidget *) const,
                             const QStyleOption *option, const QWidget *widget)
{
    VantraStyleOptionCast<std::remove_const_t<Option>> cast(option);
    return cast ? std::optional<QSize>((helper.*member)(argument<Option>(cast), widget)) : std::nullopt;
}

template <typename Helper, typename Record, typename Part>
std::optional<QRect> place(const Helper &helper,
                           QRect (Helper::*member)(const Record &, Part, const QWidget *) const,
                           const QStyleOption *option, Part part, const QWidget *widget)
{
    const VantraStyleOptionCast<Record> cast(option);
    return cast ? std::optional<QRect>((helper.*member)(*cast, part, widget)) : std::nullopt;
}

} // namespace VantraStyleDispatch
