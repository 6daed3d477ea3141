#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace trabex::salidas {

/// A bookmark: a place of a page, counted from 0, in points above its lower edge.
struct MarcadorPdf {
    std::string Titulo;
    std::size_t Pagina = 0;
    double Y = 0;
};

/// What is added to a PDF file's bytes, behind them, so that it has an author and bookmarks; nothing of the
/// file itself changes. The file is one with a plain table of its objects, as the toolkit writes them; to any
/// other nothing is added.
std::string ComplementoPdf(std::string_view pdf, const std::string& autor,
                           const std::vector<MarcadorPdf>& marcadores);

}  // namespace trabex::salidas
