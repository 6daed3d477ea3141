#include "slab/ui/Cargas.h"

#include <algorithm>

#include "base/Formatos.h"

namespace trabex::losas::ui {

CargaDeTramos::CargaDeTramos(const EntradaDeCarga& entrada, programa::CajaMensajes& caja)
    : entrada_(entrada),
      caja_(caja),
      copia_(entrada.Edicion.Tramos),
      tramo_(std::min(entrada.Tramo, copia_.size() - 1)) {}

void CargaDeTramos::MoverA(std::size_t tramo) {
    if (tramo >= 1 && tramo < copia_.size()) tramo_ = tramo;
}

std::string CargaDeTramos::Encabezado() const {
    return "TRAMO ( " + std::to_string(tramo_) + " )";
}

std::string CargaDeTramos::Marco() const {
    return PorMetro() ? "Carga por metro (Servicio)" : "Carga por Nervio (Servicio)";
}

void CargaDeTramos::Fijar() {
    for (std::size_t i = 1; i < copia_.size(); ++i) CopiarCarga(copia_[i], entrada_.Edicion.Tramos[i]);
    modificada_ = true;
}

bool CargaDeTramos::Igualar() {
    if (caja_.Mostrar(PreguntaIgualar()) != programa::RespuestaSi) return false;
    for (std::size_t i = 1; i < copia_.size(); ++i) CopiarCarga(Actual(), entrada_.Edicion.Tramos[i]);
    modificada_ = true;
    return true;
}

void Carga01::Poner(std::int32_t Wp, std::int32_t WV) {
    ActualEditable().Wp = Wp;
    ActualEditable().WV = WV;
}

std::string Carga01::Suma() const {
    return Formato(static_cast<double>(Actual().Wp) + static_cast<double>(Actual().WV), "0", {});
}

std::string Carga01::Leyenda() const {
    return std::string("Las Cargas (de servicio) se entran por ") + (PorMetro() ? "metro" : "Nervio");
}

programa::Mensaje Carga01::PreguntaIgualar() const {
    return programa::Pregunta("¿Igualar Todos los Tramos a la Carga Seleccionada?",
                              "Igualar Cargas Uniformes...");
}

void Carga01::CopiarCarga(const Tramo& de, Tramo& a) const {
    a.Wp = de.Wp;
    a.WV = de.WV;
}

void Carga02::Poner(std::int32_t p1, double L1) {
    ActualEditable().p1 = p1;
    ActualEditable().L1 = L1;
}

programa::Mensaje Carga02::PreguntaIgualar() const {
    return programa::Pregunta("Igualar Todos los Tramos a la Carga Seleccionada?",
                              "Igualar Cargas Puntuales...");
}

void Carga02::CopiarCarga(const Tramo& de, Tramo& a) const {
    a.p1 = de.p1;
    a.L1 = de.L1;
}

}  // namespace trabex::losas::ui
