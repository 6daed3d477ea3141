#include "drawing/losa/BaseLosa.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

#include "drawing/Primitivas.h"
#include "drawing/losa/Apoyos.h"

namespace trabex::dibujo::losa {

namespace {

constexpr Color FondoBanda{156, 177, 182};
constexpr std::array<Color, 3> FondoCarga{{{248, 199, 199}, {248, 199, 199}, {255, 242, 217}}};

constexpr double PieDeLinea = 0.75;  // end of an axis's vertical line, below the joint
constexpr double DiametroDeEje = 0.52;
constexpr double TopeDeCirculo = 0.3;  // below the line's end
constexpr double LetraDeEje = 11.5;
constexpr double LetraDeTitulo = 9;
constexpr double LargoDeCorte = 0.35;  // of what is seen of a slab that goes on
constexpr double PieDeCorte = 0.3;
constexpr std::int32_t PixelesAlBorde = 3;
constexpr double MetrosBajoLosa = 7.5;  // that bands and tables need below the slab

void DibujeBandas(const Trazado& t) {
    for (std::size_t i = t.PrimerTramo(); i <= t.UltimoTramo(); ++i)
        DibujeBanda(t.EnMetros, t.Hoja.Ejes, i, -MediaBanda, MediaBanda, PlumaContorno, FondoBanda);
    t.EnMetros.ElLienzo().PonerCapa(CapaCargas);
    for (std::size_t i = t.PrimerTramo(); i <= t.UltimoTramo(); ++i)
        DibujeBanda(t.EnMetros, t.Hoja.Ejes, i, MediaBanda, BordeCarga, std::nullopt,
                    FondoCarga[t.Hoja.OpcionCarga]);
}

/// A slab that goes on beyond the sheet is cut off behind its axis, at a dotted line.
void DibujeCorte(const Trazado& t, std::size_t tramo, std::size_t eje) {
    const Plano& p = t.EnMetros;
    const double ancho = t.EjeX(tramo + 1) - t.EjeX(tramo);
    const double parte = ancho > 0 ? std::min(1.0, LargoDeCorte / ancho) : 0;
    const std::size_t otro = eje == tramo ? tramo + 1 : tramo;
    const double x = t.EjeX(eje) + (t.EjeX(otro) - t.EjeX(eje)) * parte;
    const double y = t.EjeY(eje) + (t.EjeY(otro) - t.EjeY(eje)) * parte;
    const auto cerrar = [&](double desde, double hasta, Color relleno) {
        const std::array<PuntoLienzo, 4> banda{{{p.X(t.EjeX(eje)), p.Y(t.EjeY(eje) + desde)},
                                                {p.X(x), p.Y(y + desde)},
                                                {p.X(x), p.Y(y + hasta)},
                                                {p.X(t.EjeX(eje)), p.Y(t.EjeY(eje) + hasta)}}};
        p.ElLienzo().Poligono(banda, std::nullopt, relleno);
    };
    p.ElLienzo().PonerCapa(CapaCargas);
    cerrar(MediaBanda, BordeCarga, FondoCarga[t.Hoja.OpcionCarga]);
    p.ElLienzo().PonerCapa(CapaLosa);
    cerrar(-MediaBanda, MediaBanda, FondoBanda);
    DibujeLinea(p.ElLienzo(), p.X(x), p.Y(y - PieDeCorte), p.X(x), p.Y(y + BordeCarga + PieDeCorte), 1,
                EstiloLinea::Punteada, Contorno);
}

/// Keeps what stands over the slab: boxes from the origin.
class SobreLaLosa {
  public:
    explicit SobreLaLosa(Trazado& t) : t_(t), ocupadas_(t.EnMetros.SinOcupar()) {}

    void Dibujar() {
        for (std::size_t i = t_.PrimerTramo(); i <= t_.UltimoTramo(); ++i) Puntual(i);
        for (std::size_t i = t_.PrimerTramo(); i <= t_.UltimoTramo(); ++i) Uniforme(i);
        for (std::size_t k = 1; k < t_.Losa.JuntasD.size(); ++k) Corrimiento(t_.Losa.JuntasD[k]);
        for (const RotuloDeHoja& rotulo : rotulos_) t_.Escribir(rotulo);
        t_.Anotar({BandaDe::Cargas, -alto_, -MediaBanda * t_.EnMetros.Escala(), true});
    }

