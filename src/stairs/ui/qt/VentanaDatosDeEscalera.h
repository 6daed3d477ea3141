#pragma once

#include <QDialog>
#include <optional>

#include "drawing/Visor.h"
#include "shell/Aplicacion.h"
#include "stairs/ui/qt/CamposDeEscalera.h"

class QHBoxLayout;
class QLabel;

namespace trabex::dibujo {
class Lienzo;
}
namespace trabex::dibujo::qt {
class WidgetLienzo;
}

namespace trabex::escaleras::ui::qt {

/// The window that edits a stair of either kind: its name, its fields and, beside them, a sketch of what
/// stands in them as it is typed, over " Salvar " and " Retorno ".
class VentanaDatosDeEscalera : public QDialog {
  public:
    /// Asks when there are changes.
    void reject() override;

  protected:
    VentanaDatosDeEscalera(const programa::Aplicacion& aplicacion, QWidget* padre);
    /// Builds the window and fills it. To be called once, by the constructor of the kind's window.
    void Armar(const char* nombre, const char* titulo, std::span<const RotuloDeCampo> rotulos);

    /// Puts the stair's name and values in the fields again.
    void Rellenar();
    CamposDeEscalera& Campos() { return *campos_; }
    const CamposDeEscalera& Campos() const { return *campos_; }
    const Separadores& Numeros() const { return aplicacion_.SeparadoresLocales; }
    void AgregarBoton(QHBoxLayout& fila, const char* texto, const char* icono, const char* ayuda,
                      const std::function<void()>& accion, bool principal = false);

    // What differs between the kinds.
    virtual std::string Nombre() const = 0;
    virtual void MostrarValores() = 0;
    virtual void AlEditar() = 0;
    virtual void Salvar() = 0;
    /// Whether the window may close.
    virtual bool Cerrar() = 0;
    /// Buttons that stand before " Salvar ".
    virtual void AgregarBotones(QHBoxLayout& /*fila*/) {}
    /// Draws the sketch; its scale is kept in `vista`.
    virtual void DibujarBoceto(dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) const = 0;

  private:
    QWidget* MarcoDeCampos(std::span<const RotuloDeCampo> rotulos);
    QWidget* Boceto();
    QLayout* Botones();

    const programa::Aplicacion& aplicacion_;
    QLabel* nombre_ = nullptr;
    std::optional<CamposDeEscalera> campos_;
    dibujo::EstadoVista vista_;
    dibujo::qt::WidgetLienzo* boceto_ = nullptr;
};

}  // namespace trabex::escaleras::ui::qt
