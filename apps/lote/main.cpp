// trabex-lote PROYECTO.los CARPETA: calculates every element of a project and writes what it finds.

#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <iostream>
#include <thread>

#include "base/Archivos.h"
#include "lote/Lote.h"
#include "lote/qt/HojasLote.h"
#include "lote/qt/ReportesLote.h"
#include "reports/planex/ArchivoPlanex.h"

namespace {

constexpr int Hecho = 0;
constexpr int NoSePuedeEscribir = 1;
constexpr int MalUso = 2;
constexpr int NoSePuedeAbrir = 3;

std::filesystem::path CarpetaDelPrograma() {
    return trabex::CaminoDeTexto(QCoreApplication::applicationDirPath().toStdString());
}

int EscribirTodo(const trabex::lote::ProyectoCalculado& calculado, const std::filesystem::path& proyecto,
                 unsigned hilos, const std::filesystem::path& carpeta) {
    const std::filesystem::path archivo = carpeta / "resultados.json";
    const std::filesystem::path hojas = carpeta / "losas";
    const std::filesystem::path planex = carpeta / "planex" / proyecto.filename().replace_extension(".cad");
    try {
        std::error_code error;
        std::filesystem::create_directories(planex.parent_path(), error);
        trabex::EscribirArchivo(archivo, trabex::lote::DocumentoJson(calculado));
        trabex::lote::qt::EscribirHojas(proyecto, hilos, hojas);
        trabex::planex::EscribirArchivoPlanex(CarpetaDelPrograma() / "Imagen" / "ImagenCAD23.tbx", planex,
                                              proyecto, calculado.Datos, calculado.Generales);
        trabex::lote::qt::EscribirReportes(CarpetaDelPrograma(), proyecto, carpeta);
    } catch (const trabex::ErrorEjecucion& error) {
        std::cerr << "trabex-lote: no se puede escribir en " << carpeta << ": " << error.Texto() << '\n';
        return NoSePuedeEscribir;
    }
    std::cout << trabex::lote::TablaResumen(calculado, {}) << "\nResultados: " << archivo.string()
              << "\nProyecto de Planex: " << planex.string() << "\nHojas de las losas: " << hojas.string()
              << "\nReportes: " << (carpeta / "reportes").string() << '\n';
    return Hecho;
}

/// Pictures need the toolkit's fonts, not a display; what the toolkit remarks on the machine is no concern of
/// whoever reads standard error.
int SinPantalla(char** argv, const std::function<int()>& trabajo) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    std::string plataforma = "-platform";
    std::string ninguna = "offscreen";
    std::array<char*, 4> argumentos{argv[0], plataforma.data(), ninguna.data(), nullptr};
    int cuantos = 3;
    const QGuiApplication grafica(cuantos, argumentos.data());
    return trabajo();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Uso: trabex-lote PROYECTO.los CARPETA\n";
        return MalUso;
    }
    trabex::lote::ProyectoCalculado calculado;
    const unsigned hilos = std::max(1U, std::thread::hardware_concurrency());
    if (!trabex::lote::CalcularProyecto(argv[1], hilos, calculado)) {
        std::cerr << "trabex-lote: no se puede abrir el proyecto " << std::filesystem::path(argv[1]) << '\n';
        return NoSePuedeAbrir;
    }
    return SinPantalla(argv, [&] { return EscribirTodo(calculado, argv[1], hilos, argv[2]); });
}
