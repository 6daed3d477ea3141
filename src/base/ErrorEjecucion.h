#pragma once

#include <exception>
#include <memory>
#include <string>
#include <utility>

namespace trabex {

/// Codes of the run-time errors that the program can meet. The numbers are what the engineer is shown.
enum class CodigoError {
    ArgumentoInvalido = 5,
    Desbordamiento = 6,
    MemoriaInsuficiente = 7,
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
    FormatoNoValido = 321,
    ErrorImpresora = 482,
    CampoPequeno = 3163,
    RegistroCambiado = 3197,
};

/// The Spanish text of a code, as a message shows it below "Error Número: ".
const char* TextoDeError(CodigoError codigo);

/// A run-time error. A calculation that meets one leaves what it had filled; whoever drives it catches this.
class ErrorEjecucion : public std::exception {
  public:
    explicit ErrorEjecucion(CodigoError codigo) : codigo_(codigo) {}
    /// One that tells more than its code: `texto` stands in the place of the code's own.
    ErrorEjecucion(CodigoError codigo, std::string texto)
        : codigo_(codigo), texto_(std::make_shared<const std::string>(std::move(texto))) {}

    int Codigo() const { return static_cast<int>(codigo_); }
    std::string Texto() const { return what(); }
    const char* what() const noexcept override { return texto_ ? texto_->c_str() : TextoDeError(codigo_); }

  private:
    CodigoError codigo_;
    std::shared_ptr<const std::string> texto_;  // shared, so that copying an error cannot fail
};

}  // namespace trabex
