#include "stairs/ui/EscaleraTG.h"

#include <array>

#include "base/Enteros.h"

namespace trabex::escaleras::ui {

EntradaEscaleraTG EscaleraTG::Mostrar() const {
    const DatosGenerales& g = generales_;
    return {g.FC, g.FY, g.D8, g.FS, g.FiMomento, g.FiCorte};
}

std::optional<CampoEscaleraTG> EscaleraTG::PrimerCero(const EntradaEscaleraTG& e) {
    const std::array<double, 6> valores{
        static_cast<double>(e.FC), static_cast<double>(e.FY), e.D8, e.FS, e.FiMomento, e.FiCorte};
    for (std::size_t i = 0; i < valores.size(); ++i) {
        if (valores[i] == 0) return static_cast<CampoEscaleraTG>(i);
    }
    return std::nullopt;
}

void EscaleraTG::Copiar(const EntradaEscaleraTG& entrados) {
    generales_.FC = Entero16(entrados.FC);
    generales_.FY = Entero16(entrados.FY);
    generales_.D8 = entrados.D8;
    generales_.FS = entrados.FS;
    generales_.FiMomento = entrados.FiMomento;
    generales_.FiCorte = entrados.FiCorte;
}

bool EscaleraTG::Aceptar(const EntradaEscaleraTG& entrados) {
    if (const auto cero = PrimerCero(entrados)) {
        pantalla_.Enfocar(*cero);
        return false;
    }
    const DatosGenerales anteriores = generales_;
    try {
        Copiar(entrados);
    } catch (const ErrorEjecucion& error) {
        caja_.Mostrar(programa::MensajeDeError(error, programa::ErrorInesperado));
        return false;
    }
    if (!almacen::tablas::GuardarGenerales(conexion_, clase_, generales_)) {
        generales_ = anteriores;
        caja_.Mostrar(programa::MensajeSinGuardar(conexion_.Causa()));
        return false;
    }
    datosCambiados_ = true;
    return true;
}

}  // namespace trabex::escaleras::ui
