#pragma once

#include <exception>
#include <string>

namespace trabex {

/// Codes of the run-time errors that the program can meet. The numbers are what the engineer is shown.
enum class CodigoError {
    ArgumentoInvalido = 5,
    Desbordamiento = 6,
    SubindiceFueraDeIntervalo = 9,
    DivisionPorCero = 11,
    TiposNoCoinciden = 13,
    ArchivoNoEncontrado = 53,
    ErrorDispositivo = 57,
    ArchivoYaExiste = 58,
    LongitudDeRegistro = 59,
    DiscoLleno = 61,
    PermisoDenegado = 70,
    ErrorAccesoRuta = 75,
    RutaNoEncontrada = 76,
};

/// The Spanish text of a code, as a message shows it below "Error Número: ".
const char* TextoDeError(CodigoError codigo);

/// A run-time error. A calculation that meets one leaves what it had filled; whoever drives it catches this.
class ErrorEjecucion : public std::exception {
  public:
    explicit ErrorEjecucion(CodigoError codigo) : codigo_(codigo) {}

    int Codigo() const { return static_cast<int>(codigo_); }
    std::string Texto() const { return TextoDeError(codigo_); }
    const char* what() const noexcept override { return TextoDeError(codigo_); }

  private:
    CodigoError codigo_;
};

}  // namespace trabex
