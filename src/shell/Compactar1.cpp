#include "shell/Compactar1.h"

#include <algorithm>
#include <array>
#include <ctime>

#include "base/Archivos.h"
#include "base/Texto.h"
#include "shell/Respaldos.h"
#include "store/Comparacion.h"
#include "store/Mantenimiento.h"

namespace trabex::programa {

namespace {

/// "DBT_" with the minute and the second of now.
std::string NombreTemporal() {
    const std::time_t ahora = std::time(nullptr);
    std::array<char, 32> texto{};
    std::strftime(texto.data(), texto.size(), "DBT_%M%S.mdb", std::localtime(&ahora));
    return texto.data();
}

}  // namespace

namespace {

/// What a damaged file lost, for the engineer.
std::string Renglon(const std::filesystem::path& archivo, const almacen::Salvado& salvado) {
    std::string texto = "Archivo: " + Mayusculas(TextoDeCamino(archivo.filename())) +
                        "\nEstaba Dañado: se Salvaron " + std::to_string(salvado.Filas) + " Filas";
    if (salvado.PaginasPerdidas == 0 && salvado.FilasPerdidas == 0) return texto;
    return texto + " y se Perdieron " + std::to_string(salvado.FilasPerdidas) + " Filas y " +
           std::to_string(salvado.PaginasPerdidas) + " Páginas de Filas";
}

}  // namespace

std::vector<std::string> ListarProyectos(const std::filesystem::path& carpeta) {
    std::vector<std::string> nombres;
    for (const std::filesystem::path& archivo : ArchivosDe(carpeta)) {
        if (Mayusculas(TextoDeCamino(archivo.extension())) == ".LOS")
            nombres.push_back(TextoDeCamino(archivo.filename()));
    }
    const almacen::Comparador comparador;
    std::sort(nombres.begin(), nombres.end(),
              [&](const std::string& a, const std::string& b) { return comparador.Comparar(a, b) < 0; });
    return nombres;
}

void Compactar1::Avisar(const std::string& texto, const std::string& encabezado) {
    Mensaje mensaje;
    mensaje.Texto = texto;
    mensaje.Encabezado = encabezado;
    servicios_.Caja.Mostrar(mensaje);
}

void Compactar1::VaciarTemporales() const {
    for (const std::filesystem::path& archivo : ArchivosDe(servicios_.Carpetas.CaminoTemporales)) {
        std::error_code ignorado;
        std::filesystem::remove(archivo, ignorado);
    }
}

void Compactar1::Compactar(const std::filesystem::path& archivo) {
    const std::filesystem::path destino = servicios_.Carpetas.CaminoTemporales / NombreTemporal();
    std::error_code error;
    Respaldar(aplicacion_.Respaldos, archivo);
    if (std::filesystem::exists(destino, error)) BorrarArchivo(destino);
    const auto plantilla = servicios_.Carpetas.CaminoPrograma / "Imagen" / "LosaImagen.tbx";
    const almacen::Compactado compactado = almacen::CompactarBaseDatos(
        archivo, destino, Existe(plantilla) ? plantilla : std::filesystem::path());
    if (!compactado) {
        Mensaje fallo;
        fallo.Texto = " Error: " + std::to_string(static_cast<int>(compactado.Causa));
        fallo.Encabezado = "Error Inesperado";
        fallo.Titulo = "Error Inesperado";
        fallo.Icono = IconoCaja::Error;
        servicios_.Caja.Mostrar(fallo);
    }
    almacen::ExigirLibre(archivo);
    ExigirBorrable(archivo);
    if (!servicios_.Sistema.LlevarAPapelera(archivo)) BorrarArchivo(archivo);
    almacen::OlvidarGuardado(archivo);
    CopiarArchivo(destino, archivo);
    if (compactado.DelDanado.Filas > 0) danados_.push_back(Renglon(archivo, compactado.DelDanado));
}

int Compactar1::CompactarTodos(const std::filesystem::path& carpeta,
                               const std::vector<std::string>& elegidos) {
    int reparados = 0;
    for (const std::string& nombre : elegidos) {
        pantalla_.PunteroDeEspera(true);
        pantalla_.Avanzar(100.0 * reparados / static_cast<double>(elegidos.size()),
                          "Archivo: " + Mayusculas(nombre));
        Compactar(carpeta / CaminoDeTexto(nombre));
        ++reparados;
        pantalla_.Avanzar(100.0 * reparados / static_cast<double>(elegidos.size()),
                          "Archivo: " + Mayusculas(nombre));
    }
    return reparados;
}

void Compactar1::Aceptar(const std::filesystem::path& carpeta, const std::vector<std::string>& elegidos) {
    if (elegidos.empty()) {
        Mensaje ninguno;
        ninguno.Texto = "No ha Seleccionado ningún Archivo...";
        ninguno.Encabezado = "Reparar Archivos...";
        ninguno.Titulo = "Reparar y Compactar Archivos";
        ninguno.Icono = IconoCaja::Advertencia;
        servicios_.Caja.Mostrar(ninguno);
        return;
    }
    aplicacion_.Proyecto.ConexionProyecto.Cerrar();
    danados_.clear();
    VaciarTemporales();
    pantalla_.MostrarProgreso(true);
    try {
        const int reparados = CompactarTodos(carpeta, elegidos);
        pantalla_.MostrarProgreso(false);
        pantalla_.RefrescarLista();
        pantalla_.PunteroDeEspera(false);
        Avisar(reparados > 0
                   ? "¡Se Repararon Y Compactaron ( " + std::to_string(reparados) + " ) Archivos con Exito!"
                   : "No se Reparó ni Compactó Nigún Archivo...",
               "Mantenimiento de Archivos...");
        for (const std::string& danado : danados_) Avisar(danado, "Mantenimiento de Archivos...");
    } catch (const ErrorEjecucion& error) {
        pantalla_.MostrarProgreso(false);
        pantalla_.RefrescarLista();
        pantalla_.PunteroDeEspera(false);
        Mensaje mensaje = MensajeDeError(error, "¡Falló la Acción de Reparar Y Compactar el Archivo!");
        mensaje.Texto = "Número de Error: " + std::to_string(error.Codigo()) + "\n" + error.Texto();
        servicios_.Caja.Mostrar(mensaje);
        return;
    }
    pantalla_.Cerrar();
}

}  // namespace trabex::programa
