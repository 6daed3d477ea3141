#include "reports/cuadricula/DocumentoDeCuadricula.h"

namespace trabex::cuadricula {

namespace {

constexpr double MilimetrosPorTwip = 25.4 / 1440;
constexpr double PuntosDeTitulo = 18, PuntosDeUsuario = 10, PuntosDeProyecto = 16, PuntosDeCelda = 10;

documento::Pagina HojaDe(const MembreteDeCuadricula& membrete, const AjustesDeImpresion& ajustes) {
    documento::Pagina pagina;
    pagina.Tamano = documento::TamanoPagina::Carta;
    pagina.Apaisada = ajustes.Apaisada;
    pagina.MargenIzquierdo = ajustes.MargenIzquierdo * MilimetrosPorTwip;
    pagina.MargenDerecho = ajustes.MargenDerecho * MilimetrosPorTwip;
    pagina.MargenSuperior = ajustes.MargenSuperior * MilimetrosPorTwip;
    pagina.MargenInferior = ajustes.MargenInferior * MilimetrosPorTwip;
    pagina.Membrete = LineasDe(membrete);
    pagina.LadoDeMembrete = membrete.Lado;
    if (ajustes.NumeroDePagina) pagina.Pie.Derecha = std::string("Página: ") + documento::MarcaPagina;
    return pagina;
}

documento::Tabla TablaDe(const Cuadricula& cuadricula, const HojaDeCuadricula& hoja,
                         const AjustesDeImpresion& ajustes) {
    const bool conCabeceras = ajustes.CabecerasDeFilas && hoja.TieneCabeceras();
    documento::Tabla tabla = conCabeceras ? ConCabeceras(cuadricula, hoja) : hoja.Celdas;
    tabla.Estilo = {.Titulos = ajustes.CabecerasDeColumnas,
                    .PrimeraEsTitulo = conCabeceras,
                    .Lineas = ajustes.LineasDeCuadricula,
                    .Color = ajustes.Color,
                    .Sombras = ajustes.Sombras};
    if (tabla.Filas.empty()) tabla.Filas.emplace_back();  // without a row its headings would not show
    return tabla;
}

}  // namespace

std::vector<documento::LineaDeMembrete> LineasDe(const MembreteDeCuadricula& membrete) {
    std::vector<documento::LineaDeMembrete> lineas{{membrete.Titulo, PuntosDeTitulo, true}};
    const bool conUsuario = !membrete.Usuario.empty();
    if (conUsuario) lineas.push_back({membrete.Usuario, PuntosDeUsuario, true});
    if (membrete.Proyecto)
        lineas.push_back(
            {(conUsuario ? "Proyecto: " : "proyecto: ") + *membrete.Proyecto, PuntosDeProyecto, true});
    return lineas;
}

documento::Documento DocumentoDe(const Cuadricula& cuadricula, const MembreteDeCuadricula& membrete,
                                 const AjustesDeImpresion& ajustes) {
    documento::Documento documento;
    documento.Titulo = membrete.Titulo;
    documento.Autor = membrete.Usuario;
    documento.Papel = HojaDe(membrete, ajustes);
    documento.Letra = PuntosDeCelda;
    documento.Locales = cuadricula.Locales;
    for (const HojaDeCuadricula& hoja : cuadricula.Hojas)
        documento.Secciones.push_back({.Nombre = hoja.Nombre,
                                       .PaginaNueva = true,
                                       .Junta = false,
                                       .Bloques = {TablaDe(cuadricula, hoja, ajustes)}});
    return documento;
}

}  // namespace trabex::cuadricula
