#include "reports/salidas/EscritorXls.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/Texto.h"
#include "reports/salidas/ImagenPng.h"
#include "reports/salidas/ValorEnXls.h"

namespace trabex::salidas {

namespace {

constexpr double PuntosPorMilimetro = 72 / 25.4;
constexpr double AltoDeFila = 12.75;
constexpr double AnchoDeLetra = 0.55;  ///< mean width of a letter, in sizes of the font
constexpr double MenorAncho = 36;      ///< of a column
constexpr std::size_t ColumnasSinTablas = 6;
constexpr std::size_t MayorEncabezadoFijo = 16;  ///< rows that may stay while the rest scrolls

constexpr std::uint32_t FondoTitulos = 0xE6EDF4, LineaTitulos = 0xB9C6D3, LineaDatos = 0xD9DFE5;
constexpr std::uint32_t TintaTitulos = 0x2F5D8A, TintaRotulos = 0x555555;

/// The part of a page's header or footer in the format's codes.
std::string Banda(const documento::BandaDePagina& banda) {
    std::string codigo;
    const auto parte = [&codigo](const char* marca, const std::string& texto) {
        if (texto.empty()) return;
        codigo += marca;
        for (const char c : texto) {
            if (c == documento::MarcaPagina)
                codigo += "&P";
            else if (c == documento::MarcaPaginas)
                codigo += "&N";
            else
                codigo += c == '&' ? std::string("&&") : std::string(1, c);
        }
    };
    parte("&L", banda.Izquierda);
    parte("&C", banda.Centro);
    parte("&R", banda.Derecha);
    return codigo;
}

xls::PaginaXls PaginaDe(const documento::Pagina& pagina) {
    xls::PaginaXls salida;
    salida.Papel = pagina.Tamano == documento::TamanoPagina::A4 ? xls::PapelXls::A4 : xls::PapelXls::Carta;
    salida.Horizontal = pagina.Apaisada;
    salida.AjustarAlAncho = true;
    salida.Izquierdo = pagina.MargenIzquierdo * PuntosPorMilimetro;
    salida.Derecho = pagina.MargenDerecho * PuntosPorMilimetro;
    salida.Superior =
        (pagina.MargenSuperior + 8) * PuntosPorMilimetro;  // the header stands inside the margin
    salida.Inferior = (pagina.MargenInferior + 8) * PuntosPorMilimetro;
    salida.Encabezado = Banda(pagina.Encabezado);
    salida.Pie = Banda(pagina.Pie);
    return salida;
}

/// Lines that a text takes in a width, in points, at a size of font.
std::size_t Lineas(const std::string& texto, double ancho, double puntos) {
    const double porLinea = std::max(1.0, ancho / (AnchoDeLetra * puntos));
    std::size_t lineas = 0;
    for (std::size_t desde = 0; desde <= texto.size();) {
        const std::size_t fin = std::min(texto.find('\n', desde), texto.size());
        const auto letras = static_cast<double>(NumeroDeCaracteres(texto.substr(desde, fin - desde)));
        lineas += static_cast<std::size_t>(std::max(1.0, std::ceil(letras / porLinea)));
        desde = fin + 1;
    }
    return lineas;
}

std::string_view TextoDe(const almacen::Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// A picture's file as a book takes it.
std::string Archivo(const almacen::Bytes& bytes) {
    const auto foto = Comprimida(bytes);
    return foto ? std::string(TextoDe(foto->Archivo)) : std::string();
}

/// The book's numbers of the styles of tables' cells; there are few, and many cells.
struct EstilosDeTablas {
    struct Usado {
        bool Destacada;
        documento::Alineacion Lado;
        std::string Formato;
        std::uint16_t Numero;
    };
    std::vector<Usado> Usados{};
    std::optional<std::uint16_t> Titulos{};
};

/// Writes the blocks of a section one below the other.
class EscritorDeHoja {
  public:
    EscritorDeHoja(xls::LibroXls& libro, EstilosDeTablas& estilos, xls::HojaXls& hoja,
                   const documento::Documento& documento)
        : libro_(libro), estilos_(estilos), hoja_(hoja), documento_(documento) {}

    void Escribir(const documento::Seccion& seccion, const std::function<void()>& antesDeCada) {
        PonerAnchos(seccion);
        const auto tablas = std::count_if(
            seccion.Bloques.begin(), seccion.Bloques.end(),
            [](const documento::Bloque& b) { return std::holds_alternative<documento::Tabla>(b); });
        fijarTitulos_ = tablas == 1;  // alone on its sheet
        for (const documento::Bloque& bloque : seccion.Bloques) {
            antesDeCada();
            std::visit([this](const auto& b) { Poner(b); }, bloque);
        }
    }

  private:
    /// Tables of a sheet share its columns: each is as wide as the widest that stands in its place.
    void PonerAnchos(const documento::Seccion& seccion) {
        for (const documento::Bloque& bloque : seccion.Bloques) {
            const auto* tabla = std::get_if<documento::Tabla>(&bloque);
            if (tabla == nullptr) continue;
            hoja_.Anchos.resize(std::max(hoja_.Anchos.size(), tabla->Columnas.size()), MenorAncho);
            for (std::size_t c = 0; c < tabla->Columnas.size(); ++c)
                hoja_.Anchos[c] = std::max({hoja_.Anchos[c], tabla->Columnas[c].Ancho * PuntosPorMilimetro,
                                            AnchoDeNumeros(*tabla, c)});
        }
        if (hoja_.Anchos.empty())
            hoja_.Anchos.assign(ColumnasSinTablas, SitioDePagina().Ancho / ColumnasSinTablas);
    }

    /// What a page holds of the sheet, in points, when the sheet's columns are shrunk to its width.
    documento::MedidaPagina SitioDePagina() const {
        const documento::MedidaPagina hoja = documento::MedidaDe(documento_.Papel);
        const xls::PaginaXls& p = hoja_.Pagina;
        const double ancho = hoja.Ancho * PuntosPorMilimetro - p.Izquierdo - p.Derecho;
        const double alto = hoja.Alto * PuntosPorMilimetro - p.Superior - p.Inferior;
        const double escala = std::min(1.0, ancho / std::max(AnchoTotal(), 1.0));
        return {ancho, alto / escala};
    }
    /// A picture that would lie over the end of a page begins the next one.
    void SaltarSiNoCabe(double alto) {
        double ocupado = 0;
        const std::size_t inicio = hoja_.SaltosDePagina.empty() ? 0 : hoja_.SaltosDePagina.back();
        for (std::size_t f = inicio; f < fila_; ++f) {
            const double propio = f < hoja_.Filas.size() ? hoja_.Filas[f].Alto : 0;
            ocupado += propio > 0 ? propio : AltoDeFila;
        }
        if (fila_ > inicio && ocupado + alto > SitioDePagina().Alto) hoja_.SaltosDePagina.push_back(fila_);
    }

    /// A number wider than its column would show as a row of signs.
    double AnchoDeNumeros(const documento::Tabla& tabla, std::size_t columna) const {
        const std::string& formato = tabla.Columnas[columna].Formato;
        // Of as many decimals, the longest is the largest or the smallest.
        const bool todos = formato.empty() || formato.find('|') != std::string::npos;
        std::size_t letras = 0;
        double mayor = 0, menor = 0;
        for (const documento::FilaDeTabla& fila : tabla.Filas) {
            const auto numero =
                columna < fila.Celdas.size() ? documento::NumeroDe(fila.Celdas[columna]) : std::nullopt;
            if (!numero || !std::isfinite(*numero)) continue;
            letras = std::max(letras, todos ? Letras(*numero, formato) : 1);
            mayor = std::max(mayor, *numero);
            menor = std::min(menor, *numero);
        }
        if (letras == 0) return 0;
        return AnchoDe(todos ? letras : std::max(Letras(mayor, formato), Letras(menor, formato)));
    }
    std::size_t Letras(const almacen::Valor& valor, const std::string& formato) const {
        return NumeroDeCaracteres(documento::TextoDeValor(valor, formato, documento_.Locales));
    }
    double AnchoDe(std::size_t letras) const {
        return (static_cast<double>(letras) + 2) * AnchoDeLetra * documento_.Letra;
    }

    double AnchoTotal() const {
        double suma = 0;
        for (const double ancho : hoja_.Anchos) suma += ancho;
        return suma;
    }
    /// Columns, from one on, that give a width together.
    std::size_t ColumnasPara(double ancho, std::size_t desde) const {
        std::size_t cuantas = 0;
        while (ancho > 0 && desde + cuantas < hoja_.Anchos.size()) ancho -= hoja_.Anchos[desde + cuantas++];
        return std::max<std::size_t>(cuantas, 1);
    }

    xls::EstiloXls Estilo() const {
        xls::EstiloXls estilo;
        estilo.Puntos = documento_.Letra;
        return estilo;
    }
    void Celda(std::size_t columna, xls::ValorXls valor, std::uint16_t estilo) {
        xls::CeldaEn(hoja_, fila_, columna) = {std::move(valor), estilo};
    }
    void Celda(std::size_t columna, xls::ValorXls valor, const xls::EstiloXls& estilo) {
        Celda(columna, std::move(valor), xls::EstiloDe(libro_, estilo));
    }
    /// A cell over several columns.
    template <class Estilo>
    void Celda(std::size_t columna, std::size_t cuantas, xls::ValorXls valor, const Estilo& estilo) {
        Celda(columna, std::move(valor), estilo);
        for (std::size_t c = columna + 1; c < columna + cuantas; ++c) Celda(c, {}, estilo);
        if (cuantas > 1) hoja_.Combinadas.push_back({fila_, columna, fila_, columna + cuantas - 1});
    }
    void PonerAlto(double alto) {
        xls::CeldaEn(hoja_, fila_, 0);
        hoja_.Filas[fila_].Alto = std::max(hoja_.Filas[fila_].Alto, std::max(alto, AltoDeFila));
    }
    double AltoDeTexto(const std::string& texto, double ancho, double puntos) const {
        return 1.3 * puntos * static_cast<double>(Lineas(texto, ancho, puntos));
    }

    void Poner(const documento::Titulo& titulo) {
        xls::EstiloXls estilo = Estilo();
        estilo.Negrita = true;
        estilo.Puntos *= titulo.Nivel == 1 ? 1.5 : titulo.Nivel == 2 ? 1.25 : 1.1;
        if (titulo.Nivel <= 2) estilo.Color = TintaTitulos;
        if (fila_ > 0) ++fila_;
        Celda(0, titulo.Texto, estilo);
        PonerAlto(AltoDeTexto(titulo.Texto, 1e6, estilo.Puntos));
        ++fila_;
    }

    void Poner(const documento::Parrafo& parrafo) {
        xls::EstiloXls estilo = Estilo();
        estilo.Negrita = parrafo.Destacado;
        estilo.AjustarTexto = true;
        estilo.Vertical = xls::VerticalXls::Arriba;
        Celda(0, hoja_.Anchos.size(), parrafo.Texto, estilo);
        PonerAlto(AltoDeTexto(parrafo.Texto, AnchoTotal(), estilo.Puntos));
        ++fila_;
    }

    void Poner(const documento::Ficha& ficha) {
        std::size_t letras = 0;
        for (const documento::Ficha::Dato& dato : ficha.Datos)
            letras = std::max(letras, NumeroDeCaracteres(dato.Rotulo));
        const std::size_t valores = ColumnasPara(AnchoDe(letras), 0);
        xls::EstiloXls rotulo = Estilo();
        rotulo.Color = TintaRotulos;
        for (const documento::Ficha::Dato& dato : ficha.Datos) {
            xls::EstiloXls estilo = Estilo();
            estilo.Negrita = true;
            estilo.Alineacion = xls::AlineacionXls::Izquierda;
            Celda(0, valores, dato.Rotulo, rotulo);
            const std::size_t ancho =
                Letras(dato.Contenido, dato.Formato) + NumeroDeCaracteres(dato.Unidad) + 1;
            PonerValor(valores, ColumnasPara(AnchoDe(ancho), valores), dato.Contenido, dato.Formato,
                       dato.Unidad, estilo);
            ++fila_;
        }
    }

    void Poner(const documento::Tabla& tabla) {
        if (fila_ > 0 && hoja_.Filas.size() == fila_) ++fila_;
        if (tabla.TieneGrupos()) PonerGrupos(tabla);
        PonerTitulos(tabla);
        if (fijarTitulos_ && tabla.Filas.size() > 1 && fila_ <= MayorEncabezadoFijo) hoja_.FilasFijas = fila_;
        hoja_.Filtro = tabla.Estilo.Filtros && hoja_.FilasFijas == fila_;
        for (const documento::FilaDeTabla& fila : tabla.Filas) PonerFila(tabla, fila);
    }

    std::uint16_t EstiloDeTitulos() {
        if (!estilos_.Titulos) estilos_.Titulos = xls::EstiloDe(libro_, NuevoEstiloDeTitulos());
        return *estilos_.Titulos;
    }
    xls::EstiloXls NuevoEstiloDeTitulos() const {
        xls::EstiloXls estilo = Estilo();
        estilo.Negrita = true;
        estilo.AjustarTexto = true;
        estilo.Alineacion = xls::AlineacionXls::Centro;
        estilo.Vertical = xls::VerticalXls::Centro;
        estilo.Relleno = FondoTitulos;
        estilo.Bordes = {xls::BordeXls::Fino, xls::BordeXls::Fino, xls::BordeXls::Fino, xls::BordeXls::Fino,
                         LineaTitulos};
        return estilo;
    }
    void PonerGrupos(const documento::Tabla& tabla) {
        for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla)) {
            Celda(grupo.Desde, grupo.Cuantas, grupo.Titulo, EstiloDeTitulos());
            double ancho = 0;
            for (std::size_t c = 0; c < grupo.Cuantas; ++c) ancho += hoja_.Anchos[grupo.Desde + c];
            PonerAlto(AltoDeTexto(grupo.Titulo, ancho, documento_.Letra));
        }
        ++fila_;
    }
    void PonerTitulos(const documento::Tabla& tabla) {
        for (std::size_t c = 0; c < tabla.Columnas.size(); ++c) {
            Celda(c, tabla.Columnas[c].Titulo, EstiloDeTitulos());
            PonerAlto(AltoDeTexto(tabla.Columnas[c].Titulo, hoja_.Anchos[c], documento_.Letra));
        }
        ++fila_;
    }
    void PonerFila(const documento::Tabla& tabla, const documento::FilaDeTabla& fila) {
        if (hoja_.Filas.size() <= fila_) hoja_.Filas.resize(fila_ + 1);
        hoja_.Filas[fila_].Celdas.reserve(tabla.Columnas.size());
        for (std::size_t c = 0; c < tabla.Columnas.size(); c += tabla.Abarca(fila, c)) {
            ValorEnXls celda = ValorDeCelda(c < fila.Celdas.size() ? fila.Celdas[c] : almacen::Valor{},
                                            tabla.Columnas[c].Formato, "", documento_.Locales);
            const std::uint16_t estilo =
                EstiloDeCelda(fila.Destacada, tabla.Lado(fila, c), std::move(celda.Formato));
            Celda(c, tabla.Abarca(fila, c), std::move(celda.Valor), estilo);
        }
        ++fila_;
    }

