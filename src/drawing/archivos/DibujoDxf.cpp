#include "drawing/archivos/DibujoDxf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <numbers>
#include <vector>

#include <dime/Layer.h>
#include <dime/Model.h>
#include <dime/Output.h>
#include <dime/entities/Circle.h>
#include <dime/entities/Line.h>
#include <dime/entities/Polyline.h>
#include <dime/entities/Solid.h>
#include <dime/entities/UnknownEntity.h>
#include <dime/entities/Vertex.h>
#include <dime/sections/BlocksSection.h>
#include <dime/sections/EntitiesSection.h>
#include <dime/sections/HeaderSection.h>
#include <dime/sections/TablesSection.h>
#include <dime/tables/LayerTable.h>
#include <dime/tables/Table.h>
#include <dime/tables/UnknownTable.h>

#include "base/ErrorEjecucion.h"
#include "base/Texto.h"
#include "drawing/LienzoMudo.h"
#include "drawing/Trazos.h"

namespace trabex::dibujo::archivos {

namespace {

constexpr double Ascenso = 0.81;           // of a line's height, above the text's base line
constexpr double AltoDeMayusculas = 0.6;   // of a line's height
constexpr std::int32_t TextoEncajado = 5;  // between two points of its base line
constexpr std::int32_t LadoDePunta = 16;   // more pixels than an arrowhead has from one end to the other
constexpr double PasoDePuntos = 0.1;       // of a dotted line, m
constexpr const char* Continua = "CONTINUOUS";
constexpr const char* DePuntos = "DOT";
constexpr const char* Letra = "STANDARD";

/// Colours of layers in the order in which they come up: white, red, green, magenta, blue, orange, cyan,
/// grey.
constexpr std::array<std::int16_t, 8> Colores{7, 1, 3, 6, 5, 30, 4, 8};

/// The library keeps six digits: tenths of a millimetre up to 100 m.
dxfdouble Corto(double valor) {
    return static_cast<dxfdouble>(valor);
}

dimeParam Dato(const char* texto) {
    dimeParam dato;
    dato.string_data = texto;
    return dato;
}
dimeParam Dato(double valor) {
    dimeParam dato;
    dato.double_data = Corto(valor);
    return dato;
}
dimeParam Dato(std::int16_t valor) {
    dimeParam dato;
    dato.int16_data = valor;
    return dato;
}

/// In the header's code page, of which Latin 1 is a part; other letters, and those with which a reader's
/// codes begin, as code points.
std::string TextoDxf(std::string_view texto) {
    std::string salida;
    while (!texto.empty()) {
        const char32_t letra = TomarCaracter(texto);
        const bool codigo = letra == U'\\' || letra == U'%' || letra == U'^';
        if (letra < 0x20 || letra == 0x7F) {
            salida += ' ';
        } else if ((letra < 0x7F || (letra >= 0xA0 && letra <= 0xFF)) && !codigo) {
            salida += static_cast<char>(letra);
        } else {
            std::array<char, 8> escrita{};
            std::snprintf(escrita.data(), escrita.size(), "\\U+%04X",
                          letra <= 0xFFFF ? static_cast<unsigned>(letra) : 0xFFFDU);
            salida += escrita.data();
        }
    }
    return salida;
}

/// Numbers with the locale's comma, as the library writes them, with a point: a file's lines are a group code
/// and its value by turns.
std::string ConPuntos(std::string archivo) {
    int grupo = 0;
    bool esGrupo = true;
    for (std::size_t desde = 0; desde < archivo.size();) {
        const std::size_t hasta = std::min(archivo.find('\n', desde), archivo.size());
        if (esGrupo)
            grupo = std::atoi(archivo.c_str() + desde);
        else if (grupo >= 10 && grupo < 60)
            std::replace(archivo.begin() + static_cast<std::ptrdiff_t>(desde),
                         archivo.begin() + static_cast<std::ptrdiff_t>(hasta), ',', '.');
        esGrupo = !esGrupo;
        desde = hasta + 1;
    }
    return archivo;
}

/// The file in the library's records. What is inserted belongs to it.
class Modelo {
  public:
    Modelo() {
        modelo_.init();
        modelo_.insertSection(cabecera_);
        Variable("$ACADVER", 1, Dato("AC1009"));
        Variable("$DWGCODEPAGE", 3, Dato("ANSI_1252"));
        auto* tablas = new dimeTablesSection;
        modelo_.insertSection(tablas);
        Lineas(Tabla(*tablas, "LTYPE"));
        capas_ = Tabla(*tablas, "LAYER");
        auto* letra = new dimeUnknownTable("STYLE", nullptr);
        letra->setRecord(2, Dato(Letra));
        letra->setRecord(70, Dato(std::int16_t{0}));
        letra->setRecord(40, Dato(0.0));
        letra->setRecord(41, Dato(1.0));
        letra->setRecord(3, Dato("arial.ttf"));
        Tabla(*tablas, "STYLE")->insertTableEntry(letra);
        modelo_.insertSection(new dimeBlocksSection(nullptr));
        modelo_.insertSection(new dimeEntitiesSection(nullptr));
    }