  private:
    /// Lowest foot of a box that stands `sobre` m over the line through the axes on its whole width.
    double Base(double x, double ancho, double sobre) const {
        return t_.Perfil.Entre(x - ancho / 2, x + ancho / 2).MasAlto - sobre * t_.EnMetros.Escala();
    }
    void Guardar(std::string texto, PiezaTexto caja, const PiezaTexto& derecha, double grados,
                 std::size_t lugar) {
        alto_ = std::max(alto_, t_.Perfil.Entre(derecha.x, derecha.Derecha()).MasBajo - derecha.y);
        rotulos_.push_back({BandaDe::Cargas, std::move(texto), caja, grados, lugar});
    }

    /// The value of a point load beside its arrow, read from below.
    void Puntual(std::size_t i) {
        const losas::Tramo& tramo = t_.Losa.Tramos[i];
        if (tramo.p1 == 0) return;
        const double E = t_.EnMetros.Escala();
        DibujeFlechaDeCarga(t_.EnMetros, t_.Hoja.Ejes, i, tramo.L1);
        const Lugar lugar = EnTramo(t_.Hoja.Ejes, i, tramo.L1);
        const double x = E * lugar.x;
        const double y = -E * (lugar.y + BordeCarga);
        ocupadas_.Reservar({x - 0.15 * E, y - 0.5 * E, 0.3 * E, 0.5 * E});
        const std::string valor = t_.Numero(tramo.p1, "0");
        const MedidaTexto medida = t_.Medir(valor);
        const double lado = 0.15 * E + medida.Alto / 2.0;
        const double pie = std::min(y - t_.EnMetros.Unidades(2), Base(x, 2 * lado + medida.Alto, BordeCarga));
        PiezaTexto caja{x + lado - medida.Alto / 2.0, pie - medida.Ancho, static_cast<double>(medida.Alto),
                        static_cast<double>(medida.Ancho)};
        PiezaTexto otra = caja;
        otra.x = x - lado - medida.Alto / 2.0;
        if (!ocupadas_.Libre(caja) && ocupadas_.Libre(otra)) caja = otra;
        caja = ocupadas_.Apilar(caja, -medida.Ancho);
        Guardar(valor,
                {caja.x + (caja.Ancho - medida.Ancho) / 2, caja.y + (caja.Alto - medida.Alto) / 2, caja.Alto,
                 caja.Ancho},
                caja, 90, i);
    }

    /// In the load band, if need be beside what stands there, or over it.
    void Uniforme(std::size_t i) {
        const double E = t_.EnMetros.Escala();
        const double pendiente = PendienteDeTramo(t_.Hoja.Ejes, i);
        const double seno = std::fabs(std::sin(pendiente));
        const double coseno = std::cos(pendiente);
        const std::string texto = TextoDeCarga(t_.Losa.Tramos[i], t_.Hoja.OpcionCarga);
        const MedidaTexto medida = t_.Medir(texto);
        const double ancho = medida.Ancho * coseno + medida.Alto * seno;
        const double alto = medida.Ancho * seno + medida.Alto * coseno;
        const double x = t_.MitadDeTramo(i);
        const double nivel = -E * losa::MitadDeTramo(t_.Hoja.Ejes, i).y;
        // The middle of the band, or higher where the band is thinner than the text that lies along it.
        const double enBanda =
            nivel - std::max(E * (MediaBanda + BordeCarga) / 2, E * MediaBanda + medida.Alto / coseno / 2);
        const double luz = t_.Columna(i + 1) - t_.Columna(i);
        std::vector<double> columnas{x};
        if (pendiente == 0 && ancho < luz / 2) {
            const double extremo = (luz - ancho) / 2;
            columnas = {x, x - luz / 4, x + luz / 4, x - extremo, x + extremo};
        }
        const auto caja = [&](double centro, double pie) {
            return PiezaTexto{centro - ancho / 2, pie - alto, ancho, alto};
        };
        const bool cabe =
            ancho <= luz || (pendiente == 0 && enBanda + alto / 2 <= Base(x, ancho, MediaBanda) + 1);
        const auto libre = std::find_if(columnas.begin(), columnas.end(), [&](double columna) {
            return cabe && ocupadas_.Libre(caja(columna, enBanda + alto / 2));
        });
        const double sobreBanda = std::min(Base(x, ancho, BordeCarga), enBanda + alto / 2 - medida.Alto);
        const PiezaTexto puesta = ocupadas_.Apilar(
            libre != columnas.end() ? caja(*libre, enBanda + alto / 2) : caja(x, sobreBanda), -medida.Alto);
        Guardar(texto,
                {puesta.x + (ancho - medida.Ancho) / 2, puesta.y + (alto - medida.Alto) / 2,
                 static_cast<double>(medida.Ancho), static_cast<double>(medida.Alto)},
                puesta, pendiente * 180 / std::numbers::pi, i);
    }

