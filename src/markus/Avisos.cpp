#include "markus/Avisos.h"

namespace trabex::marcus {

Avisos AvisosDe(std::span<const PanoMarcus> panos) {
    Avisos avisos;
    for (std::size_t i = 0; i < panos.size(); ++i) {
        const std::string lugar = "Paño " + std::to_string(i + 1);
        if (panos[i].Caso < PrimerCaso || panos[i].Caso > UltimoCaso) {
            avisos.push_back({Gravedad::Advertencia,
                              "El caso " + std::to_string(panos[i].Caso) +
                                  " no existe: el paño repite los coeficientes del anterior.",
                              lugar});
        }
        if (!(panos[i].LX > 0 && panos[i].LY > 0)) {
            avisos.push_back(
                {Gravedad::Advertencia, "Una longitud no es mayor que cero: su reparto no vale.", lugar});
        }
    }
    return avisos;
}

}  // namespace trabex::marcus
