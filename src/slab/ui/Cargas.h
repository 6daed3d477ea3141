#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "shell/CajaMensajes.h"
#include "slab/Losa.h"

namespace trabex::losas::ui {

/// What a load window works on: the editing copy of the data window and the span in hand.
struct EntradaDeCarga {
    Losa& Edicion;
    std::size_t Tramo;
};

/// Operations that both load windows share: they walk the spans on a copy of their loads, so that leaving
/// without accepting changes nothing.
class CargaDeTramos {
  public:
    virtual ~CargaDeTramos() = default;

    std::size_t NumeroDeTramos() const { return copia_.size() - 1; }
    std::size_t TramoActual() const { return tramo_; }
    const Tramo& Actual() const { return copia_[tramo_]; }
    /// The scroller: another span comes on show.
    void MoverA(std::size_t tramo);

    /// "TRAMO ( n )".
    std::string Encabezado() const;
    /// Caption of the frame, by rib or by metre.
    std::string Marco() const;

    /// "Fijar Carga": the loads of all spans go to the editing copy; the window closes.
    void Fijar();
    /// "Igualar": asks, and gives all spans the loads on show. True when the window closes.
    bool Igualar();
    /// Loads went to the editing copy.
    bool LosaModificada() const { return modificada_; }

  protected:
    CargaDeTramos(const EntradaDeCarga& entrada, programa::CajaMensajes& caja);
    Tramo& ActualEditable() { return copia_[tramo_]; }
    bool PorMetro() const { return entrada_.Edicion.OpcionMaciza; }

  private:
    virtual programa::Mensaje PreguntaIgualar() const = 0;
    /// Copies the loads that the window enters from one span to another.
    virtual void CopiarCarga(const Tramo& de, Tramo& a) const = 0;

    EntradaDeCarga entrada_;
    programa::CajaMensajes& caja_;
    std::vector<Tramo> copia_;
    std::size_t tramo_;
    bool modificada_ = false;
};

/// Uniform loads, kgf/m.
class Carga01 : public CargaDeTramos {
  public:
    Carga01(const EntradaDeCarga& entrada, programa::CajaMensajes& caja) : CargaDeTramos(entrada, caja) {}
    void Poner(std::int32_t Wp, std::int32_t WV);
    /// Wp + WV of the span on show.
    std::string Suma() const;
    std::string Leyenda() const;

  private:
    programa::Mensaje PreguntaIgualar() const override;
    void CopiarCarga(const Tramo& de, Tramo& a) const override;
};

/// The point load, kgf, and its distance from the span's first joint, m, which is not checked against the
/// span's length.
class Carga02 : public CargaDeTramos {
  public:
    Carga02(const EntradaDeCarga& entrada, programa::CajaMensajes& caja) : CargaDeTramos(entrada, caja) {}
    void Poner(std::int32_t p1, double L1);

  private:
    programa::Mensaje PreguntaIgualar() const override;
    void CopiarCarga(const Tramo& de, Tramo& a) const override;
};

}  // namespace trabex::losas::ui
