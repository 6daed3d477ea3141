#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Archivos.h"

namespace trabex::salidas {

/// A text as PDF takes any: UTF-16 in hexadecimal, between its brackets.
std::string TextoPdf(std::string_view texto);
/// A number in units of its last decimal, of six at most.
std::int64_t UnidadesPdf(double valor, unsigned decimales);
/// Such a number as PDF takes it: without zeros at its end.
void AgregarNumeroPdf(std::string& salida, std::int64_t unidades, unsigned decimales);

/// A PDF file on its way: numbered objects, written as they come, and their table at the end. Throws
/// ErrorEjecucion when the disk refuses.
class ArchivoPdf {
  public:
    explicit ArchivoPdf(ArchivoNuevo& destino);
    ~ArchivoPdf();
    ArchivoPdf(const ArchivoPdf&) = delete;
    ArchivoPdf& operator=(const ArchivoPdf&) = delete;

    /// The number of an object to come.
    std::size_t Reservar();
    /// Writes an object: a dictionary's inside.
    void Objeto(std::size_t numero, std::string_view contenido);
    /// Writes a stream: its dictionary's inside, and its bytes, compressed or as they are.
    void Flujo(std::size_t numero, std::string_view contenido, std::string_view bytes, bool comprimir = true);
    /// Closes the file: the object from which all are reached, and that of its title and author.
    void Terminar(std::size_t raiz, std::size_t ficha);

    /// How others refer to an object.
    static std::string Enlace(std::size_t numero) { return std::to_string(numero) + " 0 R"; }

  private:
    class Compresor;
    void Empezar(std::size_t numero);
    void Escribir(std::string_view bytes);

    ArchivoNuevo& destino_;
    std::unique_ptr<Compresor> compresor_;
    std::size_t largo_ = 0;
    std::vector<std::size_t> lugares_{0};  // of the objects, from 1
};

}  // namespace trabex::salidas
