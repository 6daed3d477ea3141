#include "lote/qt/ReportesLote.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "drawing/Superficie.h"
#include "lote/NombreDeArchivo.h"
#include "reports/montaje/TablaGraficos.h"
#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/salidas/MotorReportes.h"
#include "reports/salidas/qt/EscritorPdf.h"

namespace trabex::lote::qt {

namespace {

constexpr std::array<std::pair<int, const char*>, 4> Formatos{{{salidas::FormatoPdf, ".pdf"},
                                                               {salidas::FormatoHtml, ".htm"},
                                                               {salidas::FormatoXls, ".xls"},
                                                               {salidas::FormatoRtf, ".rtf"}}};

constexpr std::size_t DibujosALaVez = 48;  // what is drawn and not yet staged stays in memory

/// The reports of one list on their way.
class ReportesDeLista {
  public:
    ReportesDeLista(const montaje::EntornoReportes& entorno, const std::filesystem::path& destino,
                    const Lista& lista, const DatosDelProyecto& datos, const Marcha& marcha, Faltas& faltas,
                    Pinturas* pinturas)
        : entorno_(entorno),
          destino_(destino),
          lista_(lista),
          datos_(datos),
          marcha_(marcha),
          faltas_(faltas),
          pinturas_(pinturas) {
        motor_.Registrar(salidas::FormatoPdf, salidas::qt::EscribirPdf);
    }

    void Graficos() {
        almacen::Conexion temporal;
        const ReportesDeModulo& reportes = *lista_.De->Reportes;
        montaje::AbrirTemporal(entorno_, datos_,
                               {reportes.TituloGraficos ? reportes.TituloGraficos : reportes.Titulo},
                               temporal);
        almacen::Transaccion guardado(temporal);
        MontarDibujos(temporal);
        if (reportes.MontarConGraficos) reportes.MontarConGraficos(temporal, lista_);
        if (!guardado.Confirmar()) return NoSeMonto("graficos");
        temporal.Cerrar();
        Exportar(reportes.Graficos, "graficos");
    }

    void Resultados() {
        if (!lista_.De->Reportes->UnoPorElemento) return ResultadosDe(lista_, "resultados");
        for (std::size_t i = 0; i < lista_.Elementos.size(); ++i) {
            const Elemento& elemento = lista_.Elementos[i];
            ResultadosDe({lista_.De, lista_.Generales, {elemento}},
                         std::to_string(i + 1) + "-" + ParaArchivo(elemento.Nombre));
        }
    }

  private:
    std::string Reporte(const std::string& nombre) const {
        return "el reporte " + std::string(lista_.De->Clave) + "-" + nombre;
    }

    /// The heading names the first element, as that of a workspace that has just opened does.
    void ResultadosDe(const Lista& lista, const std::string& nombre) {
        almacen::Conexion temporal;
        const std::string primero = lista.Elementos.empty() ? "" : lista.Elementos.front().Nombre;
        montaje::AbrirTemporal(entorno_, datos_, {lista.De->Reportes->Titulo, primero, true}, temporal);
        almacen::Transaccion guardado(temporal);
        lista.De->Reportes->Montar(temporal, lista);
        if (!guardado.Confirmar()) return NoSeMonto(nombre);
        temporal.Cerrar();
        Exportar(lista.De->Reportes->Resultados, nombre);
    }

    void NoSeMonto(const std::string& nombre) {
        faltas_.Anotar(Reporte(nombre), TextoDeError(CodigoError::ErrorAccesoRuta));
    }

    void MontarDibujos(almacen::Conexion& temporal) {
        struct DeElemento {
            const Elemento* Suyo;
            std::size_t Numero;
            Dibujo Hoja;
        };
        std::vector<DeElemento> dibujos;
        for (const Elemento& elemento : lista_.Elementos) {
            std::size_t numero = 0;
            for (Dibujo& dibujo : lista_.De->Dibujos(lista_, elemento))
                dibujos.push_back({&elemento, numero++, std::move(dibujo)});
        }
        montaje::TablaGraficos tabla(temporal);
        for (std::size_t desde = 0; desde < dibujos.size(); desde += DibujosALaVez) {
            std::vector<montaje::ImagenMontada> tanda(std::min(DibujosALaVez, dibujos.size() - desde));
            EnParalelo(marcha_.Hilos, tanda.size(), [&](std::size_t i, unsigned) {
                montaje::qt::SuperficieQt superficie;
                superficie.Dibujar(dibujo::AnchoGraficoTwips, dibujo::AltoGraficoTwips,
                                   dibujos[desde + i].Hoja.Dibujar);
                tanda[i] = superficie.Imagen();
                if (desde + i + 1 == dibujos.size()) montaje::DejarFoto(entorno_, superficie.Foto());
            });
            for (std::size_t i = 0; i < tanda.size(); ++i) {
                const auto& [elemento, numero, dibujo] = dibujos[desde + i];
                if (pinturas_) pinturas_->Guardar(*elemento, numero, tanda[i].Trazos, tanda[i].Png);
                for (const auto& [columna, valor] : dibujo.Columnas) tabla.Poner(columna, valor);
                tabla.Agregar(elemento->Nombre, dibujo.Titulo, std::move(tanda[i]));
                if (marcha_.Avance) marcha_.Avance("Montando los gráficos", desde + i + 1, dibujos.size());
            }
        }
    }

    void Exportar(const char* diseno, const std::string& nombre) {
        try {
            salidas::Reporte reporte(entorno_.CaminoPrograma / "Reportes" / diseno, {});
            reporte.Ubicar(montaje::TemporalMdb(entorno_));
            const documento::Documento& documento = reporte.Contenido();
            Repartir(marcha_, "Exportando " + nombre, Formatos.size(),
                     [&](std::size_t i, unsigned) { Escribir(documento, Formatos[i], nombre); });
        } catch (const ErrorEjecucion& error) {
            faltas_.Anotar(Reporte(nombre), error.Texto());
        }
    }

    void Escribir(const documento::Documento& documento, const std::pair<int, const char*>& formato,
                  const std::string& nombre) {
        const std::string archivo = std::string(lista_.De->Clave) + "-" + nombre + formato.second;
        try {
            motor_.Exportar(documento, formato.first, destino_ / archivo);
        } catch (const ErrorEjecucion& error) {
            faltas_.Anotar("el reporte " + archivo, error.Texto());
        }
    }

    const montaje::EntornoReportes& entorno_;
    const std::filesystem::path& destino_;
    const Lista& lista_;
    const DatosDelProyecto& datos_;
    const Marcha& marcha_;
    Faltas& faltas_;
    Pinturas* pinturas_;
    salidas::MotorReportes motor_;
};

}  // namespace

void EscribirReportes(const std::filesystem::path& programa, const Lista& lista,
                      const DatosDelProyecto& datos, bool dibujos, const std::filesystem::path& carpeta,
                      const Marcha& marcha, Faltas& faltas, Pinturas* pinturas) {
    const std::filesystem::path destino = carpeta / "reportes";
    const montaje::EntornoReportes entorno{programa, carpeta / "Trabajo" / lista.De->Clave, ""};
    std::error_code error;
    std::filesystem::create_directories(destino, error);
    std::filesystem::create_directories(entorno.Trabajo, error);
    ReportesDeLista reportes(entorno, destino, lista, datos, marcha, faltas, pinturas);
    if (dibujos && lista.De->Reportes->Graficos) reportes.Graficos();
    if (lista.De->Reportes->Resultados) reportes.Resultados();
}

}  // namespace trabex::lote::qt
