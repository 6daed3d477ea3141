#include "slab/salida/GraficosLosas.h"

#include <array>

#include "base/Texto.h"
#include "reports/montaje/AlbumGraficos.h"

namespace trabex::losas::salida {

namespace {

constexpr std::array<DibujoDeLosa, 4> Dibujos{{
    {dibujo::losa::VistaGeometria, false, ": GEOMETRÍA DE LA LOSA"},
    {dibujo::losa::VistaFuerzas, false, ": CORTES Y MOMENTOS"},
    {dibujo::losa::VistaDiseno, false, ": ANÁLISIS Y DISEÑO"},
    {dibujo::losa::VistaDiseno, true, ": REACCIONES SOBRE VIGAS"},
}};

/// What a value of `OpcionGrafico` asks for: a run of the drawings, of the selected slab or of all.
struct Opcion {
    bool Todas;
    std::size_t Primero;
    std::size_t Cuantos;
};
constexpr std::array<Opcion, 6> Opciones{
    {{false, 0, 3}, {true, 0, 3}, {true, 0, 1}, {true, 1, 1}, {true, 2, 1}, {true, 3, 1}}};

void AgregarDibujos(montaje::AlbumGraficos& album, const LosaDelProyecto& losa, dibujo::losa::HojaLosa& hoja,
                    std::span<const DibujoDeLosa> dibujos) {
    const std::string& nombre = losa.Datos.Nombre;
    const std::size_t hojas = dibujo::losa::HojasDe(losa.Datos);
    for (const DibujoDeLosa& dibujo : dibujos) {
        hoja.VistaActual = dibujo.Vista;
        hoja.SoloReacciones = dibujo.SoloReacciones;
        for (hoja.Grupo = 1; hoja.Grupo <= hojas; ++hoja.Grupo)
            album.Agregar(
                nombre, TituloDe(nombre, dibujo, hoja.Grupo, hojas),
                "Exportando la Losa: " + Mayusculas(nombre), [&](dibujo::Lienzo& lienzo) {
                    dibujo::losa::RedibujeVista(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados});
                });
    }
}

}  // namespace

PedidoDeGraficos PedidoDe(std::uint8_t OpcionGrafico) {
    if (OpcionGrafico >= Opciones.size()) return {};
    const Opcion& opcion = Opciones[OpcionGrafico];
    return {opcion.Todas, std::span(Dibujos).subspan(opcion.Primero, opcion.Cuantos)};
}

std::string TituloDe(const std::string& nombre, const DibujoDeLosa& dibujo, std::size_t hoja,
                     std::size_t hojas) {
    const std::string rotulo = dibujo::losa::NumeroDeHoja(hoja, hojas);
    return nombre + dibujo.Titulo + (rotulo.empty() ? "" : " (" + rotulo + ")");
}

bool GuardeGraficos(const montaje::EntornoReportes& entorno, const ProyectoParaReporte& origen,
                    const dibujo::losa::HojaLosa& hoja, montaje::SuperficieOculta& superficie,
                    montaje::PanelProgreso& panel, const montaje::EstadoReportes& estado) {
    almacen::Conexion temporal;
    montaje::AbrirTemporal(entorno, origen.Datos, {TituloReporteLosas}, temporal);
    const auto [todas, dibujos] = PedidoDe(estado.OpcionGrafico);
    if (!temporal.Abierta() || origen.Proyecto.RegistrosProyecto.NumeroRegistros() == 0 || dibujos.empty())
        return temporal.Abierta();

    dibujo::losa::HojaLosa propia;
    propia.OpcionCarga = hoja.OpcionCarga;
    propia.Numeros = hoja.Numeros;
    propia.Vista.ExportandoGrafico = true;
    propia.PorGrupos = true;
    const auto visible = montaje::PanelALaVista(panel);
    almacen::Transaccion guardado(temporal);
    {
        montaje::AlbumGraficos album(temporal, entorno, superficie, panel,
                                     dibujos.size() * ContarEnLosas(origen, todas, dibujo::losa::HojasDe));
        const auto dibujar = [&, &suyos = dibujos](const LosaDelProyecto& losa) {
            AgregarDibujos(album, losa, propia, suyos);
        };
        RecorrerLosas(origen, todas, dibujar);
    }
    return guardado.Confirmar();
}

}  // namespace trabex::losas::salida
