#include "stairs/ui/EscaleraTDatos.h"

#include <array>

#include "store/tablas/TablasEscalera.h"

namespace trabex::escaleras::ui {

std::string EscaleraTDatos::Nombre() const {
    return trabajo_.Proyecto.RegistrosProyecto.Texto("Nombre");
}

DatosEscaleraT EscaleraTDatos::Mostrar() {
    modificada_ = false;
    if (!trabajo_.Nueva) return trabajo_.Actual;
    return EscaleraTNuevaDe(Nombre(), trabajo_.Proyecto.RegistrosProyecto.Texto("Titulo"));
}

std::optional<CampoEscaleraT> EscaleraTDatos::PrimerCero(const DatosEscaleraT& e) {
    const std::array<double, 5> longitudes{e.L, e.B, e.H, e.HT, e.Hd};
    for (std::size_t i = 0; i < longitudes.size(); ++i) {
        if (longitudes[i] == 0) return static_cast<CampoEscaleraT>(i);
    }
    return std::nullopt;
}

bool EscaleraTDatos::Salvar(const DatosEscaleraT& entrados) {
    if (const auto cero = PrimerCero(entrados)) {
        pantalla_.Enfocar(*cero);
        return false;
    }
    DatosEscaleraT escalera = entrados;
    escalera.Nombre = Nombre();
    escalera.Titulo = trabajo_.Proyecto.RegistrosProyecto.Texto("Titulo");
    if (!almacen::tablas::GuardarEscalera(trabajo_.Proyecto.ConexionProyecto, escalera)) {
        caja_.Mostrar(programa::MensajeSinGuardar(trabajo_.Proyecto.ConexionProyecto.Causa()));
        return false;
    }
    trabajo_.Actual = escalera;
    modificada_ = false;
    trabajo_.DatosCambiados = true;
    return true;
}

bool EscaleraTDatos::Cerrar(const DatosEscaleraT& entrados) {
    if (!modificada_) return true;
    const std::int16_t respuesta = caja_.Mostrar(PreguntaDeSalvar(Nombre()));
    if (respuesta == programa::RespuestaCancelar) return false;
    return respuesta != programa::RespuestaSi || Salvar(entrados);
}

}  // namespace trabex::escaleras::ui
