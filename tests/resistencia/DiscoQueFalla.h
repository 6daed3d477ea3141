#pragma once

#include <csignal>
#include <functional>

#include <sqlite3.h>
#include <unistd.h>

namespace trabex::prueba {

/// A disk in the place of the engine's own, under everything that it writes: it counts each write, cut,
/// flush, deletion and lock, and from one of them on it does what it was told to. A flush is not done and a
/// lock is not waited for: no test cuts the power, and who asks again is answered the same.
class DiscoQueFalla {
  public:
    enum class Falla { Ninguna, Muerte, Lleno, SoloLectura, Bloqueado, Desaparece };

    static DiscoQueFalla& Instalado() {
        static DiscoQueFalla disco;
        return disco;
    }
    /// From now on step `paso` and those after it fail (from 1; none when 0).
    void Fallar(Falla falla, long paso) {
        falla_ = falla;
        paso_ = paso;
        pasos_ = 0;
    }
    long Pasos() const { return pasos_; }
    /// What is done when the file disappears.
    std::function<void()> AlDesaparecer;

  private:
    struct Archivo {
        sqlite3_file Base;
        sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    };
    enum class Paso { Escritura, Otro, Cierre };

    DiscoQueFalla() : real_(sqlite3_vfs_find(nullptr)), propio_(*real_) {
        propio_.zName = "que-falla";
        propio_.szOsFile = static_cast<int>(sizeof(Archivo)) + real_->szOsFile;
        propio_.xOpen = [](sqlite3_vfs*, const char* nombre, sqlite3_file* archivo, int banderas,
                           int* salen) {
            auto* propio = reinterpret_cast<Archivo*>(archivo);
            propio->Base.pMethods = nullptr;
            if ((banderas & SQLITE_OPEN_MAIN_JOURNAL) != 0) {
                if (const int codigo = Instalado().Contar(Paso::Otro)) return codigo;
            }
            sqlite3_vfs* real = Instalado().real_;
            const int codigo = real->xOpen(real, nombre, propio->Real(), banderas, salen);
            if (propio->Real()->pMethods != nullptr) propio->Base.pMethods = Metodos();
            return codigo;
        };
        propio_.xDelete = [](sqlite3_vfs*, const char* nombre, int) {
            if (const int codigo = Instalado().Contar(Paso::Otro)) return codigo;
            sqlite3_vfs* real = Instalado().real_;
            return real->xDelete(real, nombre, 0);
        };
        propio_.xSleep = [](sqlite3_vfs*, int microsegundos) { return microsegundos; };
        sqlite3_vfs_register(&propio_, 1);
    }

    /// One more step, of those that the failure hits. What it answers is what the engine is told; who dies in
    /// a write leaves half of it.
    int Contar(Paso paso, const std::function<void()>& escribirLaMitad = {}) {
        const bool deEscritura = falla_ == Falla::Lleno || falla_ == Falla::SoloLectura;
        if (deEscritura && paso != Paso::Escritura) return SQLITE_OK;
        if (falla_ == Falla::Bloqueado && paso != Paso::Cierre) return SQLITE_OK;
        ++pasos_;
        if (paso_ == 0 || pasos_ < paso_) return SQLITE_OK;
        if (falla_ == Falla::Muerte) {
            if (escribirLaMitad) escribirLaMitad();
            kill(getpid(), SIGKILL);
        }
        if (falla_ == Falla::Desaparece && pasos_ == paso_) AlDesaparecer();
        if (falla_ == Falla::Bloqueado) return SQLITE_BUSY;
        return !deEscritura ? SQLITE_OK : falla_ == Falla::Lleno ? SQLITE_FULL : SQLITE_READONLY;
    }

    template <auto Metodo, class... Argumentos>
    static int Pasar(sqlite3_file* archivo, Argumentos... argumentos) {
        sqlite3_file* real = reinterpret_cast<Archivo*>(archivo)->Real();
        return (real->pMethods->*Metodo)(real, argumentos...);
    }
    static const sqlite3_io_methods* Metodos() {
        using M = sqlite3_io_methods;
        static const M metodos = [] {
            M m{};
            m.iVersion = 1;
            m.xClose = Pasar<&M::xClose>;
            m.xRead = Pasar<&M::xRead>;
            m.xFileSize = Pasar<&M::xFileSize>;
            m.xUnlock = Pasar<&M::xUnlock>;
            m.xCheckReservedLock = Pasar<&M::xCheckReservedLock>;
            m.xFileControl = Pasar<&M::xFileControl>;
            m.xSectorSize = Pasar<&M::xSectorSize>;
            m.xDeviceCharacteristics = Pasar<&M::xDeviceCharacteristics>;
            m.xSync = [](sqlite3_file*, int) { return Instalado().Contar(Paso::Otro); };
            m.xWrite = [](sqlite3_file* f, const void* bytes, int largo, sqlite3_int64 donde) {
                const int codigo = Instalado().Contar(Paso::Escritura,
                                                      [&] { Pasar<&M::xWrite>(f, bytes, largo / 2, donde); });
                return codigo != SQLITE_OK ? codigo : Pasar<&M::xWrite>(f, bytes, largo, donde);
            };
            m.xTruncate = [](sqlite3_file* f, sqlite3_int64 largo) {
                const int codigo = Instalado().Contar(Paso::Otro);
                return codigo != SQLITE_OK ? codigo : Pasar<&M::xTruncate>(f, largo);
            };
            m.xLock = [](sqlite3_file* f, int clase) {
                const int codigo = clase <= SQLITE_LOCK_SHARED ? SQLITE_OK : Instalado().Contar(Paso::Cierre);
                return codigo != SQLITE_OK ? codigo : Pasar<&M::xLock>(f, clase);
            };
            return m;
        }();
        return &metodos;
    }

    sqlite3_vfs* real_;
    sqlite3_vfs propio_;
    Falla falla_ = Falla::Ninguna;
    long paso_ = 0;
    long pasos_ = 0;
};

}  // namespace trabex::prueba
