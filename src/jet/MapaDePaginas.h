#pragma once

#include <deque>

#include "jet/Paginas.h"

namespace trabex::jet {

/// A map of pages: a row that says by a bit a page which pages are meant.
///
/// It holds the bits itself, of the 512 pages from one on, or points to pages of bits, 32736 each, where that
/// is not enough. Sources: Jet 4 page usage maps of types 0 and 1, as mdbtools documents them.
std::string MapaDePaginas(Paginas& paginas, const std::deque<std::uint32_t>& cuales);

/// The map of the pages that are free: none of those there are, all that the file can grow by.
std::string MapaDeLibres(Paginas& paginas);

}  // namespace trabex::jet
