#include "reports/salidas/qt/LetrasPdf.h"

#include <QGlyphRun>
#include <QTextLayout>
#include <algorithm>
#include <set>

#include "reports/salidas/FuenteTrueType.h"

namespace trabex::salidas::qt {

namespace {

constexpr int CuerpoDeMedida = 1000;  // pixels, at which stretches are set
constexpr std::size_t FuentesAMano = 4;

void AgregarCifras(std::string& salida, std::uint32_t numero) {
    constexpr std::string_view cifras = "0123456789ABCDEF";
    for (const unsigned lugar : {12U, 8U, 4U, 0U}) salida += cifras[numero >> lugar & 0xFU];
}

/// Two bytes; those that would end the text, or be taken for a line's end, stand behind a bar.
std::string Escrito(std::uint32_t glifo) {
    std::string salida;
    for (const unsigned lugar : {8U, 0U}) {
        const char byte = static_cast<char>(glifo >> lugar & 0xFFU);
        if (std::string_view("()\\\r").find(byte) != std::string_view::npos) salida += '\\';
        salida += byte == '\r' ? 'r' : byte;
    }
    return salida;
}

TablaDeFuente TablasDe(const QRawFont& fuente) {
    return [&fuente](const char* nombre) { return fuente.fontTable(nombre).toStdString(); };
}

/// What a program that searches or copies takes the glyphs for.
std::string TablaDeCaracteres(const std::map<std::uint32_t, QString>& usados) {
    constexpr std::size_t porBloque = 100;
    std::string tabla =
        "/CIDInit/ProcSet findresource begin 12 dict begin begincmap/CIDSystemInfo<</Registry(Adobe)"
        "/Ordering(UCS)/Supplement 0>>def/CMapName/Adobe-Identity-UCS def/CMapType 2 def\n"
        "1 begincodespacerange<0000><FFFF>endcodespacerange\n";
    std::vector<std::string> lineas;
    for (const auto& [glifo, texto] : usados) {
        if (texto.isEmpty()) continue;
        std::string linea = "<";
        AgregarCifras(linea, glifo);
        linea += "><";
        for (const QChar c : texto) AgregarCifras(linea, c.unicode());
        lineas.push_back(linea + ">\n");
    }
    for (std::size_t desde = 0; desde < lineas.size(); desde += porBloque) {
        const std::size_t hasta = std::min(desde + porBloque, lineas.size());
        tabla += std::to_string(hasta - desde) + " beginbfchar\n";
        for (std::size_t i = desde; i < hasta; ++i) tabla += lineas[i];
        tabla += "endbfchar\n";
    }
    return tabla + "endcmap CMapName currentdict/CMap defineresource pop end end\n";
}

/// The name of a font that is embedded in part begins with six letters of its own.
std::string NombreDeParte(const QRawFont& fuente, std::size_t orden) {
    std::string nombre = "TRABXA+";
    nombre[5] = static_cast<char>('A' + orden % 26);
    for (const QChar c : fuente.familyName() + "-" + fuente.styleName()) {
        if (c.isLetterOrNumber() && c.unicode() < 128) nombre += c.toLatin1();
        if (c == '-') nombre += '-';
    }
    return nombre;
}

}  // namespace

std::size_t LetrasPdf::Numero(const QRawFont& fuente) {
    const QString nombre = fuente.familyName() + '\n' + fuente.styleName();
    const auto hallada = porNombre_.constFind(nombre);
    if (hallada != porNombre_.constEnd()) return *hallada;
    auto letra = std::make_unique<Letra>();
    letra->Fuente = fuente;
    for (std::size_t c = 0x20; c < letra->Latinos.size(); ++c) {
        const QList<quint32> glifos = fuente.glyphIndexesForString(QString(QChar(static_cast<char16_t>(c))));
        if (!glifos.isEmpty()) letra->Latinos[c] = {glifos.front(), false, Escrito(glifos.front())};
    }
    letras_.push_back(std::move(letra));
    porNombre_.insert(nombre, letras_.size() - 1);
    return letras_.size() - 1;
}

std::size_t LetrasPdf::Numero(const QFont& fuente) {
    for (const Elegida& ultima : ultimas_)
        if (fuente == ultima.Fuente) return ultima.Numero;
    const QString llave =
        fuente.families().join('\n') + (fuente.bold() ? "|n" : "|") + (fuente.italic() ? "i" : "");
    auto hallada = porFuente_.find(llave);
    if (hallada == porFuente_.end()) {
        QFont grande = fuente;
        grande.setPixelSize(CuerpoDeMedida);
        hallada = porFuente_.insert(llave, Numero(QRawFont::fromFont(grande)));
    }
    if (ultimas_.size() == FuentesAMano) ultimas_.pop_back();
    ultimas_.insert(ultimas_.begin(), {fuente, *hallada});
    return *hallada;
}

double LetrasPdf::Ascenso(const QFont& fuente) {
    const QRawFont& cruda = letras_[Numero(fuente)]->Fuente;
    return cruda.ascent() / cruda.pixelSize();
}

bool LetrasPdf::AgregarLatino(Letra& letra, std::size_t c, std::string& glifos) {
    Latino& latino = letra.Latinos[c];
    if (latino.Glifo == 0) return false;
    if (!latino.Usado) letra.Usados.try_emplace(latino.Glifo, QChar(static_cast<char16_t>(c)));
    latino.Usado = true;
    for (const char byte : latino.Escrito) glifos += byte;
    return true;
}

bool LetrasPdf::ComponerSencillo(Letra& letra, const QString& texto, std::string& glifos) {
    for (const QChar c : texto) {
        if (c.unicode() < letra.Latinos.size()) {
            if (!AgregarLatino(letra, c.unicode(), glifos)) return false;
            continue;
        }
        if (c.isSurrogate() || c.script() > QChar::Script_Cyrillic) return false;
        const QList<quint32> hallados = letra.Fuente.glyphIndexesForString(QString(c));
        const quint32 glifo = hallados.isEmpty() ? 0 : hallados.front();
        if (glifo == 0) return false;
        if (const auto [usado, nuevo] = letra.Usados.try_emplace(glifo); nuevo) usado->second = c;
        glifos += Escrito(glifo);
    }
    return true;
}

std::vector<LetrasPdf::Tramo> LetrasPdf::ComponerPorPartes(const QFont& fuente, const QString& texto) {
    QFont grande = fuente;
    grande.setPixelSize(CuerpoDeMedida);
    QTextLayout composicion(texto, grande);
    composicion.beginLayout();
    const QTextLine linea = composicion.createLine();
    composicion.endLayout();
    std::vector<Tramo> tramos;
    for (const QGlyphRun& parte : composicion.glyphRuns()) {
        const std::size_t numero = Numero(parte.rawFont());
        const QList<quint32> glifos = parte.glyphIndexes();
        const QList<QPointF> lugares = parte.positions();
        for (qsizetype i = 0; i < glifos.size(); ++i) {
            Tramo tramo{numero,
                        {},
                        lugares[i].x() / CuerpoDeMedida,
                        (lugares[i].y() - linea.ascent()) / CuerpoDeMedida};
            tramo.Glifos = Escrito(glifos[i]);
            tramos.push_back(tramo);
            // One glyph a character, as in most scripts, tells what each stands for.
            auto& usado = letras_[numero]->Usados[glifos[i]];
            if (usado.isEmpty() && glifos.size() == texto.size()) usado = texto[i];
        }
    }
    return tramos;
}

LetrasPdf::Tramo& LetrasPdf::Empezar(const QFont& fuente) {
    compuesto_.resize(1);
    Tramo& tramo = compuesto_.front();
    tramo.Letra = Numero(fuente);
    tramo.x = tramo.y = 0;
    tramo.Glifos.clear();
    return tramo;
}

const std::vector<LetrasPdf::Tramo>* LetrasPdf::ComponerLlano(const QFont& fuente, std::string_view texto) {
    Tramo& tramo = Empezar(fuente);
    Letra& letra = *letras_[tramo.Letra];
    const bool hay = std::all_of(texto.begin(), texto.end(), [&](char c) {
        return AgregarLatino(letra, static_cast<unsigned char>(c), tramo.Glifos);
    });
    return hay ? &compuesto_ : nullptr;
}

const std::vector<LetrasPdf::Tramo>& LetrasPdf::Componer(const QFont& fuente, const QString& texto) {
    Tramo& tramo = Empezar(fuente);
    if (!ComponerSencillo(*letras_[tramo.Letra], texto, tramo.Glifos))
        compuesto_ = ComponerPorPartes(fuente, texto);
    return compuesto_;
}

void LetrasPdf::EscribirLetra(ArchivoPdf& archivo, std::size_t numero, std::size_t orden,
                              const Letra& letra) {
    const TablaDeFuente tablas = TablasDe(letra.Fuente);
    const MedidasDeFuente medidas = MedidasDe(tablas);
    const bool trueType = EsTrueType(tablas);
    const std::string nombre = "/" + NombreDeParte(letra.Fuente, orden);
    const std::size_t descendiente = archivo.Reservar();
    const std::size_t descripcion = archivo.Reservar();
    const std::size_t contornos = archivo.Reservar();
    const std::size_t caracteres = archivo.Reservar();

    std::string anchos = "/W[";
    std::set<std::uint32_t> glifos;
    for (const auto& [glifo, texto] : letra.Usados) {
        glifos.insert(glifo);
        if (glifo < medidas.Avances.size())
            anchos += std::to_string(glifo) + "[" + std::to_string(medidas.Avances[glifo]) + "]";
    }
    archivo.Objeto(numero, "/Type/Font/Subtype/Type0/BaseFont" + nombre +
                               "/Encoding/Identity-H/DescendantFonts[" + ArchivoPdf::Enlace(descendiente) +
                               "]/ToUnicode " + ArchivoPdf::Enlace(caracteres));
    archivo.Objeto(descendiente, std::string("/Type/Font/Subtype/") +
                                     (trueType ? "CIDFontType2" : "CIDFontType0") + "/BaseFont" + nombre +
                                     "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>" +
                                     (trueType ? "/CIDToGIDMap/Identity" : "") + "/FontDescriptor " +
                                     ArchivoPdf::Enlace(descripcion) + anchos + "]");
    std::string cajas;
    for (const int lado : {medidas.Izquierda, medidas.Abajo, medidas.Derecha, medidas.Arriba})
        cajas += std::to_string(lado) + " ";
    archivo.Objeto(descripcion, "/Type/FontDescriptor/FontName" + nombre + "/Flags 4/FontBBox[" + cajas +
                                    "]/ItalicAngle 0/Ascent " + std::to_string(medidas.Ascenso) +
                                    "/Descent " + std::to_string(medidas.Descenso) + "/CapHeight " +
                                    std::to_string(medidas.Ascenso) + "/StemV 80" +
                                    (trueType ? "/FontFile2 " : "/FontFile3 ") +
                                    ArchivoPdf::Enlace(contornos));
    const std::string archivoDeFuente = trueType ? ParteDeFuente(tablas, glifos) : FuenteEntera(tablas);
    archivo.Flujo(
        contornos,
        trueType ? "/Length1 " + std::to_string(archivoDeFuente.size()) : std::string("/Subtype/OpenType"),
        archivoDeFuente);
    archivo.Flujo(caracteres, "", TablaDeCaracteres(letra.Usados));
}

std::string LetrasPdf::Escribir(ArchivoPdf& archivo) const {
    std::string nombres;
    for (std::size_t i = 0; i < letras_.size(); ++i) {
        if (letras_[i]->Usados.empty()) continue;
        const std::size_t numero = archivo.Reservar();
        EscribirLetra(archivo, numero, i, *letras_[i]);
        nombres += Nombre(i) + " " + ArchivoPdf::Enlace(numero);
    }
    return nombres;
}

}  // namespace trabex::salidas::qt
