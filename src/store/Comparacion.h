#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace trabex::almacen {

/// The name under which each connection's engine knows the order of a Comparador. It stands in no file:
/// columns are declared in an order that every tool knows, and an index that a tool makes stays true to it.
inline constexpr const char* OrdenDelAlmacen = "TRABEX";

/// How the store compares texts: without regard to case, with regard to accents, in Spanish order.
/// `LOSA Ñ` equals `losa ñ`, `losá` differs from `losa`, and n < ñ < o. Texts are UTF-8; bytes that are not
/// count as U+FFFD. One object serves one thread at a time.
class Comparador {
  public:
    Comparador();
    ~Comparador();
    Comparador(const Comparador&) = delete;
    Comparador& operator=(const Comparador&) = delete;

    /// Negative, 0 or positive as `a` stands before, equals or follows `b`.
    int Comparar(std::string_view a, std::string_view b) const;
    /// A text that equal ones share, and few others do.
    std::string Plegar(std::string_view texto) const;

  private:
    struct Interna;
    std::unique_ptr<Interna> interna_;
};

}  // namespace trabex::almacen
