// The batch program: the list of its modules, nothing else.

#include <array>

#include "helical/salida/ModuloEscalerasH.h"
#include "loads/salida/ModuloCargas.h"
#include "lote/qt/Correr.h"
#include "markus/salida/ModuloMarcus.h"
#include "slab/salida/ModuloLosas.h"
#include "stairs/salida/ModuloEscalerasT.h"

int main(int argc, char** argv) {
    const std::array<const trabex::lote::Modulo*, 5> modulos{
        &trabex::losas::salida::ModuloLosas, &trabex::escaleras::salida::ModuloEscalerasT,
        &trabex::helices::salida::ModuloEscalerasH, &trabex::marcus::salida::ModuloMarcus,
        &trabex::cargas::salida::ModuloCargas};
    return trabex::lote::qt::Correr(argc, argv, modulos);
}