    std::uint16_t EstiloDeCelda(bool destacada, documento::Alineacion lado, std::string formato) {
        std::vector<EstilosDeTablas::Usado>& usados = estilos_.Usados;
        const auto usado = std::find_if(usados.begin(), usados.end(), [&](const auto& conocido) {
            return conocido.Destacada == destacada && conocido.Lado == lado && conocido.Formato == formato;
        });
        if (usado != usados.end()) return usado->Numero;
        xls::EstiloXls estilo = Estilo();
        estilo.Negrita = destacada;
        estilo.Alineacion = LadoEnXls(lado);
        estilo.Bordes.Inferior = xls::BordeXls::Fino;
        estilo.Bordes.Superior = destacada ? xls::BordeXls::Fino : xls::BordeXls::Ninguno;
        estilo.Bordes.Color = destacada ? 0 : LineaDatos;
        estilo.Formato = formato;
        usados.push_back({destacada, lado, std::move(formato), xls::EstiloDe(libro_, estilo)});
        return usados.back().Numero;
    }

    void PonerValor(std::size_t columna, std::size_t cuantas, const almacen::Valor& valor,
                    const std::string& formato, const std::string& unidad, xls::EstiloXls estilo) {
        ValorEnXls celda = ValorDeCelda(valor, formato, unidad, documento_.Locales);
        estilo.Formato = std::move(celda.Formato);
        Celda(columna, cuantas, celda.Valor, estilo);
    }

