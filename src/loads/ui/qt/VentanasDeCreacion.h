#pragma once

#include <QDialog>

#include "loads/ui/AnalisisCargaNewCP.h"
#include "loads/ui/NuevoAnalisisCarga.h"
#include "shell/Aplicacion.h"

class QFormLayout;
class QLineEdit;

namespace trabex::programa::qt {
class CampoNumero;
}

namespace trabex::cargas::ui::qt {

/// Characters that the columns of names hold.
inline constexpr int LargoDeDescripcion = 120;

/// What the creating windows have in common: the description, the buttons, and what a refusal does. Accepted
/// when something was created.
class VentanaDeCreacion : public QDialog, protected PantallaDeCreacion {
  protected:
    VentanaDeCreacion(const char* nombre, const QString& titulo, const char* marco, QWidget* padre);
    void Armar(const programa::Tapiz& preferencias, const std::function<bool()>& aceptar);
    std::string Descripcion() const;
    virtual QLineEdit* Campo(CampoDePeso campo) const;
    void Rechazar(CampoDePeso campo) override;

    QFormLayout* Formulario;

  private:
    QLineEdit* descripcion_;
};

/// `NuevoAnalisisCargaP` and `NuevoAnalisisCarga`.
class VentanaNuevoAnalisisCarga : public VentanaDeCreacion {
  public:
    VentanaNuevoAnalisisCarga(const programa::Aplicacion& aplicacion, const VarianteAnalisis& variante,
                              NuevoAnalisisCarga& operaciones, QWidget* padre);
};

/// `AnalisisCargaNewCP`.
class VentanaAnalisisCargaNewCP : public VentanaDeCreacion {
  public:
    VentanaAnalisisCargaNewCP(const programa::Aplicacion& aplicacion, const VariantePesos& variante,
                              AnalisisCargaNewCP& operaciones, QWidget* padre);

  private:
    QLineEdit* Campo(CampoDePeso campo) const override;
    programa::qt::CampoNumero* peso_;
};

}  // namespace trabex::cargas::ui::qt