    const dimeLayer* Capa(const std::string& nombre) {
        if (const dimeLayer* capa = modelo_.getLayer(nombre.c_str())) return capa;
        auto* nueva = new dimeLayerTable;
        nueva->setLayerName(nombre.c_str(), nullptr);
        nueva->setColorNumber(
            Colores[static_cast<std::size_t>(capas_->getNumTableEntries()) % Colores.size()]);
        nueva->setRecord(6, Dato(Continua));
        nueva->setRecord(70, Dato(std::int16_t{0}));
        capas_->insertTableEntry(nueva);
        nueva->registerLayer(&modelo_);
        return modelo_.getLayer(nombre.c_str());
    }

    void Agregar(dimeEntity* figura, const dimeLayer* capa) {
        figura->setLayer(capa);
        modelo_.addEntity(figura);
    }

    /// How far the drawing reaches.
    void Abarcar(double x, double y) {
        menor_ = {std::min(menor_[0], x), std::min(menor_[1], y)};
        mayor_ = {std::max(mayor_[0], x), std::max(mayor_[1], y)};
    }

    std::string Escrito() {
        Extremo("$EXTMIN", menor_);
        Extremo("$EXTMAX", mayor_);
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> archivo(std::tmpfile(), std::fclose);
        dimeOutput salida;
        if (!archivo || !salida.setFileHandle(archivo.get()) || !modelo_.write(&salida) ||
            std::fflush(archivo.get()) != 0)
            throw ErrorEjecucion(CodigoError::ErrorDispositivo);
        std::rewind(archivo.get());
        std::string bytes;
        std::array<char, 65536> parte{};
        while (const std::size_t leidos = std::fread(parte.data(), 1, parte.size(), archivo.get()))
            bytes.append(parte.data(), leidos);
        return ConPuntos(std::move(bytes));
    }

  private:
    static dimeTable* Tabla(dimeTablesSection& tablas, const char* nombre) {
        auto* tabla = new dimeTable(nullptr);
        tabla->setTableName(nombre);
        tablas.insertTable(tabla);
        return tabla;
    }
    static void Lineas(dimeTable* tabla) {
        for (const char* nombre : {Continua, DePuntos}) {
            const bool dePuntos = nombre == DePuntos;
            auto* linea = new dimeUnknownTable("LTYPE", nullptr);
            linea->setRecord(2, Dato(nombre));
            linea->setRecord(70, Dato(std::int16_t{0}));
            linea->setRecord(3, Dato(""));
            linea->setRecord(72, Dato(std::int16_t{65}));
            linea->setRecord(73, Dato(static_cast<std::int16_t>(dePuntos ? 2 : 0)));
            linea->setRecord(40, Dato(dePuntos ? PasoDePuntos : 0));
            if (dePuntos) {
                linea->setIndexedRecord(49, Dato(PasoDePuntos / 2), 0);
                linea->setIndexedRecord(49, Dato(-PasoDePuntos / 2), 1);
            }
            tabla->insertTableEntry(linea);
        }
    }
    void Variable(const char* nombre, int grupo, const dimeParam& dato) {
        cabecera_->setVariable(nombre, &grupo, &dato, 1);
    }
    void Extremo(const char* nombre, const std::array<double, 2>& punto) {
        if (!(menor_[0] <= mayor_[0])) return;
        const std::array<int, 3> grupos{10, 20, 30};
        const std::array<dimeParam, 3> datos{Dato(punto[0]), Dato(punto[1]), Dato(0.0)};
        cabecera_->setVariable(nombre, grupos.data(), datos.data(), 3);
    }

