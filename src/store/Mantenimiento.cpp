#include "store/Mantenimiento.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <new>
#include <string>

#include "base/Archivos.h"
#include "base/MarcaDeUso.h"
#include "store/Compuerta.h"
#include "store/Conexion.h"
#include "store/Motor.h"
#include "store/Paginas.h"
#include "store/Salvamento.h"

namespace trabex::almacen {

namespace {

constexpr std::chrono::milliseconds PlazoDeReescritura(60'000);

std::string LeerBytes(const std::filesystem::path& camino) {
    std::ifstream entrada(camino, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

/// A sound database written whole into an empty file.
bool Reescribir(Motor& origen, const std::filesystem::path& destino) {
    origen.FijarPlazo(PlazoDeReescritura);
    const SentenciaSqlite sentencia = origen.Preparar("VACUUM INTO ?");
    if (!sentencia) return false;
    const std::string ruta = RutaDelMotor(destino);
    sqlite3_bind_text(sentencia.get(), 1, ruta.data(), static_cast<int>(ruta.size()), SQLITE_TRANSIENT);
    bool hayFila = false;
    return origen.Avanzar(sentencia.get(), hayFila);
}

/// What can be saved of a damaged database, in an empty file. False when there is nothing.
bool SalvarEn(const std::filesystem::path& origen, const std::filesystem::path& plantilla,
              const std::filesystem::path& destino, Compactado& compactado) {
    std::error_code error;
    if (std::filesystem::file_size(origen, error) > LargoMaximo || error) return false;
    compactado.Causa = CodigoError::FormatoNoValido;
    if (!plantilla.empty()) CopiarArchivo(plantilla, destino);
    Motor nuevo(destino, SQLITE_OPEN_READWRITE, Procedencia::Propia);
    nuevo.EmpezarGuardado();
    compactado.DelDanado = Salvar(Paginas(LeerBytes(origen)), nuevo);
    if (nuevo.TerminarGuardado(compactado.DelDanado.Filas > 0)) return true;
    if (compactado.DelDanado.Filas > 0) compactado.Causa = nuevo.Causa();
    return false;
}

}  // namespace

void AsentarBaseDatos(const std::filesystem::path& camino) {
    Conexion conexion;
    AbrirConexion(conexion, camino);
    if (conexion.Abierta()) conexion.motor()->Correr("PRAGMA wal_checkpoint(TRUNCATE)");
}

void ExigirLibre(const std::filesystem::path& camino) {
    bool libre = !TieneMarcaDeUso(camino);
    if (libre && TieneCabecera(camino)) {
        Motor motor(camino, SQLITE_OPEN_READWRITE);
        libre = !motor.Abierto() || motor.Correr("BEGIN EXCLUSIVE") ||
                (sqlite3_errcode(motor.base()) & 0xFF) != SQLITE_BUSY;
    }
    if (!libre) throw ErrorEjecucion(CodigoError::PermisoDenegado);
}

void CopiarBaseDatos(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    AsentarBaseDatos(origen);
    Conexion conexion;
    AbrirConexion(conexion, origen);
    const Lectura lectura(conexion);
    if (conexion.Abierta())
        conexion.motor()->Consultar("SELECT count(*) FROM sqlite_master");  // takes the lock
    OlvidarGuardado(destino);
    CopiarArchivo(origen, destino);
}

void OlvidarGuardado(const std::filesystem::path& camino) {
    std::error_code error;
    for (const std::filesystem::path& archivo : ArchivosAlLado(camino))
        std::filesystem::remove(archivo, error);
}

Compactado CompactarBaseDatos(const std::filesystem::path& origen, const std::filesystem::path& destino,
                              const std::filesystem::path& plantilla) {
    Compactado compactado;
    try {
        ArchivoNuevo nuevo(destino);
        nuevo.Escribir("");
        Entrada entrada = DejarEntrar(origen);
        compactado.Causa = entrada.Causa;
        if (entrada.Bloqueada) return compactado;
        if (!entrada.Base && !SalvarEn(origen, plantilla, nuevo.Provisional(), compactado)) return compactado;
        if (entrada.Base && !Reescribir(*entrada.Base, nuevo.Provisional())) {
            compactado.Causa = entrada.Base->Causa();
            return compactado;
        }
        nuevo.ColocarSinPisar();
        compactado.Hecho = true;
    } catch (const ErrorEjecucion& error) {
        compactado.Causa = static_cast<CodigoError>(error.Codigo());
    } catch (const std::bad_alloc&) {
        compactado.Causa = CodigoError::MemoriaInsuficiente;
    }
    return compactado;
}

bool CrearBaseDatos(const std::filesystem::path& camino, std::string_view esquema) {
    if (Existe(camino)) return false;
    bool hecho = false;
    {
        Motor motor(camino, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, Procedencia::Propia);
        if (!motor.Abierto()) return false;
        const std::string texto(esquema);
        motor.EmpezarGuardado();
        const bool corrido =
            sqlite3_exec(motor.base(), texto.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
        hecho = motor.TerminarGuardado(corrido);
    }
    if (!hecho) {
        std::error_code error;
        std::filesystem::remove(camino, error);
        OlvidarGuardado(camino);
    }
    return hecho;
}

}  // namespace trabex::almacen
