#include "shell/qt/VentanaSobre.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"

namespace trabex::programa::qt {

VentanaSobre::VentanaSobre(const Aplicacion& aplicacion, Plataforma& plataforma, QWidget* padre)
    : QDialog(padre) {
    setObjectName("Sobre");
    setWindowTitle("ACERCA DE Trabex 2024");
    auto* figura = new QLabel(this);
    figura->setPixmap(Figura("trabex", 96));
    auto* texto = new QLabel(
        "<h2>Trabex 2024</h2><p>Análisis y diseño de losas y escaleras de concreto armado.</p>"
        "<p>Trabex versión: " +
            QString(VersionPrograma) + "<br>Nodara Software</p>",
        this);
    auto* usuario = Boton("&Usuario...", "usuario", this);
    auto* sistema = Boton("&Información del Sistema...", "sobre", this);
    auto* aceptar = Boton(" Aceptar ", "", this);
    aceptar->setDefault(true);
    connect(usuario, &QPushButton::clicked, this,
            [this, &aplicacion] { VentanaUsuario(aplicacion, this).exec(); });
    connect(sistema, &QPushButton::clicked, this,
            [&plataforma, sistema] { sistema->setEnabled(plataforma.InformacionDelSistema()); });
    connect(aceptar, &QPushButton::clicked, this, &QDialog::accept);

    auto* arriba = new QHBoxLayout;
    arriba->setSpacing(18);
    arriba->addWidget(figura, 0, Qt::AlignTop);
    arriba->addWidget(texto, 1);
    auto* botones = new QHBoxLayout;
    botones->addWidget(usuario);
    botones->addWidget(sistema);
    botones->addStretch(1);
    botones->addWidget(aceptar);
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(arriba, 1);
    columna->addLayout(botones);
    PrepararVentana(this, aplicacion.Preferencias);
}

VentanaUsuario::VentanaUsuario(const Aplicacion& aplicacion, QWidget* padre) : QDialog(padre) {
    setObjectName("Usuario");
    setWindowTitle("USUARIO DEL PROGRAMA");
    auto* nombre = new QLineEdit(Q(aplicacion.Usuario), this);
    nombre->setReadOnly(true);
    nombre->setMinimumWidth(300);
    auto* aceptar = Boton(" Aceptar ", "", this);
    connect(aceptar, &QPushButton::clicked, this, &QDialog::accept);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(new QLabel("Usuario:", this));
    columna->addWidget(nombre);
    columna->addStretch(1);
    columna->addWidget(aceptar, 0, Qt::AlignRight);
    PrepararVentana(this, aplicacion.Preferencias);
}

}  // namespace trabex::programa::qt
