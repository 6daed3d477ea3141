#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace trabex {

/// Characters (code points) of a UTF-8 text.
std::size_t NumeroDeCaracteres(std::string_view texto);

/// Whether a text is of printable ASCII alone, and of no character of `salvo`: most of what is written is,
/// and stands as it is in any format.
bool EsLlano(std::string_view texto, std::string_view salvo);

/// `texto` as valid UTF-8, for files that programs read: what is not becomes U+FFFD.
std::string TextoValido(std::string_view texto);

/// Takes the first character of a UTF-8 text that is not empty. Bytes that are no character count as U+FFFD,
/// one by one.
char32_t TomarCaracter(std::string_view& resto);

/// `texto` as a page can show it: line feeds stay, other control characters become blanks, and bytes that are
/// no UTF-8 become U+FFFD.
std::string TextoImprimible(std::string_view texto);

/// `texto` in capitals, the accented letters of Spanish and its neighbours included.
std::string Mayusculas(std::string texto);

/// `texto` without the blanks around it.
std::string Recortar(std::string_view texto);

}  // namespace trabex
