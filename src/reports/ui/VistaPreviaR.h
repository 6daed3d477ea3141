#pragma once

#include <array>
#include <string>

#include "reports/cuadricula/DocumentoDeCuadricula.h"
#include "reports/ui/SalidaReporte.h"

namespace trabex::reportes::ui {

/// Ways in which the preview shows its pages, in the order of its list.
enum class ModoDeZoom {
    PaginaEntera,
    TamanoNormal,
    Porcentaje,
    PorcentajeAncho,
    PorcentajeAlto,
    MultiplesPaginas
};
inline constexpr std::array<const char*, 6> ModosDeZoom{"Página Entera",   "Tamaño Normal",
                                                        "Porcentaje",      "Porcentaje Ancho",
                                                        "Porcentaje Alto", "Múltiples Páginas"};
inline constexpr std::array<int, 8> PorcentajesDeZoom{500, 400, 300, 200, 100, 75, 50, 25};
inline constexpr int MayorCuadriculaDePaginas = 6;

/// Operations of the preview of a grid. The grid is the caller's and outlives the window.
class VistaPreviaR {
  public:
    static constexpr const char* Titulo = "Reportes TBX";

    /// The pages' head tells `titulo`, the user and, where a project is open, its title.
    VistaPreviaR(EntornoSalida& entorno, const cuadricula::Cuadricula& GrillaPreview,
                 const std::string& titulo, documento::Alineacion lado, bool apaisada);

    const std::string& TituloDelReporte() const { return membrete_.Titulo; }
    /// As the engineer edits it: the pages' head takes it.
    void PonerTitulo(const std::string& titulo) { membrete_.Titulo = titulo; }
    const cuadricula::Cuadricula& Grilla() const { return grilla_; }
    cuadricula::AjustesDeImpresion& Ajustes() { return ajustes_; }

    documento::Documento Paginas() const { return cuadricula::DocumentoDe(grilla_, membrete_, ajustes_); }
    /// "2  de  5".
    static std::string Rotulo(int pagina, int paginas);

    /// " Aceptar " of `ImpreVistaPrevia`: asks, and prints. True when the pages were sent.
    bool Imprimir(const cuadricula::AjustesDeImpresion& ajustes, const PaginasAImprimir& paginas);

  private:
    EntornoSalida& entorno_;
    const cuadricula::Cuadricula& grilla_;
    cuadricula::MembreteDeCuadricula membrete_;
    cuadricula::AjustesDeImpresion ajustes_;
};

}  // namespace trabex::reportes::ui