    dimeModel modelo_;
    dimeHeaderSection* cabecera_ = new dimeHeaderSection(nullptr);
    dimeTable* capas_ = nullptr;
    std::array<double, 2> menor_{HUGE_VAL, HUGE_VAL};
    std::array<double, 2> mayor_{-HUGE_VAL, -HUGE_VAL};
};

/// Makes entities of what is repeated on it.
class LienzoDxf : public LienzoMudo {
  public:
    LienzoDxf(Modelo& modelo, const MedidaDeTrazos& medida)
        : modelo_(modelo),
          lado_(medida.LadoDePixel),
          metros_{static_cast<double>(lado_), {0, medida.Alto}},
          capa_(modelo.Capa(CapaSinNombre)) {}

    void PonerCapa(std::string_view capa) override {
        CerrarPunta();
        capa_ = modelo_.Capa(std::string(capa));
    }
    void PonerMetros(const MetrosEnLienzo& metros) override {
        if (metros.PorMetro > 0) metros_ = metros;
    }
    void Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) override {
        CerrarPunta();
        auto* linea = new dimeLine;
        linea->setCoords(0, EnMetros(desde.x, desde.y));
        linea->setCoords(1, EnMetros(hasta.x, hasta.y));
        Agregar(linea, pluma);
    }
    void Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                  const std::optional<Color>& relleno) override {
        CerrarPunta();
        const bool soloPintura = pluma && relleno && pluma->Tinta == *relleno;
        if (puntos.empty() || soloPintura) return;
        std::vector<dimeVertex*> vertices;
        vertices.reserve(puntos.size());
        for (const PuntoLienzo& punto : puntos) {
            auto* vertice = new dimeVertex;
            vertice->setCoords(EnMetros(punto.x, punto.y));
            vertice->setLayer(capa_);
            vertices.push_back(vertice);
        }
        auto* contorno = new dimePolyline;
        contorno->setFlags(dimePolyline::CLOSED);
        contorno->setCoordVertices(vertices.data(), static_cast<int>(vertices.size()));
        Agregar(contorno, pluma.value_or(Pluma{}));
    }
    void Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                 const std::optional<Color>& /*relleno*/) override {
        CerrarPunta();
        auto* circulo = new dimeCircle;
        circulo->setCenter(EnMetros(centro.x, centro.y));
        circulo->setRadius(Corto(radio / metros_.PorMetro));
        Agregar(circulo, pluma.value_or(Pluma{}));
    }
    /// The pixels of an arrowhead follow one another, from its point on.
    void Pixel(PuntoLienzo lugar, Color /*color*/) override {
        if (!punta_.empty() && (std::abs(lugar.x - punta_.front().x) > LadoDePunta * lado_ ||
                                std::abs(lugar.y - punta_.front().y) > LadoDePunta * lado_))
            CerrarPunta();
        punta_.push_back(lugar);
    }
    /// The text fills its place whatever the reader's font.
    void Escribir(const TextoTrazado& texto) {
        CerrarPunta();
        const std::string escrito = TextoDxf(texto.Texto);
        if (escrito.find_first_not_of(' ') == std::string::npos) return;
        const double giro = texto.DecimasDeGrado / 10.0 * std::numbers::pi / 180;
        const double base = Ascenso * texto.Medida.Alto;
        const double x = texto.Lugar.x + base * std::sin(giro);
        const double y = texto.Lugar.y + base * std::cos(giro);
        const dimeVec3f desde = EnMetros(x, y);
        const dimeVec3f hasta =
            EnMetros(x + texto.Medida.Ancho * std::cos(giro), y - texto.Medida.Ancho * std::sin(giro));
        // The library's own text forgets its second point.
        auto* figura = new dimeUnknownEntity("TEXT", nullptr);
        figura->setRecord(10, Dato(static_cast<double>(desde.x)));
        figura->setRecord(20, Dato(static_cast<double>(desde.y)));
        figura->setRecord(40, Dato(AltoDeMayusculas * texto.Medida.Alto / metros_.PorMetro));
        figura->setRecord(1, Dato(escrito.c_str()));
        figura->setRecord(50, Dato(texto.DecimasDeGrado / 10.0));
        figura->setRecord(7, Dato(Letra));
        figura->setRecord(72, Dato(static_cast<std::int16_t>(TextoEncajado)));
        figura->setRecord(11, Dato(static_cast<double>(hasta.x)));
        figura->setRecord(21, Dato(static_cast<double>(hasta.y)));
        modelo_.Agregar(figura, modelo_.Capa(CapaDeTextos));
    }
    void CerrarPunta() {
        if (punta_.empty()) return;
        const auto [menorX, mayorX] = std::minmax_element(
            punta_.begin(), punta_.end(), [](PuntoLienzo a, PuntoLienzo b) { return a.x < b.x; });
        const auto [menorY, mayorY] = std::minmax_element(
            punta_.begin(), punta_.end(), [](PuntoLienzo a, PuntoLienzo b) { return a.y < b.y; });
        const PuntoLienzo p = punta_.front();
        const bool deLado = p.x == menorX->x || p.x == mayorX->x;
        const std::int32_t x = p.x == menorX->x ? mayorX->x : menorX->x;
        const std::int32_t y = p.y == menorY->y ? mayorY->y : menorY->y;
        const PuntoLienzo a = deLado ? PuntoLienzo{x, menorY->y} : PuntoLienzo{menorX->x, y};
        const PuntoLienzo b = deLado ? PuntoLienzo{x, mayorY->y} : PuntoLienzo{mayorX->x, y};
        auto* figura = new dimeSolid;
        figura->setTriangle(EnMetros(p.x, p.y), EnMetros(a.x, a.y), EnMetros(b.x, b.y));
        punta_.clear();
        modelo_.Agregar(figura, capa_);
    }

  private:
    dimeVec3f EnMetros(double x, double y) {
        const double enX = (x - metros_.Origen.x) / metros_.PorMetro;
        const double enY = (metros_.Origen.y - y) / metros_.PorMetro;
        modelo_.Abarcar(enX, enY);
        return {Corto(enX), Corto(enY), 0};
    }
    void Agregar(dimeEntity* figura, const Pluma& pluma) {
        if (pluma.Estilo == EstiloLinea::Punteada) figura->setRecord(6, Dato(DePuntos));
        modelo_.Agregar(figura, capa_);
    }

    Modelo& modelo_;
    std::int32_t lado_;
    MetrosEnLienzo metros_;
    const dimeLayer* capa_;
    std::vector<PuntoLienzo> punta_;
};

}  // namespace

std::string DibujoDxf(std::string_view trazos) {
    // The library makes it when it is first asked for, which several threads may not do at once.
    [[maybe_unused]] static const dimeLayer* const capaDeLaBiblioteca = dimeLayer::getDefaultLayer();
    const auto medida = MedidaDe(trazos);
    if (!medida) throw ErrorEjecucion(CodigoError::ArgumentoInvalido);
    Modelo modelo;
    LienzoDxf lienzo(modelo, *medida);
    Repetir(trazos, lienzo, [&](const TextoTrazado& texto) { lienzo.Escribir(texto); });
    lienzo.CerrarPunta();
    return modelo.Escrito();
}

}  // namespace trabex::dibujo::archivos
