#pragma once

#include <string>

namespace trabex::losas::ui {

/// The name after another in a series: "B" after "A", "AA" after "Z", "12" after "11", "P-10" after "P-09". A
/// word, and what ends in neither letter nor figure, comes back as it is.
std::string SiguienteEnSerie(std::string texto);

}  // namespace trabex::losas::ui
