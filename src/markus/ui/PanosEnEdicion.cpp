#include "markus/ui/PanosEnEdicion.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "markus/Avisos.h"

namespace trabex::marcus::ui {

namespace {

constexpr std::size_t MaximoRecordados = 200000;  // some 13 MB, however many panels a level has

}  // namespace

void PanosEnEdicion::Cargar(std::vector<PanoMarcus> panos) {
    panos_ = std::move(panos);
    calculado_ = abierto_ = false;
    anteriores_.clear();
    recordados_ = 0;
}

/// Results of an earlier calculation must not stand beside data that can't be calculated.
void PanosEnEdicion::Calcular() {
    if (calculado_) return;
    const double nada = std::nan("");
    for (PanoMarcus& pano : panos_) pano.Reparto = {nada, nada, nada, nada};
    error_.reset();
    try {
        CalculeMarcus(panos_);
    } catch (const ErrorEjecucion& error) {
        error_ = error;
    }
    calculado_ = true;
}

std::span<const PanoMarcus> PanosEnEdicion::Panos() {
    Calcular();
    return panos_;
}

Avisos PanosEnEdicion::LosAvisos() {
    Calcular();
    Avisos avisos = AvisosDe(panos_);
    if (error_) {
        const auto sinReparto = std::find_if(
            panos_.begin(), panos_.end(), [](const PanoMarcus& pano) { return std::isnan(pano.Reparto.CX); });
        avisos.push_back(
            {Gravedad::Falla, error_->Texto(), "Paño " + std::to_string(sinReparto - panos_.begin() + 1)});
    }
    return avisos;
}

double PanosEnEdicion::Leer(std::size_t fila, ColumnaDePano columna) const {
    const PanoMarcus& pano = panos_[fila - 1];
    switch (columna) {
        case ColumnaDePano::Carga:
            return pano.Carga;
        case ColumnaDePano::Caso:
            return pano.Caso;
        case ColumnaDePano::LX:
            return pano.LX;
        default:
            return pano.LY;
    }
}

void PanosEnEdicion::Poner(std::size_t fila, ColumnaDePano columna, double valor) {
    Recordar();
    PanoMarcus& pano = panos_[fila - 1];
    switch (columna) {
        case ColumnaDePano::Carga:
            pano.Carga = valor;
            break;
        case ColumnaDePano::Caso:
            pano.Caso = static_cast<std::int16_t>(valor);
            break;
        case ColumnaDePano::LX:
            pano.LX = valor;
            break;
        case ColumnaDePano::LY:
            pano.LY = valor;
            break;
    }
    calculado_ = false;
}

void PanosEnEdicion::PonerNumero(std::size_t panos) {
    Recordar();
    panos_.resize(panos);
    calculado_ = false;
}

void PanosEnEdicion::Recordar() {
    if (abierto_) return;
    abierto_ = true;
    anteriores_.push_back(panos_);
    recordados_ += panos_.size();
    while (anteriores_.size() > 1 && recordados_ > MaximoRecordados) {
        recordados_ -= anteriores_.front().size();
        anteriores_.pop_front();
    }
}

bool PanosEnEdicion::Deshacer() {
    abierto_ = calculado_ = false;
    if (anteriores_.empty()) return false;
    panos_ = std::move(anteriores_.back());
    anteriores_.pop_back();
    recordados_ -= panos_.size();
    return true;
}

}  // namespace trabex::marcus::ui