    void Poner(const documento::Imagen& imagen) {
        const auto foto = Comprimida(imagen.Leer ? imagen.Leer() : almacen::Bytes{});
        if (!foto) {
            Poner(documento::Parrafo{documento::ImagenIlegible, false});
        } else {
            const documento::MedidaPagina sitio = SitioDePagina();
            const documento::MedidaPagina medida = documento::MedidaDe(
                imagen, foto->Ancho, foto->Alto,
                {sitio.Ancho / PuntosPorMilimetro, (sitio.Alto - 2 * AltoDeFila) / PuntosPorMilimetro});
            const double alto = medida.Alto * PuntosPorMilimetro;
            SaltarSiNoCabe(alto + 2 * AltoDeFila);  // with its caption
            hoja_.Imagenes.push_back({xls::FichaDe(TextoDe(foto->Archivo)),
                                      [leer = imagen.Leer] { return Archivo(leer()); }, fila_, 0,
                                      medida.Ancho * PuntosPorMilimetro, alto});
            fila_ += static_cast<std::size_t>(std::ceil(alto / AltoDeFila)) + 1;
        }
        if (!imagen.Pie.empty()) Poner(documento::Parrafo{imagen.Pie, false});
    }

    void Poner(const documento::Indice& indice) {
        for (const std::string& nombre : documento_.SeccionesTras(indice)) {
            Celda(0, nombre, Estilo());
            ++fila_;
        }
    }
    void Poner(const documento::SaltoDePagina& /*salto*/) { hoja_.SaltosDePagina.push_back(fila_); }

