#include "shell/Servicios.h"

#include "base/Archivos.h"

namespace trabex::programa {

ErrorEjecucion SinProgramaQueAbra() {
    return {CodigoError::ArchivoNoEncontrado, "No se encontró un programa que abra el archivo"};
}

bool AbrirODecir(const Servicios& servicios, const std::filesystem::path& camino) {
    std::error_code error;
    const bool existe = Existe(camino);
    if (existe && (std::filesystem::is_directory(camino, error) ? servicios.Sistema.AbrirCarpeta(camino)
                                                                : servicios.Sistema.AbrirArchivo(camino)))
        return true;
    const bool carpeta = !camino.has_extension();
    const ErrorEjecucion falta(carpeta ? CodigoError::RutaNoEncontrada : CodigoError::ArchivoNoEncontrado);
    servicios.Caja.Mostrar(MensajeDeError(existe ? SinProgramaQueAbra() : falta, ErrorInesperado));
    return false;
}

}  // namespace trabex::programa
