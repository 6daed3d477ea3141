#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "loads/AnalisisCarga.h"
#include "shell/CajaMensajes.h"
#include "store/Recordset.h"

namespace trabex::cargas::ui {

/// The heading of the messages of all creating windows, whatever they create.
inline constexpr const char* EncabezadoCrear = "Crear Carga Permanente...";

/// Columns of the grids of weights, and fields of the windows that create something.
enum class CampoDePeso { Descripcion, Peso };

/// The side of a window that creates something.
class PantallaDeCreacion {
  public:
    virtual ~PantallaDeCreacion() = default;
    /// A beep, and the focus returns to the field.
    virtual void Rechazar(CampoDePeso campo) = 0;
};

/// A weight as it is typed, as the whole number that is summed and stored: halves to even, 0 where nothing
/// stands. Nothing when it is no number or past 32 bits.
std::optional<std::int32_t> PesoDeTexto(std::string_view texto);

/// What was typed into a grid's cell, into its record. False when it is no weight; the record stays.
bool PonerCelda(PesoUnitario& peso, CampoDePeso campo, const std::string& texto);

/// The search of a creating window for its description, in the list of what it creates. False, with its
/// message, when the creation does not go on; the list then stands where it stood.
bool VerifiqueDescripcion(almacen::Recordset& lista, const std::string& descripcion,
                          const char* textoYaExiste, programa::CajaMensajes& caja);

}  // namespace trabex::cargas::ui
