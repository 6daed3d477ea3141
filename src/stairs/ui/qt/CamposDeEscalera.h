#pragma once

#include <QVBoxLayout>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "shell/qt/CampoNumero.h"

namespace trabex::escaleras::ui::qt {

/// A field of an entry window of stairs.
struct RotuloDeCampo {
    const char* Marco;  ///< the frame that the field begins; null: it stands where the one before does
    const char* Texto;
    programa::qt::ClaseNumero Clase = programa::qt::Distancia;
};

/// The numbers of an entry window of stairs, each with its label, in the order of an enumeration of fields.
class CamposDeEscalera {
  public:
    CamposDeEscalera(std::span<const RotuloDeCampo> rotulos, const Separadores& separadores,
                     QVBoxLayout& columna, QWidget* padre);

    /// What to do as the engineer edits a field, and as what stands in one changes in any way.
    void AlEditar(const std::function<void()>& accion);
    void AlCambiar(const std::function<void()>& accion);

    void Poner(std::initializer_list<double> valores);
    template <class Campo>
    double Valor(Campo campo) const {
        return campos_[static_cast<std::size_t>(campo)]->Valor();
    }
    template <class Campo>
    std::int32_t Entero(Campo campo) const {
        return static_cast<std::int32_t>(Valor(campo));
    }
    template <class Campo>
    void Enfocar(Campo campo) {
        TomarFoco(*campos_[static_cast<std::size_t>(campo)]);
    }
    void EnfocarPrimero() { campos_.front()->setFocus(); }

  private:
    static void TomarFoco(programa::qt::CampoNumero& campo);

    std::vector<programa::qt::CampoNumero*> campos_;
};

}  // namespace trabex::escaleras::ui::qt
