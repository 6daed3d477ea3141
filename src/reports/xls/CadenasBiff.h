#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace trabex::xls {

/// The texts of a book's cells, each kept once; cells refer to them by number.
class CadenasBiff {
  public:
    std::uint32_t Indice(const std::string& texto);
    /// The table of texts. One that meets a record's end goes on in the next, which repeats its width.
    void Escribir(std::string& flujo) const;

  private:
    std::unordered_map<std::string, std::uint32_t> indices_;
    std::vector<const std::string*> textos_;
    std::uint32_t referencias_ = 0;
};

}  // namespace trabex::xls
