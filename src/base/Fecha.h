#pragma once

#include <chrono>

namespace trabex {

/// A calendar day.
using Fecha = std::chrono::year_month_day;

/// Today's date by the local clock.
Fecha Hoy();

}  // namespace trabex
