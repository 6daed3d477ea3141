#include "reports/xls/ImagenesBiff.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/ErrorEjecucion.h"

namespace trabex::xls {

namespace {

constexpr std::uint16_t MSODRAWINGGROUP = 0x00EB, MSODRAWING = 0x00EC, OBJ = 0x005D;
constexpr std::size_t FormasPorGrupo = 1024;

/// Kinds of drawing records.
enum Tipo : std::uint16_t {
    DggContainer = 0xF000,
    BStoreContainer = 0xF001,
    DgContainer = 0xF002,
    SpgrContainer = 0xF003,
    SpContainer = 0xF004,
    Dgg = 0xF006,
    Bse = 0xF007,
    Dg = 0xF008,
    Spgr = 0xF009,
    Sp = 0xF00A,
    Opt = 0xF00B,
    ClientAnchor = 0xF010,
    ClientData = 0xF011,
    SplitMenuColors = 0xF11E,
};
constexpr std::size_t Contenedor = 0xF;  ///< version of those that hold others

/// How a kind of picture file is stored.
struct Clase {
    std::string_view Firma;
    std::size_t Numero;     ///< of the kind
    std::size_t Instancia;  ///< of its record, of type 0xF018 + Numero
    std::size_t Cabecera;   ///< bytes of the file that are not stored
};
constexpr std::array<Clase, 3> Clases{{
    {"\x89PNG", 6, 0x6E0, 0},
    {"\xFF\xD8", 5, 0x46A, 0},
    {"BM", 7, 0x7A8, 14},
}};

constexpr std::size_t AntesDeLosDatos = 17;  // of a stored picture: its fingerprint and a mark
constexpr std::size_t LargoDeMarco = 8;
constexpr std::size_t LargoDeEntrada = 36;  // what the book says of a picture before it

Octetos Marco(Tipo tipo, std::size_t version, std::size_t instancia, std::size_t largo) {
    return Octetos().U16(version | instancia << 4).U16(tipo).U32(largo);
}

std::string Elemento(Tipo tipo, std::size_t version, std::size_t instancia, std::string_view datos) {
    return Marco(tipo, version, instancia, datos.size()).Crudo(datos).Bytes();
}

std::size_t DatosDe(const ImagenXls& imagen) {
    return imagen.Ficha.Largo - Clases[*imagen.Ficha.Clase].Cabecera;
}

std::size_t LargoAlmacenado(const ImagenXls& imagen) {
    return 2 * LargoDeMarco + LargoDeEntrada + AntesDeLosDatos + DatosDe(imagen);
}

/// All of a stored picture but its bytes, which follow.
std::string Entrada(const ImagenXls& imagen) {
    const Clase& clase = Clases[*imagen.Ficha.Clase];
    Octetos huella;
    for (const std::uint64_t valor : imagen.Ficha.Huella) huella.U32(valor & 0xFFFFFFFF).U32(valor >> 32);
    const std::size_t blip = AntesDeLosDatos + DatosDe(imagen);
    return Marco(Bse, 2, clase.Numero, LargoDeEntrada + LargoDeMarco + blip)
        .U8(clase.Numero)
        .U8(clase.Numero)
        .Crudo(huella.Bytes())
        .U16(0xFF)
        .U32(LargoDeMarco + blip)
        .U32(1)
        .U32(0)
        .U32(0)
        .Crudo(Marco(static_cast<Tipo>(0xF018 + clase.Numero), 0, clase.Instancia, blip).Bytes())
        .Crudo(huella.Bytes())
        .U8(0xFF)
        .Bytes();
}

std::string Propiedades(const std::vector<std::pair<std::size_t, std::size_t>>& propiedades) {
    Octetos datos;
    for (const auto& [clave, valor] : propiedades) datos.U16(clave).U32(valor);
    return Elemento(Opt, 3, propiedades.size(), datos.Bytes());
}

std::string Forma(std::size_t tipo, std::size_t numero, std::size_t marcas) {
    return Elemento(Sp, 2, tipo, Octetos().U32(numero).U32(marcas).Bytes());
}

std::string FormaRaiz(std::size_t numero) {
    return Elemento(SpContainer, Contenedor, 0,
                    Elemento(Spgr, 1, 0, std::string(16, '\0')) + Forma(0, numero, 5));
}

std::string FormaConAncla(std::size_t tipo, std::size_t numero, const std::string& propiedades,
                          std::size_t conCeldas, const AnclaXls& a) {
    constexpr std::size_t ConAnclaYTipo = 0x0A00;
    const std::string ancla = Octetos()
                                  .U16(conCeldas)
                                  .U16(a.ColumnaIzquierda)
                                  .U16(a.DentroIzquierda)
                                  .U16(a.FilaSuperior)
                                  .U16(a.DentroSuperior)
                                  .U16(a.ColumnaDerecha)
                                  .U16(a.DentroDerecha)
                                  .U16(a.FilaInferior)
                                  .U16(a.DentroInferior)
                                  .Bytes();
    return Elemento(SpContainer, Contenedor, 0,
                    Forma(tipo, numero, ConAnclaYTipo) + propiedades + Elemento(ClientAnchor, 0, 0, ancla) +
                        Elemento(ClientData, 0, 0, ""));
}

std::string FormaDeImagen(std::size_t numero, std::size_t imagen, const AnclaXls& ancla) {
    constexpr std::size_t MarcoDeImagen = 75, SeMueve = 2;  // with the cells, and keeps its size
    return FormaConAncla(MarcoDeImagen, numero,
                         Propiedades({{0x4104, imagen}, {0x01BF, 0x00100000}, {0x01FF, 0x00080000}}), SeMueve,
                         ancla);
}

std::string FormaDeFiltro(std::size_t numero, const AnclaXls& ancla) {
    constexpr std::size_t Control = 201, DeLaCelda = 1;
    return FormaConAncla(
        Control, numero,
        Propiedades({{0x007F, 0x01040104}, {0x00BF, 0x00080008}, {0x01FF, 0x00080000}, {0x03BF, 0x00020000}}),
        DeLaCelda, ancla);
}

Octetos ObjetoImagen(std::size_t numero) {
    return Octetos()
        .U16(0x15)  // common data: a picture
        .U16(18)
        .U16(8)
        .U16(numero)
        .U16(0x6011)
        .U32(0)
        .U32(0)
        .U32(0)
        .U16(7)  // picture format: as it is
        .U16(2)
        .U16(0xFFFF)
        .U16(8)  // picture flags
        .U16(2)
        .U16(1)
        .U32(0);  // end
}

/// A list that drops down: of the program's own making, without a source of its lines.
Octetos ObjetoFiltro(std::size_t numero) {
    Octetos objeto;
    objeto.U16(0x15).U16(18).U16(0x14).U16(numero).U16(0x2101).U32(0).U32(0).U32(0);
    objeto.U16(0x0C).U16(20).U32(0).U32(0).U16(100).U16(1).U16(10).U16(0).U16(16).U16(1);  // its bar
    objeto.U16(0x13).U16(0x1FEE).U16(0).U16(0).U16(0).U16(0x0301).U16(0);                  // its lines
    return objeto.U16(2).U16(8).U16(0x57).U32(0);
}

}  // namespace

FichaDeImagen FichaDe(std::string_view bytes) {
    const auto clase = std::find_if(Clases.begin(), Clases.end(), [&](const Clase& c) {
        return bytes.size() > c.Cabecera && bytes.starts_with(c.Firma);
    });
    if (clase == Clases.end()) return {};
    FichaDeImagen ficha{static_cast<std::size_t>(clase - Clases.begin()),
                        bytes.size(),
                        {0xCBF29CE484222325ULL, 0x84222325CBF29CE4ULL}};
    for (std::uint64_t& valor : ficha.Huella) {  // FNV-1a from two beginnings
        for (const char byte : bytes) valor = (valor ^ static_cast<unsigned char>(byte)) * 0x100000001B3ULL;
    }
    return ficha;
}

std::size_t ImagenesBiff::Agregar(const std::vector<const ImagenXls*>& deHoja, std::size_t filtros) {
    const std::size_t formas = deHoja.size() + filtros;
    dibujos_.push_back({grupos_ + 1, imagenes_.size() + 1, deHoja.size(), filtros});
    grupos_ += (formas + FormasPorGrupo) / FormasPorGrupo;  // the root shape takes a number too
    formas_ += formas;
    imagenes_.insert(imagenes_.end(), deHoja.begin(), deHoja.end());
    return dibujos_.size() - 1;
}

namespace {

/// What follows the pictures in the book's part.
std::string FinDelGrupo() {
    return Propiedades({{0x00BF, 0x00080008}, {0x0181, 0x08000041}, {0x01C0, 0x08000040}}) +
           Elemento(SplitMenuColors, 0, 4,
                    Octetos().U32(0x0800000D).U32(0x0800000C).U32(0x08000017).U32(0x100000F7).Bytes());
}

}  // namespace

/// What stands before them.
std::string ImagenesBiff::PrincipioDelGrupo() const {
    Octetos general;
    general.U32((grupos_ + 1) * FormasPorGrupo)
        .U32(grupos_ + 1)
        .U32(formas_ + dibujos_.size())
        .U32(dibujos_.size());
    for (std::size_t d = 0; d < dibujos_.size(); ++d) {
        std::size_t formas = dibujos_[d].Imagenes + dibujos_[d].Filtros + 1;
        for (; formas > FormasPorGrupo; formas -= FormasPorGrupo) general.U32(d + 1).U32(FormasPorGrupo);
        general.U32(d + 1).U32(formas);
    }
    std::size_t almacenadas = 0;
    for (const ImagenXls* imagen : imagenes_) almacenadas += LargoAlmacenado(*imagen);
    const std::string antes = Elemento(Dgg, 0, 0, general.Bytes()) +
                              Marco(BStoreContainer, Contenedor, imagenes_.size(), almacenadas).Bytes();
    return Marco(DggContainer, Contenedor, 0, antes.size() + almacenadas + FinDelGrupo().size())
        .Crudo(antes)
        .Bytes();
}

std::size_t ImagenesBiff::LargoDelGrupo() const {
    if (formas_ == 0) return 0;
    std::size_t datos = PrincipioDelGrupo().size() + FinDelGrupo().size();
    for (const ImagenXls* imagen : imagenes_) datos += LargoAlmacenado(*imagen);
    return RegistroPorPartes::Largo(datos);
}

void ImagenesBiff::EscribirGrupo(const Salida& salida,
                                 const std::function<void(std::size_t hechas)>& antesDeCada) const {
    if (formas_ == 0) return;
    RegistroPorPartes registro(salida, MSODRAWINGGROUP);
    registro.Agregar(PrincipioDelGrupo());
    for (std::size_t i = 0; i < imagenes_.size(); ++i) {
        const ImagenXls& imagen = *imagenes_[i];
        if (antesDeCada) antesDeCada(i);
        const std::string bytes = imagen.Leer();
        if (FichaDe(bytes) != imagen.Ficha) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
        registro.Agregar(Entrada(imagen));
        registro.Agregar(std::string_view(bytes).substr(Clases[*imagen.Ficha.Clase].Cabecera));
    }
    registro.Agregar(FinDelGrupo());
    registro.Terminar();
}

void ImagenesBiff::EscribirHoja(std::string& flujo, std::size_t hoja,
                                const std::vector<AnclaXls>& anclas) const {
    const Dibujo& dibujo = dibujos_[hoja];
    const std::size_t cuantas = dibujo.Imagenes + dibujo.Filtros;
    if (cuantas == 0) return;
    const std::size_t primera = dibujo.PrimerGrupo * FormasPorGrupo;
    std::vector<std::string> formas;
    std::size_t largo = 0;
    for (std::size_t i = 0; i < cuantas; ++i) {
        formas.push_back(i < dibujo.Imagenes
                             ? FormaDeImagen(primera + 1 + i, dibujo.PrimerImagen + i, anclas[i])
                             : FormaDeFiltro(primera + 1 + i, anclas[i]));
        largo += formas.back().size();
    }
    const std::string raiz = FormaRaiz(primera);
    const std::string general =
        Elemento(Dg, 0, hoja + 1, Octetos().U32(cuantas + 1).U32(primera + cuantas).Bytes());
    // The containers' lengths reach over the records that follow, one for each picture.
    const Octetos grupo = Marco(SpgrContainer, Contenedor, 0, raiz.size() + largo).Crudo(raiz);
    const Octetos cabeza = Marco(DgContainer, Contenedor, 0, general.size() + grupo.Bytes().size() + largo)
                               .Crudo(general)
                               .Crudo(grupo.Bytes());
    for (std::size_t i = 0; i < formas.size(); ++i) {
        AgregarRegistro(flujo, MSODRAWING, Octetos().Crudo(i == 0 ? cabeza.Bytes() : "").Crudo(formas[i]));
        AgregarRegistro(flujo, OBJ, i < dibujo.Imagenes ? ObjetoImagen(i + 1) : ObjetoFiltro(i + 1));
    }
}

}  // namespace trabex::xls
