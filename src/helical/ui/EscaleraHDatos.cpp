#include "helical/ui/EscaleraHDatos.h"

#include <array>

#include "base/Enteros.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::helices::ui {

namespace {

constexpr double AnguloMaximo = 360;

programa::Mensaje AvisoDeAngulo() {
    programa::Mensaje mensaje;
    mensaje.Texto = "El angulo de Desarrollo no puede ser > 360º";
    mensaje.Encabezado = "Escalera Helicoidal...";
    return mensaje;
}

}  // namespace

std::string EscaleraHDatos::Nombre() const {
    return trabajo_.Proyecto.RegistrosProyecto.Texto("Nombre");
}

EntradaEscaleraH EscaleraHDatos::Mostrar() {
    modificada_ = false;
    const DatosEscaleraH e = trabajo_.Nueva ? EscaleraHNuevaDe({}, {}) : trabajo_.Actual;
    return {e.B, e.T, e.H, e.R, e.Angulo, e.W, e.Inter};
}

bool EscaleraHDatos::Admitir(const EntradaEscaleraH& e) {
    struct Prueba {
        double Valor;
        CampoEscaleraH Foco;
    };
    using enum CampoEscaleraH;
    // The interval hands the focus to its neighbour, as it has always done.
    const std::array<Prueba, 5> pruebas{
        {{e.B, B}, {e.T, T}, {e.R, R}, {e.Angulo, Angulo}, {static_cast<double>(e.Inter), Angulo}}};
    for (const Prueba& prueba : pruebas) {
        if (prueba.Valor != 0) continue;
        pantalla_.Pitar();
        pantalla_.Enfocar(prueba.Foco);
        return false;
    }
    if (!(e.Angulo > AnguloMaximo)) return true;
    caja_.Mostrar(AvisoDeAngulo());
    pantalla_.Enfocar(Angulo);
    return false;
}

bool EscaleraHDatos::Guardar(const EntradaEscaleraH& e) {
    const DatosEscaleraH escalera{Nombre(),
                                  trabajo_.Proyecto.RegistrosProyecto.Texto("Titulo"),
                                  e.B,
                                  e.T,
                                  e.H,
                                  e.R,
                                  e.Angulo,
                                  e.W,
                                  Entero16(e.Inter)};
    if (!almacen::tablas::GuardarEscalera(trabajo_.Proyecto.ConexionProyecto, escalera)) {
        caja_.Mostrar(programa::MensajeSinGuardar(trabajo_.Proyecto.ConexionProyecto.Causa()));
        return false;
    }
    trabajo_.Actual = escalera;
    return true;
}

bool EscaleraHDatos::Salvar(const EntradaEscaleraH& entrados) {
    if (!Admitir(entrados)) return false;
    try {
        if (!Guardar(entrados)) return false;
    } catch (const ErrorEjecucion& error) {
        caja_.Mostrar(programa::MensajeDeError(error, programa::ErrorInesperado));
        return false;
    }
    trabajo_.Nueva = false;
    modificada_ = false;
    trabajo_.DatosCambiados = true;
    return true;
}

bool EscaleraHDatos::Cerrar(const EntradaEscaleraH& entrados) {
    if (!modificada_) return true;
    const std::int16_t respuesta = caja_.Mostrar(escaleras::ui::PreguntaDeSalvar(Nombre()));
    if (respuesta == programa::RespuestaCancelar) return false;
    return respuesta != programa::RespuestaSi || Salvar(entrados);
}

}  // namespace trabex::helices::ui
