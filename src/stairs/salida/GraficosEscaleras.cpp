#include "stairs/salida/GraficosEscaleras.h"

#include <array>

#include "base/Texto.h"
#include "reports/montaje/AlbumGraficos.h"
#include "stairs/salida/RecorrerEscaleras.h"

namespace trabex::escaleras::salida {

namespace {

/// The last one is that of the reactions alone.
constexpr std::array<DibujoDeEscalera, 5> Dibujos{{
    {dibujo::escalera::VistaGeometria, ": GEOMETRÍA"},
    {dibujo::escalera::VistaSolicitaciones, ": SOLICITACIONES"},
    {dibujo::escalera::VistaDiseno, ": DISEÑO"},
    {dibujo::escalera::VistaReacciones, ": REACCIONES"},
    {dibujo::escalera::VistaReacciones, ": REACCIONES EN VIGAS"},
}};

/// What a value of `OpcionGrafico` asks for: a run of the drawings, of the selected stair or of all.
struct Opcion {
    bool Todas;
    std::size_t Primero;
    std::size_t Cuantos;
};
constexpr std::array<Opcion, 6> Opciones{
    {{false, 0, 4}, {true, 0, 4}, {true, 0, 1}, {true, 1, 1}, {true, 2, 1}, {true, 4, 1}}};

/// Adds the sheets of one stair after another, whole and without grid.
class Montaje {
  public:
    Montaje(montaje::AlbumGraficos& album, std::span<const DibujoDeEscalera> dibujos,
            const Separadores& numeros)
        : album_(album), dibujos_(dibujos) {
        hoja_.Numeros = numeros;
        hoja_.Vista.ExportandoGrafico = true;
    }

    void Agregar(const EscaleraCalculada& escalera) {
        const std::string& nombre = escalera.Datos.Nombre;
        for (const DibujoDeEscalera& dibujo : dibujos_) {
            hoja_.VistaActual = dibujo.Vista;
            for (const auto& [columna, carga] : CargasDe(escalera.Datos)) album_.Poner(columna, carga);
            album_.Agregar(
                nombre, nombre + dibujo.Titulo, "Exportando la Escalera: " + Mayusculas(nombre),
                [&](dibujo::Lienzo& lienzo) { dibujo::escalera::RedibujeVista(lienzo, hoja_, escalera); });
        }
    }

  private:
    montaje::AlbumGraficos& album_;
    std::span<const DibujoDeEscalera> dibujos_;
    dibujo::escalera::HojaEscalera hoja_;
};

}  // namespace

PedidoDeGraficos PedidoDe(std::uint8_t OpcionGrafico) {
    if (OpcionGrafico >= Opciones.size()) return {};
    const Opcion& opcion = Opciones[OpcionGrafico];
    return {opcion.Todas, std::span(Dibujos).subspan(opcion.Primero, opcion.Cuantos)};
}

std::vector<std::pair<std::string_view, almacen::Valor>> CargasDe(const DatosEscaleraT& escalera) {
    return {{"CargaTramo", static_cast<double>(escalera.WT)},
            {"CargaVolado", static_cast<double>(escalera.Wd)},
            {"CargaPermanente", static_cast<double>(escalera.WpD)}};
}

bool GuardeGraficos(const montaje::EntornoReportes& entorno, const ProyectoParaReporte& origen,
                    const Separadores& numeros, montaje::SuperficieOculta& superficie,
                    montaje::PanelProgreso& panel, const montaje::EstadoReportes& estado) {
    almacen::Conexion temporal;
    montaje::AbrirTemporal(entorno, origen.Datos, {TituloReporteEscaleras}, temporal);
    const auto escaleras = static_cast<std::size_t>(origen.Proyecto.RegistrosProyecto.NumeroRegistros());
    const auto [todas, dibujos] = PedidoDe(estado.OpcionGrafico);
    if (!temporal.Abierta() || escaleras == 0 || dibujos.empty()) return temporal.Abierta();

    const auto visible = montaje::PanelALaVista(panel);
    almacen::Transaccion guardado(temporal);
    {
        montaje::AlbumGraficos album(temporal, entorno, superficie, panel,
                                     dibujos.size() * (todas ? escaleras : 1), TamanoDe(estado.Papel),
                                     todas ? dibujos.size() : 1);
        Montaje montaje(album, dibujos, numeros);
        if (todas)
            RecorrerEscaleras(origen.Proyecto, origen.Actual.Generales,
                              [&](int, const EscaleraCalculada& escalera) { montaje.Agregar(escalera); });
        else
            montaje.Agregar(origen.Actual);
    }
    return guardado.Confirmar();
}

}  // namespace trabex::escaleras::salida
