#include "reports/planex/ArchivoPlanex.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <utility>

#include "base/Archivos.h"
#include "base/Formatos.h"
#include "base/Texto.h"
#include "store/Filas.h"
#include "store/Recordset.h"
#include "store/Vaciado.h"
#include "store/antiguo/Convertir.h"

namespace trabex::planex {

namespace {

constexpr double LuzConNervioTransversal = 6.0;  // m

/// Tables that lose a slab's rows before it is written again, in this order; the one without names loses all.
constexpr const char* TablaSinNombres = "LosaDefecto";
constexpr std::array<const char*, 14> TablasQueSeVacian{"LosaComputos",
                                                        "LosaDatos",
                                                        TablaSinNombres,
                                                        "LosaEjes",
                                                        "LosaIguales",
                                                        "LosaNervios",
                                                        "LosaNM",
                                                        "LosaRefTeorico",
                                                        "LosaRefuerzoEjeInferior",
                                                        "LosaRefuerzoEjeSuperior",
                                                        "LosaRefuerzoTramoInferior",
                                                        "LosaRefuerzoTramoSuperior",
                                                        "LosaReparticion",
                                                        "LosaTramos"};

/// Of those, what a slab is written into; the rest is Planex's own.
constexpr std::array<const char*, 5> TablasQueSeLlenan{"LosaDatos", "LosaTramos", "LosaNervios", "LosaEjes",
                                                       "LosaRefTeorico"};

using Campo = std::pair<const char*, almacen::Valor>;

bool AgregarFila(almacen::Insercion& tabla, std::initializer_list<Campo> campos) {
    bool puestos = true;
    for (const auto& [campo, valor] : campos) puestos = tabla.Poner(campo, valor) && puestos;
    return puestos && tabla.Agregar();
}

/// A literal of the contract.
almacen::Valor Literal(const char* texto) {
    return std::string(texto);
}

/// A row's number; one past the column's 16 bits is refused there.
almacen::Valor Numero(std::size_t k) {
    return static_cast<double>(k);
}

std::size_t TramosDe(const losas::Losa& losa) {
    return losa.Tramos.size() - 1;
}

losas::EjeLosa EjeDe(const losas::Losa& losa, std::size_t i) {
    return i < losa.Ejes.size() ? losa.Ejes[i] : losas::EjeLosa{};
}

almacen::Valor AceroDeEje(const losas::ResultadosLosa& resultados, std::size_t i) {
    return i < resultados.DisenoEje.size() ? resultados.DisenoEje[i].AS1 : 0.0;
}

almacen::Valor AceroDeTramo(const losas::ResultadosLosa& resultados, std::size_t i) {
    return i < resultados.DisenoTramo.size() ? resultados.DisenoTramo[i].AS2 : 0.0;
}

bool AgregarDatos(almacen::Insercion& tabla, const std::string& nombre, const losas::Losa& losa) {
    // A solid slab's row leaves the fields of ribs without a value.
    const auto deNervada = [&](double valor) {
        return losa.OpcionMaciza ? almacen::Valor{} : almacen::Valor{valor};
    };
    return AgregarFila(tabla, {{"Nombre", nombre},
                               {"NT", Numero(TramosDe(losa))},
                               {"EscLosa", 50.0},
                               {"EscPlano", 50.0},
                               {"Bo", deNervada(losa.Bo)},
                               {"H", losa.OpcionMaciza ? losa.Hm : losa.Ho},
                               {"So", deNervada(losa.So)},
                               {"Loseta", deNervada(losa.Loseta)},
                               {"OpcionMaciza", losa.OpcionMaciza},
                               {"Nervios", 1.0},
                               {"Ancho", 1.0},
                               {"Repeticiones", 0.0},
                               {"OK", false},
                               {"OpcionLosaF", false}});
}

bool AgregarNervio(almacen::Insercion& tabla, const std::string& nombre, const losas::Losa& losa,
                   std::size_t i) {
    const NervioPlanex nervio = NervioParaPlanex(losa, i);
    return AgregarFila(tabla, {{"Nombre", nombre},
                               {"Tramo", Numero(i)},
                               {"Opcion", nervio.Opcion},
                               {"Diametro", Literal(nervio.Diametro)},
                               {"Ancho", nervio.Ancho}});
}

bool AgregarEje(almacen::Insercion& tabla, const std::string& nombre, const losas::Losa& losa,
                std::size_t i) {
    const EjePlanex eje = EjeParaPlanex(losa, i);
    return AgregarFila(tabla, {{"Nombre", nombre},
                               {"Numero", Numero(i)},
                               {"Eje", EjeDe(losa, i).Eje},
                               {"Apoyo", eje.Apoyo},
                               {"HViga", eje.HViga},
                               {"Lizq", eje.Lizq},
                               {"Lder", eje.Lder},
                               {"MczIzq", eje.MczIzq},
                               {"MczDer", eje.MczDer}});
}

/// The last axis has no span: its row has no steel of one.
bool AgregarAcero(almacen::Insercion& tabla, const std::string& nombre, const losas::Losa& losa,
                  const losas::ResultadosLosa& r, std::size_t i) {
    return AgregarFila(tabla, {{"Nombre", nombre},
                               {"Eje", Numero(i)},
                               {"AsEje", AceroDeEje(r, i)},
                               {"AsTramo", i <= TramosDe(losa) ? AceroDeTramo(r, i) : almacen::Valor{}}});
}

void BorrarLosa(almacen::Conexion& destino, const std::string& nombre) {
    for (const char* tabla : TablasQueSeVacian) {
        if (tabla == TablaSinNombres)
            almacen::VaciarTabla(destino, tabla);
        else
            almacen::BorrarFilas(destino, {tabla}, almacen::PorNombre(nombre));
    }
}

}  // namespace

std::filesystem::path ArchivoDeTrabajo(std::filesystem::path destino) {
    return destino += ".trabajo";
}

EjePlanex EjeParaPlanex(const losas::Losa& losa, std::size_t i) {
    const bool apoyado = EjeDe(losa, i).Tipo != losas::SinApoyo;
    const bool primero = i == 1;
    const bool ultimo = !primero && i == TramosDe(losa) + 1;
    EjePlanex eje;
    if (apoyado) eje = {true, 0.5, 0.15, 0.15, 0, 0};
    if (losa.OpcionMaciza) return eje;
    const double extremo = apoyado ? 0.15 : 0.1;
    const double interior = apoyado ? 0.15 : 0;
    if (!primero) eje.MczIzq = ultimo ? extremo : interior;
    if (!ultimo) eje.MczDer = primero ? extremo : interior;
    return eje;
}

NervioPlanex NervioParaPlanex(const losas::Losa& losa, std::size_t i) {
    if (losa.OpcionMaciza || losa.Tramos[i].LT < LuzConNervioTransversal) return {};
    return {true, "1/2", 0.15};
}

bool EscribirProyectoPlanex(almacen::Conexion& destino, const DatosDelProyecto& datos,
                            const DatosGenerales& generales) {
    almacen::Transaccion guardado(destino);
    almacen::VaciarTabla(destino, "Proyecto");
    almacen::Insercion tabla(destino, "Proyecto");
    const bool escrita = AgregarFila(tabla, {{"Proyecto", datos.Proyecto},
                                             {"Cliente", datos.Cliente},
                                             {"Propietario", datos.Propietario},
                                             {"Responsable", datos.Calculista},
                                             {"Comentario", datos.Comentario},
                                             {"Fecha", FormatoFecha(datos.Fecha)},
                                             {"FC", generales.FC},
                                             {"FY", generales.FY},
                                             {"RLosas", 0.025},
                                             {"RVigas", 0.025},
                                             {"RColumnas", 0.025},
                                             {"DVigas", 0.05},
                                             {"NormaSolape", true},
                                             {"RVigasR", 0.05},
                                             {"RLosasR", 0.04},
                                             {"OpcionDiametro", 0.0},
                                             {"OpcionEspesor", true},
                                             {"ValorDatum", 0.0},
                                             {"NMAX", 0.0},
                                             {"LMax", 12.0}});
    return escrita && guardado.Confirmar();
}

TablasPlanex::TablasPlanex(almacen::Conexion& destino)
    : datos_(destino, TablasQueSeLlenan[0]),
      tramos_(destino, TablasQueSeLlenan[1]),
      nervios_(destino, TablasQueSeLlenan[2]),
      ejes_(destino, TablasQueSeLlenan[3]),
      teorico_(destino, TablasQueSeLlenan[4]) {}

bool TablasPlanex::Agregar(const losas::Losa& losa, const losas::ResultadosLosa& resultados) {
    const std::string nombre = Recortar(losa.Nombre);
    const std::size_t N = TramosDe(losa);
    bool escrita = AgregarDatos(datos_, nombre, losa);
    for (std::size_t i = 1; i <= N && escrita; ++i)
        escrita =
            AgregarFila(tramos_, {{"Nombre", nombre}, {"Numero", Numero(i)}, {"LT", losa.Tramos[i].LT}});
    for (std::size_t i = 1; i <= N && escrita; ++i) escrita = AgregarNervio(nervios_, nombre, losa, i);
    for (std::size_t i = 1; i <= N + 1 && escrita; ++i) escrita = AgregarEje(ejes_, nombre, losa, i);
    for (std::size_t i = 1; i <= N + 1 && escrita; ++i)
        escrita = AgregarAcero(teorico_, nombre, losa, resultados, i);
    return escrita;
}

bool ReemplazarLosaPlanex(almacen::Conexion& destino, const losas::Losa& losa,
                          const losas::ResultadosLosa& resultados) {
    almacen::Transaccion guardado(destino);
    BorrarLosa(destino, Recortar(losa.Nombre));
    return TablasPlanex(destino).Agregar(losa, resultados) && guardado.Confirmar();
}

namespace {

void Exigir(bool escrito) {
    if (!escrito) throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
}

/// Whether nothing stands in a file but what this program writes there.
bool EsSoloDelPrograma(const std::filesystem::path& programa, const std::filesystem::path& archivo,
                       const std::filesystem::path& trabajo) {
    almacen::antiguo::BaseEnJet base(programa, archivo, trabajo);
    for (const char* tabla : TablasQueSeVacian) {
        almacen::Recordset filas;
        if (std::find(TablasQueSeLlenan.begin(), TablasQueSeLlenan.end(), std::string_view(tabla)) ==
            TablasQueSeLlenan.end())
            almacen::AbrirRecordset(base.Conexion(), filas, tabla);
        if (filas.NumeroRegistros() > 0) return false;
    }
    return base.EsDelPrograma();
}

}  // namespace

ArchivoNuevoPlanex::ArchivoNuevoPlanex(const std::filesystem::path& programa, const char* plantilla,
                                       const std::filesystem::path& destino, const DatosDelProyecto& datos,
                                       const DatosGenerales& generales)
    : programa_(programa),
      destino_(destino),
      base_(programa, programa / "Imagen" / plantilla, ArchivoDeTrabajo(destino)) {
    Exigir(base_.Conexion().Abierta());
    guardado_.emplace(base_.Conexion());
    tablas_.emplace(base_.Conexion());
    Exigir(EscribirProyectoPlanex(base_.Conexion(), datos, generales));
}

void ArchivoNuevoPlanex::Agregar(const losas::Losa& losa, const losas::ResultadosLosa& resultados) {
    Exigir(tablas_->Agregar(losa, resultados));
}

std::filesystem::path ArchivoNuevoPlanex::Colocar() {
    Exigir(guardado_->Confirmar());
    tablas_.reset();
    guardado_.reset();
    std::filesystem::path original;
    if (Existe(destino_)) {
        original = almacen::antiguo::NombreDeAntigua(destino_, "original");
        if (EsSoloDelPrograma(programa_, destino_, ArchivoDeTrabajo(original))) original.clear();
    }
    base_.Guardar(destino_, original);
    return original;
}

}  // namespace trabex::planex
