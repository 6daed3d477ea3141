#include "loads/ui/qt/VentanasDeCreacion.h"

#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "loads/ui/qt/ClaseDePeso.h"
#include "loads/ui/qt/Mandos.h"
#include "shell/qt/CampoNumero.h"
#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::cargas::ui::qt {

using programa::qt::S;

VentanaDeCreacion::VentanaDeCreacion(const char* nombre, const QString& titulo, const char* marco,
                                     QWidget* padre)
    : QDialog(padre), descripcion_(new programa::qt::CampoTexto(LargoDeDescripcion, this)) {
    setObjectName(nombre);
    setWindowTitle(titulo);
    auto* caja = new QGroupBox(marco, this);
    Formulario = new QFormLayout(caja);
    descripcion_->setObjectName("Descripcion");
    descripcion_->setMinimumWidth(380);
    Formulario->addRow("&Descripción:", descripcion_);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(caja);
    columna->addStretch(1);
}

void VentanaDeCreacion::Armar(const programa::Tapiz& preferencias, const std::function<bool()>& aceptar) {
    static_cast<QVBoxLayout*>(layout())->addLayout(programa::qt::FilaAceptarCancelar(this, [this, aceptar] {
        if (programa::qt::EntradasEnOrden(this) && aceptar()) accept();
    }));
    programa::qt::PrepararVentana(this, preferencias);
}

std::string VentanaDeCreacion::Descripcion() const {
    return S(descripcion_->text());
}

QLineEdit* VentanaDeCreacion::Campo(CampoDePeso /*campo*/) const {
    return descripcion_;
}

void VentanaDeCreacion::Rechazar(CampoDePeso campo) {
    QApplication::beep();
    Campo(campo)->setFocus();
    Campo(campo)->selectAll();
}

VentanaNuevoAnalisisCarga::VentanaNuevoAnalisisCarga(const programa::Aplicacion& aplicacion,
                                                     const VarianteAnalisis& variante,
                                                     NuevoAnalisisCarga& operaciones, QWidget* padre)
    : VentanaDeCreacion(variante.Nuevo, "CREAR ANÁLISIS DE CARGA", "Nuevo Análisis de Carga", padre) {
    Armar(aplicacion.Preferencias,
          [this, &operaciones] { return operaciones.Aceptar(Descripcion(), *this); });
}

VentanaAnalisisCargaNewCP::VentanaAnalisisCargaNewCP(const programa::Aplicacion& aplicacion,
                                                     const VariantePesos& variante,
                                                     AnalisisCargaNewCP& operaciones, QWidget* padre)
    : VentanaDeCreacion("AnalisisCargaNewCP", "CREAR NUEVA CARGA",
                        variante.EsVariable ? "Nueva Carga Variable" : "Nueva Carga Permanente", padre),
      peso_(new programa::qt::CampoNumero(PesoEntrado, aplicacion.SeparadoresLocales, this)) {
    peso_->setObjectName("Peso");
    Formulario->addRow("&Peso (kgf/m²):", peso_);
    Armar(aplicacion.Preferencias, [this, &operaciones] {
        return operaciones.Aceptar(Descripcion(), TextoEntrado(peso_->Valor()), *this);
    });
}

QLineEdit* VentanaAnalisisCargaNewCP::Campo(CampoDePeso campo) const {
    return campo == CampoDePeso::Peso ? peso_ : VentanaDeCreacion::Campo(campo);
}

}  // namespace trabex::cargas::ui::qt
