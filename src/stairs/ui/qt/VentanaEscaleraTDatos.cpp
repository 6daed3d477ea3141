#include "stairs/ui/qt/VentanaEscaleraTDatos.h"

#include <array>

#include "drawing/escalera/GraficoEscalera.h"

namespace trabex::escaleras::ui::qt {

namespace {

using programa::qt::Distancia;
using programa::qt::EnteroDe32;

constexpr std::array<RotuloDeCampo, 8> Rotulos{{
    {"Dimensiones (m)", "Longitud (m) L =", Distancia},
    {nullptr, "Longitud (m) B =", Distancia},
    {nullptr, "Altura (m) H =", Distancia},
    {"Espesor de la Losa (m)", "Tramo (m) e1 =", Distancia},
    {nullptr, "Descanso (m) e2 =", Distancia},
    {"Carga Total en el Tramo (kgf/ml)", "WT (kgf/ml) =", EnteroDe32},
    {"Carga en el Descanso (kgf/ml)", "Carga Total WT =", EnteroDe32},
    {nullptr, "Carga Permanente =", EnteroDe32},
}};

}  // namespace

VentanaEscaleraTDatos::VentanaEscaleraTDatos(const TrabajoEscaleraT& trabajo,
                                             const programa::Aplicacion& aplicacion,
                                             programa::CajaMensajes& caja, QWidget* padre)
    : VentanaDatosDeEscalera(aplicacion, padre), operaciones_(trabajo, caja, *this) {
    Armar("EscaleraTDatos", "GEOMETRÍA DE LA ESCALERA AUTOPORTANTE", Rotulos);
}

void VentanaEscaleraTDatos::DibujarBoceto(dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) const {
    const DatosEscaleraT entrados = Entrados();
    const DatosGenerales sinUso;
    const ResultadosEscaleraT sinCalcular;
    dibujo::escalera::HojaEscalera hoja;
    hoja.Vista = vista;
    hoja.Numeros = Numeros();
    dibujo::escalera::RedibujeVista(lienzo, hoja, {entrados, sinUso, sinCalcular},
                                    dibujo::escalera::HojaDeBoceto);
    vista = hoja.Vista;
}

void VentanaEscaleraTDatos::AgregarBotones(QHBoxLayout& fila) {
    AgregarBoton(fila, "Escalera &Anterior", "anterior", "Descarta los cambios. ", [this] { Rellenar(); });
    AgregarBoton(fila, "Siguiente &Escalera", "siguiente", "Descarta los cambios. ", [this] { Rellenar(); });
}

void VentanaEscaleraTDatos::MostrarValores() {
    const DatosEscaleraT e = operaciones_.Mostrar();
    Campos().Poner({e.L, e.B, e.H, e.HT, e.Hd, 1.0 * e.WT, 1.0 * e.Wd, 1.0 * e.WpD});
}

DatosEscaleraT VentanaEscaleraTDatos::Entrados() const {
    using enum CampoEscaleraT;
    const CamposDeEscalera& c = Campos();
    return {"",          "",          c.Valor(L),   c.Valor(B),   c.Valor(H),
            c.Valor(HT), c.Valor(Hd), c.Entero(WT), c.Entero(Wd), c.Entero(WpD)};
}

}  // namespace trabex::escaleras::ui::qt
