#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "reports/salidas/qt/Piezas.h"

namespace trabex::salidas::qt {

/// A table on pages: its header stands over every part of it.
///
/// Columns take their widths from the layout, and more where a number or a word would not fit, at the cost of
/// those that have room to spare; when none has, the letters get smaller. No number is ever cut or broken.
class PiezaTabla : public Pieza {
  public:
    PiezaTabla(const documento::Tabla& tabla, const documento::Documento& documento, const Letras& letras,
               double ancho);

    double Antes() const override { return 0.2 * normal_->Alto(); }
    double Despues() const override { return 0.6 * normal_->Alto(); }
    std::size_t Filas() const override { return altos_.size(); }
    std::size_t FilasDelPrincipio() const override { return std::min<std::size_t>(2, Filas()); }
    double Alto(std::size_t desde, std::size_t hasta) const override;
    void Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const override;

  private:
    std::vector<double> AnchosMinimos() const;
    void MedirColumnas(double puntos, double ancho);
    void Achicar(double puntos);
    void MedirTitulos(const std::function<double(qsizetype lineas)>& alto);
    void MedirFilas();
    bool SeParte(std::size_t columna) const {
        return tabla_.Columnas[columna].Lado == documento::Alineacion::Izquierda;
    }
    std::string TextoDeCelda(std::size_t fila, std::size_t columna) const;
    QString Celda(std::size_t fila, std::size_t columna) const;
    QStringList LineasDeCelda(std::size_t fila, std::size_t columna) const;
    QStringList LineasDeTitulo(const std::string& titulo, double ancho) const;
    double Ancho(std::size_t desde, std::size_t cuantas) const;
    QColor Tono(const QColor& color) const;
    void PintarFondo(Tinta& tinta, const QRectF& donde) const;
    double PintarCabecera(Tinta& tinta, const QPointF& esquina) const;
    void PintarTitulo(Tinta& tinta, const QRectF& donde, const std::string& titulo) const;
    void PintarFila(Tinta& tinta, const QPointF& esquina, std::size_t fila) const;

    const documento::Tabla& tabla_;
    const Separadores& separadores_;
    std::unique_ptr<const TipoDeLetra> chica_;  // of a table that does not fit in the document's letters
    std::unique_ptr<const TipoDeLetra> chicaNegrita_;
    const TipoDeLetra* normal_;
    const TipoDeLetra* negrita_;
    std::vector<double> anchos_;
    std::vector<double> altos_;  // of the rows
    double altoGrupos_ = 0;
    double altoTitulos_ = 0;
};

}  // namespace trabex::salidas::qt
