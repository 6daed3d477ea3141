#pragma once

#include <QSizeF>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "reports/documento/Documento.h"
#include "reports/salidas/qt/Tinta.h"

namespace trabex::salidas::qt {

/// The fonts of a document.
struct Letras {
    explicit Letras(double puntos);
    TipoDeLetra Normal;
    TipoDeLetra Negrita;
    TipoDeLetra Cursiva;
    TipoDeLetra Chica;
    std::array<TipoDeLetra, 3> Titulos;
};

/// Where a section begins: its page, from 0, and how far below the sheet's upper edge.
struct Comienzo {
    std::string Seccion;
    int Pagina;
    double Y;
};

/// A block as it stands on pages: how high it is, where it may break, and its ink. It refers to the block and
/// the fonts, which outlive it.
class Pieza {
  public:
    virtual ~Pieza() = default;

    /// Blank before and after it; none at the head of a page.
    virtual double Antes() const { return 0; }
    virtual double Despues() const { return 0; }
    /// It stays on the page of the box that follows.
    virtual bool ConLaSiguiente() const { return false; }
    /// Into how many rows it can be broken.
    virtual std::size_t Filas() const { return 1; }
    /// The height of rows `desde` … `hasta` - 1, with the header that they take.
    virtual double Alto(std::size_t desde, std::size_t hasta) const = 0;
    /// Of how many rows at least it begins.
    virtual std::size_t FilasDelPrincipio() const { return 1; }
    /// Once all have their place.
    virtual void Numerar(const std::vector<Comienzo>& /*comienzos*/) {}
    virtual void Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const = 0;
};

/// The box of a block on a page whose text is `util` wide and high, in hundredths of a millimetre. Null for a
/// page break.
std::unique_ptr<Pieza> PiezaDe(const documento::Bloque& bloque, const documento::Documento& documento,
                               const Letras& letras, const QSizeF& util);

}  // namespace trabex::salidas::qt