    void Corrimiento(const losas::JuntaD& junta) {
        if (junta.Junta < 1) return;
        const auto eje = static_cast<std::size_t>(junta.Junta);
        if (eje < t_.PrimerEje() || eje > t_.UltimoEje()) return;
        const Plano& p = t_.EnMetros;
        const std::int32_t x = p.X(t_.EjeX(eje));
        const double y = t_.EjeY(eje);
        DibujeLinea(p.ElLienzo(), x, p.Fila(0.1, y), x, p.Y(y + 0.16), 2, EstiloLinea::Solida, Contorno);
        const std::string texto = TextoDeCorrimiento(junta, t_.Hoja.Numeros);
        const MedidaTexto medida = t_.Medir(texto);
        const double columna = t_.Columna(eje);
        const double pie = Base(columna, medida.Ancho, BordeCarga) - p.Unidades(2);
        const PiezaTexto caja =
            ocupadas_.Apilar({columna - medida.Ancho / 2.0, pie - medida.Alto,
                              static_cast<double>(medida.Ancho), static_cast<double>(medida.Alto)},
                             -medida.Alto);
        Guardar(texto, caja, caja, 0, eje);
    }

    Trazado& t_;
    Ocupacion ocupadas_;
    double alto_ = 0;
    std::vector<RotuloDeHoja> rotulos_;
};

/// Lengths under the slab, on as many lines as they need. Returns their foot.
double DibujeLongitudes(const Trazado& t) {
    const double borde = MediaBanda * t.EnMetros.Escala();
    Ocupacion ocupadas = t.EnMetros.SinOcupar();
    double pie = borde;
    for (std::size_t i = t.PrimerTramo(); i <= t.UltimoTramo(); ++i) {
        const std::string texto = t.Numero(t.Losa.Tramos[i].LT, "0.00");
        const MedidaTexto medida = t.Medir(texto);
        const double x = t.MitadDeTramo(i);
        const auto niveles = t.Perfil.Entre(x - medida.Ancho / 2.0, x + medida.Ancho / 2.0);
        const PiezaTexto caja =
            ocupadas.Apilar({x - medida.Ancho / 2.0, niveles.MasBajo + borde + t.EnMetros.Unidades(2),
                             static_cast<double>(medida.Ancho), static_cast<double>(medida.Alto)},
                            medida.Alto);
        pie = std::max(pie, caja.Pie() - niveles.MasAlto);
        t.Escribir({BandaDe::Longitudes, texto, caja, 0, i});
    }
    t.Anotar({BandaDe::Longitudes, borde, pie, true});
    return pie;
}

/// The names of the axes in their circles below the lengths, those that would meet others further down.
/// Returns their foot.
double DibujeEjes(const Trazado& t, double desde) {
    const Plano& p = t.EnMetros;
    const double E = p.Escala();
    const double radio = E * DiametroDeEje / 2;
    Ocupacion ocupadas = p.SinOcupar();
    double pie = desde;
    p.Letra(LetraDeEje, true);
    for (std::size_t eje = t.PrimerEje(); eje <= t.UltimoEje(); ++eje) {
        const std::string nombre = eje < t.Losa.Ejes.size() ? t.Losa.Ejes[eje].Eje : "";
        const MedidaTexto medida = t.Medir(nombre);
        const double ancho = std::max<double>(medida.Ancho, 2 * radio);
        const double alto = std::max<double>(medida.Alto, 2 * radio);
        const double x = t.Columna(eje);
        const auto niveles = t.Perfil.Entre(x - ancho / 2, x + ancho / 2);
        const double centro = -E * t.EjeY(eje) + E * (PieDeLinea + TopeDeCirculo) + radio;
        const PiezaTexto caja = ocupadas.Apilar(
            {x - ancho / 2, std::max(centro - alto / 2, niveles.MasBajo + desde), ancho, alto}, alto);
        const PiezaTexto texto{x - medida.Ancho / 2.0, caja.y + (alto - medida.Alto) / 2,
                               static_cast<double>(medida.Ancho), static_cast<double>(medida.Alto)};
        pie = std::max({pie, caja.Pie() - t.Perfil.Nivel(x),
                        texto.Pie() - t.Perfil.Entre(texto.x, texto.Derecha()).MasAlto});

        const std::int32_t columna = p.X(t.EjeX(eje));
        const std::int32_t fila = Pixeles(t.Hoja.Vista.OrigenY + caja.y + alto / 2);
        DibujeLinea(p.ElLienzo(), columna, p.Fila(MediaBanda, t.EjeY(eje)), columna,
                    fila - Pixeles(E * TopeDeCirculo) - Pixeles(radio), 1, EstiloLinea::Solida, Contorno);
        p.ElLienzo().Circulo({columna, fila}, Pixeles(radio), PlumaContorno, FondoNombreDeEje);
        t.Escribir({BandaDe::Nombres, nombre, texto, 0, eje});
    }
    p.Letra(LetraNormal);
    t.Anotar({BandaDe::Nombres, desde, pie, true});
    return pie;
}

/// Labels are placed after the figures whose places they must leave free.
void DibujeLosa(Trazado& t) {
    const Plano& p = t.EnMetros;
    p.Letra(LetraNormal);
    p.ElLienzo().PonerCapa(CapaLosa);
    DibujeLinea(p.ElLienzo(), p.X(t.EjeX(t.PrimerEje())), t.Hoja.Vista.OrigenY, p.X(t.EjeX(t.UltimoEje())),
                t.Hoja.Vista.OrigenY, 1, EstiloLinea::Punteada, {});
    DibujeBandas(t);
    if (t.PrimerTramo() > 1) DibujeCorte(t, t.PrimerTramo() - 1, t.PrimerEje());
    if (t.UltimoEje() < t.Losa.Tramos.size()) DibujeCorte(t, t.UltimoTramo() + 1, t.UltimoEje());
    p.ElLienzo().PonerCapa(CapaCargas);
    SobreLaLosa(t).Dibujar();
    p.ElLienzo().PonerCapa(CapaEjes);
    t.Pie = DibujeEjes(t, DibujeLongitudes(t));
    p.ElLienzo().PonerCapa(CapaApoyos);
    for (std::size_t eje = t.PrimerEje(); eje <= t.UltimoEje() && eje < t.Losa.Ejes.size(); ++eje)
        DibujeApoyo(p, t.EjeX(eje), t.EjeY(eje), t.Losa.Ejes[eje].Tipo);
}

/// In lines no wider than `ancho`, where they can be: broken where the blanks are many, or else between
/// words.
std::vector<std::string> Partir(const Trazado& t, std::string resto, double ancho) {
    std::vector<std::string> partes;
    while (t.Medir(resto).Ancho > ancho) {
        std::size_t corte = resto.find("   ");
        if (corte == std::string::npos || t.Medir(resto.substr(0, corte)).Ancho > ancho) {
            corte = resto.find(' ');
            for (std::size_t k = corte; k != std::string::npos && t.Medir(resto.substr(0, k)).Ancho <= ancho;
                 k = resto.find(' ', k + 1))
                corte = k;
        }
        const std::size_t sigue = resto.find_first_not_of(' ', corte);
        if (sigue == std::string::npos) break;
        partes.push_back(resto.substr(0, corte));
        resto.erase(0, sigue);
    }
    partes.push_back(std::move(resto));
    return partes;
}

GrupoDeTramos TramosDe(const HojaLosa& hoja, const losas::Losa& losa) {
    const GrupoDeTramos todos{1, losas::NumeroTramos(losa)};
    if (!hoja.PorGrupos || todos.Ultimo == 0) return todos;
    const std::vector<GrupoDeTramos> grupos = GruposDeTramos(losa);
    return grupos[std::clamp<std::size_t>(hoja.Grupo, 1, grupos.size()) - 1];
}

}  // namespace

std::string Trazado::Numero(double valor, std::string_view formato) const {
    return Formato(valor, formato, Hoja.Numeros);
}

std::string Trazado::Espesor() const {
    return Numero(losas::SeccionDeCalculo(Losa).Alto, "0.00");
}

double Trazado::BordeIzquierdo() const {
    return -EnMetros.ElLienzo().ScaleWidth() / 2.0 * Hoja.Vista.Zoom + EnMetros.Unidades(PixelesAlBorde);
}

std::string Trazado::Nombre() const {
    if (PrimerEje() == 1 && UltimoEje() == Losa.Tramos.size()) return Losa.Nombre;
    const auto eje = [&](std::size_t k) { return k < Losa.Ejes.size() ? Losa.Ejes[k].Eje : std::string(); };
    return Losa.Nombre + "   (Ejes " + eje(PrimerEje()) + " a " + eje(UltimoEje()) + ")";
}

void Trazado::Escribir(RotuloDeHoja rotulo) const {
    rotulo.Caja.x += Hoja.Vista.OrigenX;
    rotulo.Caja.y += Hoja.Vista.OrigenY;
    const PiezaTexto& caja = rotulo.Caja;
    EnMetros.EscribirCentrado(rotulo.Texto, caja.x + caja.Ancho / 2, caja.y + caja.Alto / 2, rotulo.Grados);
    Hoja.Rotulos.push_back(std::move(rotulo));
}

Encuadre EncuadreDeLosa(Lienzo& lienzo, const EjesDeHoja& ejes, const EstiloHoja& estilo,
                        const PieDeHoja& pie) {
    const auto ajuste = std::find_if(estilo.Ajustes.begin(), estilo.Ajustes.end() - 1,
                                     [&](const auto& fila) { return ejes.Longitud > fila.MayorQue; });
    const double parte = ejes.YMaximo > 0 ? ajuste->Escalonada : ajuste->Parte;
    double escala = EscalaDeRegla(lienzo, {parte, estilo.ParteDelAlto, estilo.EscalaMaxima}, ejes.Longitud,
                                  ejes.YMaximo / 2 + MetrosBajoLosa);
    if (ejes.YMinimo != ejes.YMaximo && pie.Metros > 0) {
        lienzo.PonerFuente({std::string(estilo.Medio.FuenteNombre), LetraDeTitulo, true});
        const double renglones = static_cast<double>(pie.Titulos + (estilo.Medio.DePagina ? 2 : 0));
        const double alto =
            lienzo.ScaleHeight() * (1 - estilo.OrigenVertical) - renglones * lienzo.Medir("WW").Alto;
        const double cabe = alto / (pie.Metros - ejes.YMinimo + ejes.YMaximo / 2);
        if (cabe > 0) escala = std::min(escala, cabe);
    }
    return {escala, estilo.OrigenVertical, ejes.YMaximo / 2};
}

std::optional<Trazado> DibujeBaseLosa(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                                      const EstiloHoja& estilo, const PieDeHoja& pie) {
    Despejar(lienzo, hoja.Vista, estilo.Medio);
    hoja.Bandas.clear();
    hoja.Rotulos.clear();
    hoja.Tramos = TramosDe(hoja, losa.Datos);
    if (hoja.Tramos.Ultimo == 0) return std::nullopt;
    hoja.Ejes = UbicarEjes(losa.Datos, hoja.Tramos);
    const Plano plano =
        Encuadrar(lienzo, hoja.Vista, estilo.Medio, EncuadreDeLosa(lienzo, hoja.Ejes, estilo, pie));
    Trazado t{plano, hoja, losa, losa.Datos, estilo, PerfilDeHoja(hoja.Ejes, hoja.Tramos, hoja.Vista.Escala)};
    DibujeLosa(t);
    return t;
}

void DibujeTitulos(const Trazado& t, double fila, const std::vector<std::string>& lineas) {
    t.EnMetros.LetraDeTitulo(LetraDeTitulo);
    const double ancho = -2 * t.BordeIzquierdo();
    const double desde = fila;
    for (const std::string& linea : lineas) {
        for (const std::string& parte : Partir(t, linea, ancho)) {
            const MedidaTexto medida = t.Medir(parte);
            t.Escribir({BandaDe::Titulos,
                        parte,
                        {-std::floor(medida.Ancho / 2.0), fila, static_cast<double>(medida.Ancho),
                         static_cast<double>(medida.Alto)}});
            fila += medida.Alto;
        }
    }
    t.Anotar({BandaDe::Titulos, desde, fila, false});
}

}  // namespace trabex::dibujo::losa
