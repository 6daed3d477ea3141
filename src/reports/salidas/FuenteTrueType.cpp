#include "reports/salidas/FuenteTrueType.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace trabex::salidas {

namespace {

using std::size_t;

/// A number of a table, most significant byte first; 0 past its end.
std::uint32_t Leer(std::string_view tabla, size_t lugar, size_t bytes) {
    std::uint32_t valor = 0;
    for (size_t i = 0; i < bytes; ++i)
        valor = valor << 8U | (lugar + i < tabla.size() ? static_cast<unsigned char>(tabla[lugar + i]) : 0U);
    return valor;
}

int LeerConSigno(std::string_view tabla, size_t lugar) {
    return static_cast<std::int16_t>(Leer(tabla, lugar, 2));
}

void AgregarEntero(std::string& salida, std::uint32_t valor, size_t bytes) {
    for (size_t i = bytes; i-- > 0;) salida += static_cast<char>(valor >> (8 * i) & 0xFFU);
}

void Rellenar(std::string& salida) {
    salida.resize((salida.size() + 3) / 4 * 4);
}

constexpr size_t FormaDeLugares = 50;  // in "head": of the table of places

/// Where each glyph's outline stands.
class Contornos {
  public:
    explicit Contornos(const TablaDeFuente& tabla)
        : contornos_(tabla("glyf")),
          lugares_(tabla("loca")),
          largos_(Leer(tabla("head"), FormaDeLugares, 2) != 0) {}

    std::string_view De(std::uint32_t glifo) const {
        const size_t desde = Lugar(glifo);
        const size_t hasta = Lugar(glifo + 1);
        if (hasta <= desde || hasta > contornos_.size()) return {};
        return std::string_view(contornos_).substr(desde, hasta - desde);
    }

    /// The glyphs that a composed one is made of.
    std::vector<std::uint32_t> Partes(std::uint32_t glifo) const {
        const std::string_view contorno = De(glifo);
        std::vector<std::uint32_t> partes;
        if (contorno.size() < 10 || LeerConSigno(contorno, 0) >= 0) return partes;
        enum : std::uint32_t {
            Palabras = 0x1,
            Escala = 0x8,
            Siguen = 0x20,
            DosEscalas = 0x40,
            Matriz = 0x80
        };
        for (size_t lugar = 10; lugar + 4 <= contorno.size();) {
            const std::uint32_t senas = Leer(contorno, lugar, 2);
            partes.push_back(Leer(contorno, lugar + 2, 2));
            lugar += (senas & Palabras) != 0 ? 8 : 6;
            if ((senas & Escala) != 0) lugar += 2;
            if ((senas & DosEscalas) != 0) lugar += 4;
            if ((senas & Matriz) != 0) lugar += 8;
            if ((senas & Siguen) == 0) break;
        }
        return partes;
    }

  private:
    size_t Lugar(std::uint32_t glifo) const {
        return largos_ ? Leer(lugares_, size_t{4} * glifo, 4)
                       : 2 * size_t{Leer(lugares_, size_t{2} * glifo, 2)};
    }

    std::string contornos_;
    std::string lugares_;
    bool largos_;
};

std::uint32_t Suma(std::string_view tabla) {
    std::uint32_t suma = 0;
    for (size_t i = 0; i < tabla.size(); i += 4) suma += Leer(tabla, i, 4);
    return suma;
}

using Tablas = std::vector<std::pair<std::string, std::string>>;

/// A font file of some tables, which stand in the order of their names.
std::string ArchivoDeFuente(std::uint32_t clase, Tablas tablas) {
    std::erase_if(tablas, [](const auto& tabla) { return tabla.second.empty(); });
    std::sort(tablas.begin(), tablas.end());
    std::string directorio;
    std::string cuerpo;
    std::uint32_t potencia = 1;
    std::uint32_t exponente = 0;
    for (; std::size_t{potencia} * 2 <= tablas.size(); potencia *= 2) ++exponente;
    AgregarEntero(directorio, clase, 4);
    const auto cuantas = static_cast<std::uint32_t>(tablas.size());
    for (const std::uint32_t valor : {cuantas, potencia * 16, exponente, cuantas * 16 - potencia * 16})
        AgregarEntero(directorio, valor, 2);
    const size_t inicio = directorio.size() + 16 * tablas.size();
    for (const auto& [nombre, bytes] : tablas) {
        directorio += nombre;
        AgregarEntero(directorio, Suma(bytes), 4);
        AgregarEntero(directorio, static_cast<std::uint32_t>(inicio + cuerpo.size()), 4);
        AgregarEntero(directorio, static_cast<std::uint32_t>(bytes.size()), 4);
        cuerpo += bytes;
        Rellenar(cuerpo);
    }
    return directorio + cuerpo;
}

Tablas Tomar(const TablaDeFuente& tabla, std::initializer_list<const char*> nombres) {
    Tablas tablas;
    for (const char* nombre : nombres) tablas.emplace_back(nombre, tabla(nombre));
    return tablas;
}

}  // namespace

