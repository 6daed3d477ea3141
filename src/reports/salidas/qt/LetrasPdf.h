#pragma once

#include <QFont>
#include <QHash>
#include <QRawFont>
#include <QString>
#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "reports/salidas/ArchivoPdf.h"

namespace trabex::salidas::qt {

/// The fonts of a PDF file, whatever their size: each is embedded once, with the glyphs that were used and
/// the characters that they stand for.
class LetrasPdf {
  public:
    /// A stretch of a text in one font: its glyphs, as they stand between the brackets of a PDF's text, and
    /// how far it stands from the text's beginning, in sizes of the font.
    struct Tramo {
        std::size_t Letra = 0;
        std::string Glifos;
        double x = 0;
        double y = 0;
    };
    /// A text in a font of the toolkit, in others where that one has not its characters. Valid until the
    /// next.
    const std::vector<Tramo>& Componer(const QFont& fuente, const QString& texto);
    /// The same of a text of printable ASCII alone; null where the font has not all of it.
    const std::vector<Tramo>* ComponerLlano(const QFont& fuente, std::string_view texto);
    /// How high a font stands over its foot line, in sizes of it.
    double Ascenso(const QFont& fuente);

    /// The name of a font in a page's resources.
    static std::string Nombre(std::size_t letra) { return "/F" + std::to_string(letra); }
    /// Writes them, and gives the inside of the dictionary in which pages find them.
    std::string Escribir(ArchivoPdf& archivo) const;

  private:
    struct Latino {
        quint32 Glifo = 0;  // 0 where the font has none
        bool Usado = false;
        std::string Escrito{};  // as in a stretch
    };
    struct Letra {
        QRawFont Fuente;
        std::array<Latino, 256> Latinos{};        // the first characters
        std::map<std::uint32_t, QString> Usados;  // glyphs, with what they stand for
    };
    struct Elegida {
        QFont Fuente;
        std::size_t Numero = 0;
    };
    std::size_t Numero(const QFont& fuente);
    std::size_t Numero(const QRawFont& fuente);
    Tramo& Empezar(const QFont& fuente);
    static bool AgregarLatino(Letra& letra, std::size_t c, std::string& glifos);
    bool ComponerSencillo(Letra& letra, const QString& texto, std::string& glifos);
    std::vector<Tramo> ComponerPorPartes(const QFont& fuente, const QString& texto);
    static void EscribirLetra(ArchivoPdf& archivo, std::size_t numero, std::size_t orden, const Letra& letra);

    std::vector<std::unique_ptr<Letra>> letras_;
    QHash<QString, std::size_t> porFuente_;
    QHash<QString, std::size_t> porNombre_;
    std::vector<Elegida> ultimas_;  // a page goes to and fro between a few
    std::vector<Tramo> compuesto_;
};

}  // namespace trabex::salidas::qt
