#include "base/ErrorEjecucion.h"

namespace trabex {

const char* TextoDeError(CodigoError codigo) {
    switch (codigo) {
        case CodigoError::ArgumentoInvalido:
            return "Argumento o llamada a procedimiento no válida";
        case CodigoError::Desbordamiento:
            return "Desbordamiento";
        case CodigoError::MemoriaInsuficiente:
            return "Memoria insuficiente";
        case CodigoError::SubindiceFueraDeIntervalo:
            return "El subíndice está fuera del intervalo";
        case CodigoError::DivisionPorCero:
            return "División por cero";
        case CodigoError::TiposNoCoinciden:
            return "No coinciden los tipos";
        case CodigoError::ArchivoNoEncontrado:
            return "No se encontró el archivo";
        case CodigoError::ErrorDispositivo:
            return "Error de E/S de dispositivo";
        case CodigoError::ArchivoYaExiste:
            return "El archivo ya existe";
        case CodigoError::LongitudDeRegistro:
            return "Longitud de registro incorrecta";
        case CodigoError::DiscoLleno:
            return "Disco lleno";
        case CodigoError::PermisoDenegado:
            return "Permiso denegado";
        case CodigoError::ErrorAccesoRuta:
            return "Error de acceso a la ruta o al archivo";
        case CodigoError::RutaNoEncontrada:
            return "No se encontró la ruta de acceso";
        case CodigoError::FormatoNoValido:
            return "Formato de archivo no válido";
        case CodigoError::ErrorImpresora:
            return "Error de impresora";
        case CodigoError::CampoPequeno:
            return "El campo es demasiado pequeño para los datos";
        case CodigoError::RegistroCambiado:
            return "Otro programa cambió o eliminó estos datos después de leerlos";
    }
    return "Error definido por la aplicación o el objeto";
}

}  // namespace trabex
