#include "loads/ui/Normas.h"

#include "base/Archivos.h"

namespace trabex::cargas::ui {

namespace {

const char* ArchivoDe(DocumentoDeNorma documento) {
    return documento == DocumentoDeNorma::Articulado ? "Acciones Minimas Articulado 2002-1988.pdf"
                                                     : "Acciones Minimas Comentario 2002-1988.pdf";
}

}  // namespace

void Normas::Abrir(DocumentoDeNorma documento) {
    const std::filesystem::path camino = servicios_.Carpetas.CaminoPrograma / "Normas" / ArchivoDe(documento);
    if (Existe(camino) && servicios_.Sistema.AbrirArchivo(camino)) return;
    servicios_.Caja.Mostrar(programa::MensajeDeError(ErrorEjecucion(CodigoError::ArchivoNoEncontrado),
                                                     programa::ErrorInesperado));
}

}  // namespace trabex::cargas::ui
