#include "lote/qt/Pinturas.h"

#include <algorithm>
#include <string>
#include <utility>

#include "drawing/Superficie.h"
#include "reports/montaje/qt/SuperficieQt.h"

namespace trabex::lote::qt {

void Pinturas::Guardar(const Elemento& elemento, std::size_t numero, almacen::Bytes trazos,
                       almacen::Bytes png) {
    std::vector<Pintura>& pinturas = de_[&elemento];
    pinturas.resize(std::max(pinturas.size(), numero + 1));
    pinturas[numero].Trazos = std::move(trazos);
    pinturas[numero].Png = std::move(png);
}

void Pinturas::Completar(const ProyectoCalculado& calculado, bool conPixeles, const Marcha& marcha) {
    std::vector<std::pair<Pintura*, Dibujo>> faltan;
    for (const Lista& lista : calculado.Listas) {
        if (lista.De->Memoria == nullptr || lista.De->Dibujos == nullptr) continue;
        for (const Elemento& elemento : lista.Elementos) {
            std::vector<Dibujo> suyos = lista.De->Dibujos(lista, elemento);
            std::vector<Pintura>& pinturas = de_[&elemento];
            pinturas.resize(suyos.size());
            for (std::size_t i = 0; i < suyos.size(); ++i) {
                pinturas[i].Titulo = suyos[i].Titulo;
                if (pinturas[i].Trazos.empty()) faltan.emplace_back(&pinturas[i], std::move(suyos[i]));
            }
        }
    }
    Repartir(marcha, "Dibujando la memoria", faltan.size(), [&](std::size_t i, unsigned) {
        montaje::qt::SuperficieQt superficie;
        superficie.Dibujar(dibujo::AnchoGraficoTwips, dibujo::AltoGraficoTwips, faltan[i].second.Dibujar);
        faltan[i].first->Trazos = superficie.Trazos();
        if (conPixeles) faltan[i].first->Png = superficie.Png();
    });
}

std::vector<documento::Imagen> Pinturas::De(const Elemento& elemento) const {
    std::vector<documento::Imagen> imagenes;
    const auto suyas = de_.find(&elemento);
    if (suyas == de_.end()) return imagenes;
    imagenes.reserve(suyas->second.size());
    for (const Pintura& pintura : suyas->second)
        imagenes.push_back({[&pintura] { return pintura.Png; }, 0, 0, pintura.Titulo,
                            [&pintura] { return pintura.Trazos; }});
    return imagenes;
}

}  // namespace trabex::lote::qt