MedidasDeFuente MedidasDe(const TablaDeFuente& tabla) {
    const std::string cabeza = tabla("head");
    const std::string horizontal = tabla("hhea");
    const std::string avances = tabla("hmtx");
    const int porCuerpo = std::max(1, LeerConSigno(cabeza, 18));
    const auto milesimas = [porCuerpo](int valor) { return valor * 1000 / porCuerpo; };
    MedidasDeFuente medidas{milesimas(LeerConSigno(horizontal, 4)),
                            milesimas(LeerConSigno(horizontal, 6)),
                            milesimas(LeerConSigno(cabeza, 36)),
                            milesimas(LeerConSigno(cabeza, 38)),
                            milesimas(LeerConSigno(cabeza, 40)),
                            milesimas(LeerConSigno(cabeza, 42)),
                            {}};
    const std::uint32_t glifos = Leer(tabla("maxp"), 4, 2);
    const std::uint32_t propios = Leer(horizontal, 34, 2);  // those after them advance as the last one
    for (std::uint32_t i = 0; i < glifos && propios > 0; ++i)
        medidas.Avances.push_back(
            milesimas(static_cast<int>(Leer(avances, size_t{4} * std::min(i, propios - 1), 2))));
    return medidas;
}

bool EsTrueType(const TablaDeFuente& tabla) {
    return !tabla("glyf").empty() && !tabla("loca").empty();
}

std::string ParteDeFuente(const TablaDeFuente& tabla, const std::set<std::uint32_t>& glifos) {
    const Contornos contornos(tabla);
    std::set<std::uint32_t> tomados;
    std::vector<std::uint32_t> pendientes(glifos.begin(), glifos.end());
    pendientes.push_back(0);  // what stands for a missing glyph
    while (!pendientes.empty()) {
        const std::uint32_t glifo = pendientes.back();
        pendientes.pop_back();
        if (!tomados.insert(glifo).second) continue;
        const std::vector<std::uint32_t> partes = contornos.Partes(glifo);
        pendientes.insert(pendientes.end(), partes.begin(), partes.end());
    }
    std::string cuerpo;
    std::string lugares;
    const std::uint32_t cuantos = Leer(tabla("maxp"), 4, 2);
    for (std::uint32_t glifo = 0; glifo < cuantos; ++glifo) {
        AgregarEntero(lugares, static_cast<std::uint32_t>(cuerpo.size()), 4);
        if (tomados.count(glifo) != 0) cuerpo += contornos.De(glifo);
        Rellenar(cuerpo);
    }
    AgregarEntero(lugares, static_cast<std::uint32_t>(cuerpo.size()), 4);
    Tablas tablas = Tomar(tabla, {"head", "hhea", "hmtx", "maxp", "cvt ", "fpgm", "prep"});
    std::string& cabeza = tablas.front().second;
    if (cabeza.size() > FormaDeLugares + 1) cabeza[FormaDeLugares + 1] = 1;
    tablas.emplace_back("glyf", std::move(cuerpo));
    tablas.emplace_back("loca", std::move(lugares));
    return ArchivoDeFuente(0x00010000, std::move(tablas));
}

std::string FuenteEntera(const TablaDeFuente& tabla) {
    return ArchivoDeFuente(
        0x4F54544F, Tomar(tabla, {"CFF ", "OS/2", "cmap", "head", "hhea", "hmtx", "maxp", "name", "post"}));
}

}  // namespace trabex::salidas
