#include "helical/ui/qt/VentanaEscaleraHDatos.h"

#include <QApplication>
#include <array>

#include "drawing/helice/GraficoHelice.h"

namespace trabex::helices::ui::qt {

namespace {

using escaleras::ui::qt::RotuloDeCampo;
using programa::qt::ClaseNumero;
using programa::qt::Distancia;
using programa::qt::EnteroDe32;

constexpr std::array<RotuloDeCampo, 7> Rotulos{{
    {nullptr, "Altura (m) H =", Distancia},
    {nullptr, "Ancho (m) B =", Distancia},
    {nullptr, "Espesor (m) T =", Distancia},
    {nullptr, "Radio (m) R =", Distancia},
    {nullptr, "Angulo (grados)  =", ClaseNumero{}},
    {nullptr, "Carga (kgf/m) W  =", EnteroDe32},
    {nullptr, "Intervalo C", EnteroDe32},
}};

}  // namespace

VentanaEscaleraHDatos::VentanaEscaleraHDatos(const TrabajoEscaleraH& trabajo,
                                             const programa::Aplicacion& aplicacion,
                                             programa::CajaMensajes& caja, QWidget* padre)
    : VentanaDatosDeEscalera(aplicacion, padre), operaciones_(trabajo, caja, *this) {
    Armar("EscaleraHDatos", "ESCALERA HELICOIDAL", Rotulos);
}

void VentanaEscaleraHDatos::Pitar() {
    QApplication::beep();
}

void VentanaEscaleraHDatos::DibujarBoceto(dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) const {
    const EntradaEscaleraH e = Entrados();
    dibujo::helice::HojaHelice hoja;
    hoja.Vista = vista;
    hoja.Numeros = Numeros();
    dibujo::helice::DibujeBoceto(lienzo, hoja, {"", "", e.B, e.T, e.H, e.R, e.Angulo, e.W, 0});
    vista = hoja.Vista;
}

void VentanaEscaleraHDatos::MostrarValores() {
    const EntradaEscaleraH e = operaciones_.Mostrar();
    Campos().Poner({e.H, e.B, e.T, e.R, e.Angulo, 1.0 * e.W, 1.0 * e.Inter});
}

EntradaEscaleraH VentanaEscaleraHDatos::Entrados() const {
    using enum CampoEscaleraH;
    const escaleras::ui::qt::CamposDeEscalera& c = Campos();
    return {c.Valor(B), c.Valor(T), c.Valor(H), c.Valor(R), c.Valor(Angulo), c.Entero(W), c.Entero(Inter)};
}

}  // namespace trabex::helices::ui::qt
