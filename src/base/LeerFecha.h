#pragma once

#include <optional>
#include <string_view>

#include "base/Fecha.h"

namespace trabex {

/// In which order the locale writes a date in figures.
enum class OrdenFecha { DiaMesAno, MesDiaAno, AnoMesDia };

/// A date in figures, with "/", "-", "." or blanks between them: day, month and year, where those are no date
/// in the locale's order, or the year first when it has four figures. A year of two figures is of the century
/// that brings it at most 20 years past `hoy`. Nothing when it is no date.
std::optional<Fecha> LeerFecha(std::string_view texto, OrdenFecha local, const Fecha& hoy);

}  // namespace trabex
