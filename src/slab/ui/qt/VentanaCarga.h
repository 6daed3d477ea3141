#pragma once

#include <QDialog>
#include <vector>

#include "base/Formatos.h"
#include "shell/Tapiz.h"
#include "slab/ui/Cargas.h"

class QLabel;
class QScrollBar;
class QFormLayout;

namespace trabex::programa::qt {
class CampoNumero;
}

namespace trabex::programa::qt {
struct ClaseNumero;
}

namespace trabex::losas::ui::qt {

/// What both load windows look like: the spans' scroller, the fields, and the buttons.
class VentanaCarga : public QDialog {
  public:
    /// Walks on from a field: to the next one, then to the next span, then to the button that accepts.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  protected:
    VentanaCarga(CargaDeTramos& operaciones, const Separadores& separadores,
                 const programa::Tapiz& preferencias, QWidget* padre);
    /// Lays the window out, once its fields are there.
    void Armar(const QString& titulo, QWidget* pie);
    programa::qt::CampoNumero* Campo(const QString& rotulo, const programa::qt::ClaseNumero& clase);
    void MostrarTramo();
    virtual void MostrarCampos() = 0;
    virtual void TomarCampos() = 0;

  private:
    QLayout* FilaDeBotones();
    void Seguir(std::size_t campo);
    /// The first field whose entry is no load; null when there is none. Such an entry is not taken.
    programa::qt::CampoNumero* PrimerMalo() const;
    /// A field whose entry is no load takes the focus. True when there was none.
    bool Entradas();
    void TomarSiValen();

    CargaDeTramos& operaciones_;
    Separadores separadores_;
    programa::Tapiz preferencias_;
    QWidget* marco_;
    QFormLayout* formulario_;
    QLabel* encabezado_;
    QScrollBar* deslizador_;
    QWidget* fijar_ = nullptr;
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