    xls::LibroXls& libro_;
    EstilosDeTablas& estilos_;
    xls::HojaXls& hoja_;
    const documento::Documento& documento_;
    std::size_t fila_ = 0;
    bool fijarTitulos_ = false;
};

}  // namespace

xls::LibroXls LibroDe(const documento::Documento& documento, const Avance& avance) {
    std::size_t total = 0;
    for (const documento::Seccion& seccion : documento.Secciones) total += seccion.Bloques.size();
    std::size_t hechos = 0;
    xls::LibroXls libro;
    libro.Titulo = documento.Titulo;
    libro.Autor = documento.Autor;
    EstilosDeTablas estilos;
    for (const documento::Seccion& seccion : documento.Secciones) {
        xls::HojaXls& hoja = libro.Hojas.emplace_back();
        hoja.Nombre = seccion.Nombre;
        hoja.Cuadricula = false;
        hoja.Pagina = PaginaDe(documento.Papel);
        EscritorDeHoja(libro, estilos, hoja, documento).Escribir(seccion, [&] {
            Avisar(avance, hechos++, total);
        });
    }
    return libro;
}

void EscribirXls(const documento::Documento& documento, const std::filesystem::path& destino,
                 const Avance& avance) {
    const auto mitad = [&avance](double desde) -> Avance {
        if (!avance) return {};
        return [&avance, desde](double parte) { return avance(desde + parte / 2); };
    };
    const Avance alEscribir = mitad(0.5);
    xls::GuardarXls(LibroDe(documento, mitad(0)), destino,
                    [&](std::size_t hechas, std::size_t total) { Avisar(alEscribir, hechas, total); });
}

}  // namespace trabex::salidas
