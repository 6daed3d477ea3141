#include "stairs/ui/qt/CamposDeEscalera.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>

namespace trabex::escaleras::ui::qt {

CamposDeEscalera::CamposDeEscalera(std::span<const RotuloDeCampo> rotulos, const Separadores& separadores,
                                   QVBoxLayout& columna, QWidget* padre) {
    constexpr int holgura = 12;
    int ancho = 0;
    for (const RotuloDeCampo& rotulo : rotulos)
        ancho = std::max(ancho, padre->fontMetrics().horizontalAdvance(rotulo.Texto) + holgura);
    QFormLayout* formulario = nullptr;
    for (const RotuloDeCampo& rotulo : rotulos) {
        if (rotulo.Marco != nullptr) {
            auto* grupo = new QGroupBox(rotulo.Marco, padre);
            formulario = new QFormLayout(grupo);
            columna.addWidget(grupo);
        } else if (formulario == nullptr) {
            formulario = new QFormLayout;
            columna.addLayout(formulario);
        }
        auto* etiqueta = new QLabel(rotulo.Texto, padre);
        etiqueta->setMinimumWidth(ancho);
        campos_.push_back(new programa::qt::CampoNumero(rotulo.Clase, separadores, padre));
        formulario->addRow(etiqueta, campos_.back());
    }
    columna.addStretch(1);
}

void CamposDeEscalera::AlEditar(const std::function<void()>& accion) {
    for (programa::qt::CampoNumero* campo : campos_)
        QObject::connect(campo, &QLineEdit::textEdited, campo, accion);
}

void CamposDeEscalera::AlCambiar(const std::function<void()>& accion) {
    for (programa::qt::CampoNumero* campo : campos_)
        QObject::connect(campo, &QLineEdit::textChanged, campo, accion);
}

void CamposDeEscalera::Poner(std::initializer_list<double> valores) {
    auto campo = campos_.begin();
    for (const double valor : valores) (*campo++)->PonerValor(valor);
}

void CamposDeEscalera::TomarFoco(programa::qt::CampoNumero& campo) {
    campo.setFocus();
    campo.selectAll();
}

}  // namespace trabex::escaleras::ui::qt
