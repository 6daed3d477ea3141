#pragma once

#include <string>
#include <string_view>

namespace trabex::jet {

/// A text as little-endian UTF-16. What is no UTF-8 becomes U+FFFD.
std::string ComoUtf16(std::string_view utf8);

/// A text as a row keeps it: a byte a character behind FF FE where that is shorter and can be, else UTF-16.
std::string Comprimido(std::string_view utf8);

/// The text that a row keeps so, in UTF-8. What is no UTF-16 becomes U+FFFD.
std::string Descomprimido(std::string_view bytes);

/// The bytes of a text in the order of an index: letters and digits, whatever their case, then its end. Other
/// characters take no part.
std::string ClaveDeTexto(std::string_view utf8);

}  // namespace trabex::jet
