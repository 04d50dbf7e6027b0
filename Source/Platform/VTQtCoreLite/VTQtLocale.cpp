#include "VTQtLocale.h"

#include <optional>

namespace {

std::optional<QLocale> &chosenLocale()
{
    static std::optional<QLocale> sChosen;
    return sChosen;
}

} // namespace

VTQtLocale::VTQtLocale() : QLocale(chosenLocale().value_or(QLocale()))
{
}

void VTQtLocale::setApplicationLocale(const QLocale &inLocale)
{
    chosenLocale() = inLocale;
}

void VTQtLocale::unsetApplicationLocale()
{
    chosenLocale().reset();
}
