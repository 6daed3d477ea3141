// trabex-lote PROYECTO.los CARPETA: calculates every element of a project and writes what it finds.

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <thread>

#include "base/Archivos.h"
#include "reports/Lote.h"

namespace {

constexpr int Hecho = 0;
constexpr int NoSePuedeEscribir = 1;
constexpr int MalUso = 2;
constexpr int NoSePuedeAbrir = 3;

int EscribirResultados(const trabex::ProyectoCalculado& calculado, const std::filesystem::path& carpeta) {
    const std::filesystem::path archivo = carpeta / "resultados.json";
    try {
        std::error_code error;
        std::filesystem::create_directories(carpeta, error);
        trabex::EscribirArchivo(archivo, trabex::DocumentoJson(calculado));
    } catch (const trabex::ErrorEjecucion& error) {
        std::cerr << "trabex-lote: no se puede escribir " << archivo << ": " << error.Texto() << '\n';
        return NoSePuedeEscribir;
    }
    std::cout << trabex::TablaResumen(calculado, {}) << "\nResultados: " << archivo.string() << '\n';
    return Hecho;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Uso: trabex-lote PROYECTO.los CARPETA\n";
        return MalUso;
    }
    trabex::ProyectoCalculado calculado;
    const unsigned hilos = std::max(1U, std::thread::hardware_concurrency());
    if (!trabex::CalcularProyecto(argv[1], hilos, calculado)) {
        std::cerr << "trabex-lote: no se puede abrir el proyecto " << std::filesystem::path(argv[1]) << '\n';
        return NoSePuedeAbrir;
    }
    return EscribirResultados(calculado, argv[2]);
}
