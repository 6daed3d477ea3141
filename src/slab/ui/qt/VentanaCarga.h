#pragma once

#include <QDialog>
#include <vector>

#include "base/Formatos.h"
#include "shell/Tapiz.h"
#include "slab/ui/Cargas.h"

class QLabel;
class QScrollBar;
class QFormLayout;

namespace trabex {
struct ClaseNumero;
}

namespace trabex::programa::qt {
class CampoNumero;
}

namespace trabex::losas::ui::qt {

/// What both load windows look like: the spans' scroller, the fields, and the buttons.
class VentanaCarga : public QDialog {
  public:
    /// Enter stores a field and stays in it; the page keys go to another span.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  protected:
    VentanaCarga(CargaDeTramos& operaciones, const Separadores& separadores,
                 const programa::Tapiz& preferencias, QWidget* padre);
    /// Lays the window out, once its fields are there.
    void Armar(const QString& titulo, QWidget* pie);
    programa::qt::CampoNumero* Campo(const QString& rotulo, const ClaseNumero& clase);
    void MostrarTramo();
    virtual void MostrarCampos() = 0;
    virtual void TomarCampos() = 0;

  private:
    QLayout* FilaDeBotones();
    /// The scroller: another span, once no entry stands refused on this one.
    void MoverA(int tramo);

    CargaDeTramos& operaciones_;
    Separadores separadores_;
    programa::Tapiz preferencias_;
    QWidget* marco_;
    QFormLayout* formulario_;
    QLabel* encabezado_;
    QScrollBar* deslizador_;
    std::vector<programa::qt::CampoNumero*> campos_;
};

/// Uniform loads of the spans.
class VentanaCarga01 : public VentanaCarga {
  public:
    VentanaCarga01(Carga01& operaciones, const Separadores& separadores, const programa::Tapiz& preferencias,
                   QWidget* padre);

  private:
    void MostrarCampos() override;
    void TomarCampos() override;

    Carga01& operaciones_;
    programa::qt::CampoNumero* permanente_;
    programa::qt::CampoNumero* variable_;
    QLabel* suma_;
};

/// Point loads of the spans.
class VentanaCarga02 : public VentanaCarga {
  public:
    VentanaCarga02(Carga02& operaciones, const Separadores& separadores, const programa::Tapiz& preferencias,
                   QWidget* padre);

  private:
    void MostrarCampos() override;
    void TomarCampos() override;

    Carga02& operaciones_;
    programa::qt::CampoNumero* carga_;
    programa::qt::CampoNumero* distancia_;
};

}  // namespace trabex::losas::ui::qt
