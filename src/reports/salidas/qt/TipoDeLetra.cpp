#include "reports/salidas/qt/TipoDeLetra.h"

#include <algorithm>
#include <cmath>

namespace trabex::salidas::qt {

namespace {

constexpr double SinMedir = -1;

QFont FuenteDe(double puntos, bool negrita, bool cursiva) {
    QFont fuente;
    fuente.setFamilies({"Arial", "Liberation Sans", "Helvetica", "DejaVu Sans"});
    fuente.setStyleHint(QFont::SansSerif);
    fuente.setPixelSize(static_cast<int>(std::lround(puntos * PuntoTipografico)));
    fuente.setBold(negrita);
    fuente.setItalic(cursiva);
    fuente.setHintingPreference(QFont::PreferNoHinting);
    fuente.setKerning(false);
    return fuente;
}

/// Adds the lines of a paragraph without line feeds.
void Partir(const TipoDeLetra& letra, const QString& parrafo, double ancho, QStringList& lineas) {
    QString linea;
    for (QString palabra : parrafo.split(' ')) {
        const QString seguida = linea.isEmpty() ? palabra : linea + ' ' + palabra;
        if (letra.Ancho(seguida) <= ancho) {
            linea = seguida;
            continue;
        }
        if (!linea.isEmpty()) lineas.append(linea);
        while (palabra.size() > 1 && letra.Ancho(palabra) > ancho) {
            qsizetype caben = palabra.size() - 1;
            while (caben > 1 && letra.Ancho(palabra.left(caben)) > ancho) --caben;
            lineas.append(palabra.left(caben));
            palabra.remove(0, caben);
        }
        linea = palabra;
    }
    lineas.append(linea);
}

}  // namespace

TipoDeLetra::TipoDeLetra(double puntos, bool negrita, bool cursiva)
    : fuente_(FuenteDe(puntos, negrita, cursiva)),
      metrica_(fuente_),
      avances_(),
      alto_(metrica_.ascent() + metrica_.descent()),
      ascenso_(metrica_.ascent()) {
    for (std::size_t c = 0; c < avances_.size(); ++c) {
        const QChar letra(static_cast<char16_t>(c));
        // For one that no font shows the toolkit would load them all.
        avances_[c] = letra.category() == QChar::Other_Control ? SinMedir : metrica_.horizontalAdvance(letra);
    }
}

double TipoDeLetra::Ancho(QStringView texto) const {
    double ancho = 0;
    for (const QChar c : texto) {
        if (c.unicode() >= avances_.size()) return metrica_.horizontalAdvance(texto.toString());
        const double avance = avances_[c.unicode()];
        ancho += avance == SinMedir ? metrica_.horizontalAdvance(c) : avance;
    }
    return ancho;
}

double TipoDeLetra::AnchoLlano(std::string_view texto) const {
    double ancho = 0;
    for (const char c : texto) ancho += avances_[static_cast<unsigned char>(c)];
    return ancho;
}

QStringList TipoDeLetra::Lineas(const QString& texto, double ancho) const {
    if (!texto.contains('\n') && Ancho(texto) <= ancho) return {texto};
    QStringList lineas;
    for (const QString& parrafo : texto.split('\n')) {
        if (Ancho(parrafo) <= ancho)
            lineas.append(parrafo);
        else
            Partir(*this, parrafo, ancho, lineas);
    }
    return lineas;
}

double TipoDeLetra::AnchoDePalabra(const QString& texto) const {
    const auto esBlanco = [](QChar c) { return c == ' ' || c == '\n'; };
    double ancho = 0;
    for (const auto* palabra = texto.begin(); palabra != texto.end();) {
        const auto* fin = std::find_if(palabra, texto.end(), esBlanco);
        ancho = std::max(ancho, Ancho(QStringView(palabra, fin)));
        palabra = std::find_if_not(fin, texto.end(), esBlanco);
    }
    return ancho;
}

}  // namespace trabex::salidas::qt
