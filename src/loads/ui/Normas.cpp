#include "loads/ui/Normas.h"

namespace trabex::cargas::ui {

namespace {

const char* ArchivoDe(DocumentoDeNorma documento) {
    return documento == DocumentoDeNorma::Articulado ? "Acciones Minimas Articulado 2002-1988.pdf"
                                                     : "Acciones Minimas Comentario 2002-1988.pdf";
}

}  // namespace

void Normas::Abrir(DocumentoDeNorma documento) {
    programa::AbrirODecir(servicios_, servicios_.Carpetas.CaminoPrograma / "Normas" / ArchivoDe(documento));
}

}  // namespace trabex::cargas::ui
