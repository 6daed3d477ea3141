#include "lote/ui/qt/EspacioMemoria.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>
#include <algorithm>
#include <array>
#include <atomic>
#include <future>
#include <mutex>
#include <optional>
#include <thread>

#include "base/Archivos.h"
#include "lote/qt/MemoriaLote.h"
#include "shell/CajaMensajes.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::lote::ui::qt {

namespace {

constexpr const char* Titulo = "Memoria de Cálculo...";
constexpr const char* Filtro =
    "Documento PDF (.pdf)|*.pdf|Página Web (.htm)|*.htm|Texto (.rtf)|*.rtf|Hojas de Cálculo (.xls)|*.xls";
constexpr std::array<const char*, 4> Extensiones{".pdf", ".htm", ".rtf", ".xls"};

struct Detenida {};

/// How far the work is, told by its threads and read by the window.
class Progreso {
  public:
    Marcha MarchaDe() {
        return {std::max(1U, std::thread::hardware_concurrency()),
                [this](const std::string& tarea, std::size_t hechos, std::size_t total) {
                    if (Detener) throw Detenida();
                    const std::scoped_lock cerrojo(cerrojo_);
                    tarea_ = tarea;
                    hechos_ = hechos;
                    total_ = total;
                }};
    }
    void Mostrar(QProgressDialog& panel) {
        const std::scoped_lock cerrojo(cerrojo_);
        panel.setLabelText(programa::qt::Q(tarea_));
        panel.setMaximum(static_cast<int>(total_));
        panel.setValue(static_cast<int>(std::min(hechos_, total_ == 0 ? 0 : total_ - 1)));
    }
    std::atomic<bool> Detener = false;

  private:
    std::mutex cerrojo_;
    std::string tarea_;
    std::size_t hechos_ = 0, total_ = 0;
};

/// The faults of a memo; nothing when it was stopped.
std::optional<std::vector<Falta>> Escribir(const std::filesystem::path& proyecto, Modulos modulos,
                                           const Separadores& numeros,
                                           const lote::qt::ArchivoDeMemoria& archivo, Progreso& progreso) {
    try {
        const Marcha marcha = progreso.MarchaDe();
        ProyectoCalculado calculado;
        Faltas faltas;
        if (CalcularProyecto(proyecto, modulos, marcha, calculado))
            lote::qt::EscribirMemoria(calculado, true, numeros, std::span(&archivo, 1), marcha, faltas);
        else
            faltas.Anotar(TextoDeCamino(proyecto.filename()), TextoDeError(CodigoError::ErrorAccesoRuta));
        return faltas.Todas();
    } catch (const Detenida&) {
        return std::nullopt;
    }
}

void Ejecutar(Modulos modulos, programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
              QWidget* padre) {
    std::filesystem::path nombre = aplicacion.ArchivoProyecto.filename();
    const auto elegido =
        servicios.Dialogos.Elegir({"Memoria de Cálculo", Filtro, servicios.Carpetas.ReportesExportados(),
                                   true, true, false, TextoDeCamino(nombre.replace_extension(".pdf"))});
    if (!elegido) return;
    const std::string extension = TextoDeCamino(elegido->extension());
    const auto* conocida = std::find(Extensiones.begin(), Extensiones.end(), extension);
    const lote::qt::ArchivoDeMemoria archivo{*elegido,
                                             conocida == Extensiones.end() ? Extensiones.front() : *conocida};

    QProgressDialog panel("Calculando el proyecto", "Cancelar", 0, 0, padre);
    panel.setWindowTitle("Memoria de Cálculo");
    panel.setWindowModality(Qt::WindowModal);
    panel.setMinimumDuration(0);
    panel.setAutoClose(false);
    panel.setAutoReset(false);
    panel.show();
    Progreso progreso;
    auto trabajo = std::async(std::launch::async, [&] {
        return Escribir(aplicacion.ArchivoProyecto, modulos, aplicacion.SeparadoresLocales, archivo,
                        progreso);
    });
    while (trabajo.wait_for(std::chrono::milliseconds(30)) != std::future_status::ready) {
        progreso.Mostrar(panel);
        progreso.Detener = progreso.Detener || panel.wasCanceled();
        QApplication::processEvents();
    }
    const std::optional<std::vector<Falta>> faltas = trabajo.get();
    panel.close();
    if (!faltas) return;
    for (const Falta& falta : *faltas) {
        programa::Mensaje mensaje =
            programa::Aviso(falta.Salida + "\n" + falta.Texto, programa::ErrorInesperado);
        mensaje.Icono = programa::IconoCaja::Error;
        servicios.Caja.Mostrar(mensaje);
    }
    if (faltas->empty() &&
        servicios.Caja.Mostrar(programa::Pregunta(
            "La Memoria se escribió en:\n" + TextoDeCamino(*elegido) + "\n¿Desea Usted Abrirla?", Titulo)) ==
            programa::RespuestaSi)
        servicios.Sistema.AbrirArchivo(*elegido);
}

}  // namespace

programa::qt::Espacio EspacioMemoria(Modulos modulos) {
    return {"ID_Memoria",
            [modulos](programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                      QWidget* padre) { Ejecutar(modulos, aplicacion, servicios, padre); },
            "06-salidas"};
}

}  // namespace trabex::lote::ui::qt
