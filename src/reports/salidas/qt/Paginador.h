#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "reports/documento/Documento.h"
#include "reports/salidas/qt/Piezas.h"

namespace trabex::salidas::qt {

/// A document broken into pages of a sheet. What it refers to (the document) must outlive it. One routine for
/// paper, PDF and screen: they differ only in the ink.
class Paginador {
  public:
    explicit Paginador(const documento::Documento& documento)
        : Paginador(documento, documento::MedidaDe(documento.Papel)) {}
    /// On another sheet than the document's own, as when the engineer chooses one at the printer.
    Paginador(const documento::Documento& documento, const documento::MedidaPagina& hoja);

    int NumeroPaginas() const { return static_cast<int>(paginas_.size()); }
    const documento::MedidaPagina& Papel() const { return hoja_; }
    /// Puts the ink of a page, from 0.
    void Pintar(int pagina, Tinta& tinta) const;

    const std::vector<Comienzo>& Comienzos() const { return comienzos_; }

  private:
    /// A box, or the rows of it that a page holds.
    struct Trozo {
        const Pieza* De;
        double Y;
        std::size_t Desde;
        std::size_t Hasta;
    };
    /// A line of the letterhead: one of the document's that is too long makes several.
    struct LineaCompuesta {
        QString Texto;
        std::shared_ptr<const TipoDeLetra> Letra;
        double Base;  // from the top of the page's text
    };
    using Piezas = std::vector<std::unique_ptr<Pieza>>;  // null: a page break

    void ComponerMembrete();
    void Colocar(const documento::Seccion& seccion, const Piezas& piezas);
    void ColocarPieza(const Pieza& pieza, const documento::Seccion& seccion);
    void Continuar(const documento::Seccion& seccion);
    void Marcar(const documento::Seccion& seccion);
    double AltoPrincipio(const Piezas& piezas, std::size_t i) const;
    double AltoTotal(const Piezas& piezas) const;
    void PaginaNueva();
    bool AlPrincipio() const { return paginas_.back().empty(); }
    void PintarMembrete(Tinta& tinta) const;
    void PintarBanda(Tinta& tinta, const documento::BandaDePagina& banda, double base, int pagina) const;

    const documento::Documento& documento_;
    documento::MedidaPagina hoja_;
    Letras letras_;
    std::vector<LineaCompuesta> membrete_;
    double altoMembrete_ = 0;
    QSizeF util_;
    Piezas piezas_;
    std::vector<std::vector<Trozo>> paginas_;
    std::vector<Comienzo> comienzos_;
    double y_ = 0;  // below what stands on the last page
};

}  // namespace trabex::salidas::qt
