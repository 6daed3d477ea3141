#pragma once

// Windows under test: the toolkit's widgets, and hands for them.

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

namespace trabex::prueba {

/// The button of that text, less its mnemonic and the space about it.
inline QAbstractButton* BotonDe(const QWidget& ventana, const QString& texto) {
    for (auto* boton : ventana.findChildren<QAbstractButton*>())
        if (boton->text().remove('&').trimmed() == texto) return boton;
    ADD_FAILURE() << "no button " << texto.toStdString();
    return nullptr;
}

inline void Pulsar(const QWidget& ventana, const QString& texto) {
    if (auto* boton = BotonDe(ventana, texto)) boton->click();
}

/// Runs `accion` on the modal window that is about to open.
template <class Accion>
void EnLaVentana(Accion accion) {
    QTimer::singleShot(0, qApp,
                       [accion] { accion(static_cast<QDialog&>(*QApplication::activeModalWidget())); });
}

/// A key for what has the focus.
inline void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mas = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), tecla, mas);
}

/// Letters for what has the focus, which a tabulator and a line's end may move.
inline void Teclas(const QString& texto) {
    for (const QChar letra : texto) {
        if (letra == '\n')
            Tecla(Qt::Key_Return);
        else if (letra == '\t')
            Tecla(Qt::Key_Tab);
        else
            QTest::keyClick(QApplication::focusWidget(), letra.toLatin1());
    }
}

/// Types over what a field holds.
inline void Escribir(QLineEdit* campo, const char* texto) {
    campo->setFocus();
    campo->selectAll();
    QTest::keyClicks(campo, texto);
}

}  // namespace trabex::prueba
