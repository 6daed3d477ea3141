#pragma once

#include <string>
#include <string_view>

namespace trabex {

/// A text for the inside of an HTML or XML element or attribute: the characters of the markup escaped, line
/// feeds and tabulators as they are, characters that a marked-up file may not hold (controls, bytes that are
/// no UTF-8, U+FFFE and U+FFFF) replaced by blanks or U+FFFD.
std::string TextoDeMarcado(std::string_view texto);

}  // namespace trabex
