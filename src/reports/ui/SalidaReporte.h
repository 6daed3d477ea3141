#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Avance.h"
#include "reports/montaje/BaseTemporal.h"
#include "reports/montaje/PanelProgreso.h"
#include "reports/montaje/PapelDeGraficos.h"
#include "reports/salidas/MotorReportes.h"
#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

namespace trabex::reportes::ui {

/// What the windows of report output share: one instance, of the program.
struct EstadoSalida {
    std::int16_t ReporteActual = 0;          ///< layout of the tabular reports, 1 to 5
    bool GraficoHelicoidal = false;          ///< the drawing reports are those of the helical stairs
    bool GraficoAutoportante = false;        ///< or of the self-supporting stairs; neither: the slabs'
    montaje::PapelDeGraficos Papel{};        ///< of the self-supporting stairs' drawings
    std::uint8_t FormatoSalida = 0;          ///< the last chosen output, a place in Salidas
    std::filesystem::path ArchivoExportado;  ///< the last file chosen
    std::string Impresora;                   ///< chosen for this run; empty: the system's own
};

/// An output that the engineer can choose.
struct OpcionDeSalida {
    const char* Opcion;  ///< as the dialog names it
    const char* Titulo;  ///< of the save dialog; null: no file
    const char* Filtro;
    int Codigo;  ///< the engine's
};
inline constexpr std::uint8_t SalidaPantalla = 0;
inline constexpr std::uint8_t SalidaImpresora = 5;
inline constexpr std::array<OpcionDeSalida, 6> Salidas{{
    {"En la Pantalla...", nullptr, nullptr, 0},
    {"Adobe Acrobat (PDF)...", "Exportar el Reporte a formato: Adobe Acrobat(PDF)", "*.pdf|*.pdf",
     salidas::FormatoPdf},
    {"HTML 4.0 (Para la Web)...", "Exportar el Reporte a formato: HTLM 4.0", "*.htm|*.htm",
     salidas::FormatoHtml},
    {"Microsoft Excel...", "Exportar el Reporte a formato: Microsoft Excel 97-2000 (XLS)", "*.xls|*.xls",
     salidas::FormatoXls},
    {"Microsoft Word (RTF)...", "Exportar el Reporte a formato: Microsoft Word (RTF)", "*.rtf|*.rtf",
     salidas::FormatoRtf},
    {"Impresora...", nullptr, nullptr, 0},
}};

/// The pages that a print takes, from 1; all of them while `Ultima` is 0.
struct PaginasAImprimir {
    int Primera = 1;
    int Ultima = 0;
};

/// How a document is sent to the printer.
struct PedidoDeImpresion {
    bool Preguntar = true;  ///< the system's prompt comes first
    int Copias = 1;
    PaginasAImprimir Paginas{};
};

/// The printers of the system.
class Impresoras {
  public:
    virtual ~Impresoras() = default;
    virtual std::vector<std::string> Disponibles() const = 0;
    /// The system's default printer; empty when there is none.
    virtual std::string PorDefecto() const = 0;
    /// Prints on `impresora` (empty: the default one). False when the engineer cancels the prompt. Throws
    /// TrabajoCancelado, or ErrorEjecucion 482 when the printer refuses.
    virtual bool Imprimir(const documento::Documento& documento, const std::string& impresora,
                          const PedidoDeImpresion& pedido, const Avance& avance) = 0;
};

/// What the windows of report output work with.
struct EntornoSalida {
    programa::Aplicacion& LaAplicacion;
    EstadoSalida& Estado;
    salidas::MotorReportes& Motor;
    Impresoras& LasImpresoras;
    programa::Servicios Servicios;
    /// Makes the panel of what is written or printed, which can be cancelled; empty: none is shown.
    std::function<std::unique_ptr<montaje::PanelProgreso>()> CrearPanel{};

    /// Where reports are staged.
    montaje::EntornoReportes Montaje() const;
};

/// Where a report is kept, printed and opened from: what the dialogs and the viewer have in common.
class ExportadorReportes {
  public:
    explicit ExportadorReportes(EntornoSalida& entorno) : entorno_(entorno) {}

    void AbrirCarpeta();
    /// Asks for the file of an output and keeps it as the exported one. Nothing when the engineer cancels.
    std::optional<std::filesystem::path> PedirArchivo(std::uint8_t salida);
    /// Writes the exported file and offers to open it. False when the engineer cancels: what stood there then
    /// stays. Throws ErrorEjecucion.
    bool Exportar(const documento::Documento& documento, std::uint8_t salida);
    /// There is a printer to print on; otherwise says so.
    bool HayImpresoras();
    /// On the program's printer. False when nothing was printed. Throws ErrorEjecucion.
    bool Imprimir(const documento::Documento& documento, const PedidoDeImpresion& pedido = {});
    void Avisar(const ErrorEjecucion& error);
    /// Runs a long work with a panel from its first word on, which repaints the windows below it now and
    /// then. False when it was cancelled.
    bool ConPanel(const std::string& rotulo, const std::function<void(const Avance&)>& trabajo);

  private:
    EntornoSalida& entorno_;
};

/// What the output dialogs ask of their window.
class PantallaSalidaReporte {
  public:
    virtual ~PantallaSalidaReporte() = default;
    virtual void PunteroDeEspera(bool espera) = 0;
    /// Shows the viewer, at zoom 100, until it is closed.
    virtual void Ver(const documento::Documento& documento) = 0;
    virtual void Cerrar() = 0;
};

/// Runs a layout on the scratch database and sends it to the screen, the printer or a file. The two dialogs
/// of the program differ in the layouts they choose and in what they leave behind.
class SalidaReporte {
  public:
    SalidaReporte(EntornoSalida& entorno, PantallaSalidaReporte& pantalla)
        : entorno_(entorno), pantalla_(pantalla), exportador_(entorno) {}
    virtual ~SalidaReporte() = default;
    SalidaReporte(const SalidaReporte&) = delete;
    SalidaReporte& operator=(const SalidaReporte&) = delete;

    /// " Aceptar " with the chosen output. The window stays open when the engineer cancels a dialog, when the
    /// report fails, and when there is no layout to run.
    void Aceptar(std::uint8_t salida);
    void AbrirCarpeta() { exportador_.AbrirCarpeta(); }

  protected:
    /// File name of the layout; empty when none is chosen.
    virtual std::string Maqueta() const = 0;
    /// What the program sets of an opened layout.
    virtual void Ajustar(salidas::Reporte& /*reporte*/) const {}
    virtual void AlTerminar() {}

    EntornoSalida& entorno_;

  private:
    bool Enviar(std::uint8_t salida);

    PantallaSalidaReporte& pantalla_;
    ExportadorReportes exportador_;
};

/// Tabular reports, by `ReporteActual`.
class ImpreReport : public SalidaReporte {
  public:
    using SalidaReporte::SalidaReporte;

  protected:
    std::string Maqueta() const override;
};

/// Drawing reports; those of the self-supporting stairs on the paper that was asked for. The next time it
/// opens with the screen chosen.
class ImpreGrafico : public SalidaReporte {
  public:
    using SalidaReporte::SalidaReporte;

  protected:
    std::string Maqueta() const override;
    void Ajustar(salidas::Reporte& reporte) const override;
    void AlTerminar() override { entorno_.Estado.FormatoSalida = SalidaPantalla; }
};

}  // namespace trabex::reportes::ui
