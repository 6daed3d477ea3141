#include "helical/salida/GraficosEscalerasH.h"

#include <array>
#include <tuple>

#include "base/Texto.h"
#include "drawing/helice/GraficoHelice.h"
#include "helical/EstacionesHelice.h"
#include "helical/salida/CamposResultadosH.h"
#include "helical/salida/PanelesEscaleraH.h"
#include "reports/montaje/AlbumGraficos.h"
#include "store/Campos.h"
#include "store/Vaciado.h"
#include "store/tablas/CamposEscalera.h"

namespace trabex::helices::salida {

namespace {

using Escaleras = std::span<const EscaleraHCalculada>;

almacen::Conexion& SinFilas(almacen::Conexion& conexion, const char* tabla) {
    almacen::VaciarTabla(conexion, tabla);
    return conexion;
}

/// Columns that take a panel's cells, from `primera` on.
template <std::size_t N>
void PonerCeldas(almacen::Insercion& tabla, const documento::FilaDeTabla& fila, std::size_t primera,
                 const std::array<const char*, N>& columnas) {
    for (std::size_t i = 0; i < N; ++i) tabla.Poner(columnas[i], fila.Celdas[primera + i]);
}

}  // namespace

void LleneEscaleraH(almacen::Conexion& temporal, Escaleras escaleras) {
    almacen::Insercion tabla(SinFilas(temporal, "EscaleraH"), "EscaleraH");
    for (const auto& [escalera, resultados] : escaleras) {
        tabla.Poner("Nombre", escalera.Nombre);
        almacen::PonerCampos(tabla, escalera, almacen::tablas::CamposEscaleraH);
        if (!resultados.Error) almacen::PonerCampos(tabla, resultados, CamposDelConjuntoH);
        tabla.Agregar();
    }
}

void LleneEscaleraHS(almacen::Conexion& temporal, Escaleras escaleras) {
    almacen::Insercion tabla(SinFilas(temporal, "EscaleraHS"), "EscaleraHS");
    for (const EscaleraHCalculada& una : escaleras) {
        const DatosEscaleraH& escalera = una.Datos;
        const ResultadosEscaleraH& r = una.Resultados;
        const auto agregar = [&](int grados, const EstacionEscaleraH& estacion) {
            tabla.Poner("Nombre", escalera.Nombre);
            tabla.Poner("Inter", static_cast<std::int16_t>(grados));
            almacen::PonerCampos(tabla, estacion, CamposEstacionH);
            tabla.Agregar();
        };
        if (r.NEst == 0 || r.Error) continue;
        const EstacionesHelice estaciones = EstacionesDe(escalera);
        for (std::size_t i = 1; i <= r.NEst; ++i) agregar(-estaciones.GradosSuperior(i), r.TramoSuperior[i]);
        for (std::size_t i = 1; i <= r.NEst; ++i) agregar(estaciones.GradosInferior(i), r.TramoInferior[i]);
    }
}

void LleneEscaleraH1S(almacen::Conexion& temporal, Escaleras escaleras) {
    constexpr std::array deSolicitaciones{"Inter", "N", "QX", "QY", "MXI", "MXS", "MY", "MT", "VT"};
    constexpr std::array deDiseno{"ASXI", "ASXS", "AsY", "Estribos"};
    almacen::Insercion tabla(SinFilas(temporal, "EscaleraH1S"), "EscaleraH1S");
    for (const EscaleraHCalculada& escalera : escaleras) {
        const documento::Tabla solicitaciones = ColoqueSolicitaciones(escalera).Celdas;
        const documento::Tabla diseno = ColoqueDiseno(escalera).Celdas;
        double numero = 0;
        for (std::size_t i = 0; i < diseno.Filas.size(); ++i) {
            if (diseno.Filas[i].Rotulo) continue;
            tabla.Poner("Nombre", escalera.Datos.Nombre);
            tabla.Poner("Numero", ++numero);
            PonerCeldas(tabla, solicitaciones.Filas[i], 0, deSolicitaciones);
            PonerCeldas(tabla, diseno.Filas[i], 5, deDiseno);
            tabla.Agregar();
        }
    }
}

bool GuardeGraficos(const montaje::EntornoReportes& entorno, const DatosDelProyecto& datos,
                    const EscaleraHCalculada& escalera, const dibujo::helice::HojaHelice& pantalla,
                    montaje::SuperficieOculta& superficie, montaje::PanelProgreso& panel) {
    almacen::Conexion temporal;
    montaje::AbrirTemporal(entorno, datos, {TituloGraficosH}, temporal);
    if (!temporal.Abierta()) return false;
    const auto visible = montaje::PanelALaVista(panel);
    almacen::Transaccion guardado(temporal);
    const std::string& nombre = escalera.Datos.Nombre;
    {
        montaje::AlbumGraficos album(temporal, entorno, superficie, panel, 1);
        dibujo::helice::HojaHelice hoja = pantalla;
        hoja.Vista = {};
        hoja.Vista.ExportandoGrafico = true;
        album.Agregar(nombre, nombre, "Exportando la Escalera: " + Mayusculas(nombre),
                      [&](dibujo::Lienzo& lienzo) { dibujo::helice::RedibujeVista(lienzo, hoja, escalera); });
    }
    LleneEscaleraH(temporal, {&escalera, 1});
    LleneEscaleraH1S(temporal, {&escalera, 1});
    return guardado.Confirmar();
}

bool LLenarDatos(const montaje::EntornoReportes& entorno, const DatosDelProyecto& datos,
                 const EscaleraHCalculada& escalera) {
    almacen::Conexion temporal;
    montaje::AbrirTemporal(entorno, datos, {TituloReporteH}, temporal);
    if (!temporal.Abierta()) return false;
    almacen::Transaccion guardado(temporal);
    LleneEscaleraH(temporal, {&escalera, 1});
    LleneEscaleraHS(temporal, {&escalera, 1});
    return guardado.Confirmar();
}

}  // namespace trabex::helices::salida
