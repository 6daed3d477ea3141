#pragma once

#include <csignal>
#include <functional>
#include <string>

#include <sqlite3.h>
#include <unistd.h>

namespace trabex::prueba {

/// A disk in the place of the engine's own, under everything that it writes: it counts each write, cut,
/// flush, deletion and lock, and at one of them it does what it was told to.
class DiscoQueFalla {
  public:
    enum class Falla { Ninguna, Muerte, Lleno, SoloLectura, Bloqueado, Desaparece };

    static DiscoQueFalla& Instalado() {
        static DiscoQueFalla disco;
        return disco;
    }
    /// From now on step `paso` fails (from 1; none when 0), and with `persiste` those after it too.
    void Fallar(Falla falla, long paso, bool persiste = true) {
        falla_ = falla;
        paso_ = paso;
        persiste_ = persiste;
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
                if (const int codigo = Instalado().Contar(Paso::Otro, nullptr, nullptr, 0, 0)) return codigo;
            }
            sqlite3_vfs* real = Instalado().real_;
            const int codigo = real->xOpen(real, nombre, propio->Real(), banderas, salen);
            if (propio->Real()->pMethods != nullptr) propio->Base.pMethods = Metodos();
            return codigo;
        };
        propio_.xDelete = [](sqlite3_vfs*, const char* nombre, int asentar) {
            if (const int codigo = Instalado().Contar(Paso::Otro, nullptr, nullptr, 0, 0)) return codigo;
            sqlite3_vfs* real = Instalado().real_;
            return real->xDelete(real, nombre, asentar);
        };
        sqlite3_vfs_register(&propio_, 1);
    }

    /// One more step. What it answers is what the engine is told; dying in a write leaves half of it.
    int Contar(Paso paso, Archivo* archivo, const void* bytes, int largo, sqlite3_int64 donde) {
        ++pasos_;
        if (paso_ == 0 || pasos_ < paso_ || (pasos_ > paso_ && !persiste_)) return SQLITE_OK;
        switch (falla_) {
            case Falla::Muerte:
                if (bytes != nullptr)
                    archivo->Real()->pMethods->xWrite(archivo->Real(), bytes, largo / 2, donde);
                kill(getpid(), SIGKILL);
                return SQLITE_IOERR;
            case Falla::Lleno:
                return paso == Paso::Escritura ? SQLITE_FULL : SQLITE_OK;
            case Falla::SoloLectura:
                return paso == Paso::Escritura ? SQLITE_READONLY : SQLITE_OK;
            case Falla::Bloqueado:
                return paso == Paso::Cierre ? SQLITE_BUSY : SQLITE_OK;
            case Falla::Desaparece:
                if (pasos_ == paso_ && AlDesaparecer) AlDesaparecer();
                return SQLITE_OK;
            case Falla::Ninguna:
                break;
        }
        return SQLITE_OK;
    }

    static const sqlite3_io_methods* Metodos() {
        static const sqlite3_io_methods metodos = [] {
            sqlite3_io_methods m{};
            m.iVersion = 1;
            m.xClose = [](sqlite3_file* f) { return M(f)->xClose(R(f)); };
            m.xRead = [](sqlite3_file* f, void* b, int n, sqlite3_int64 d) {
                return M(f)->xRead(R(f), b, n, d);
            };
            m.xWrite = [](sqlite3_file* f, const void* b, int n, sqlite3_int64 d) {
                const int codigo =
                    Instalado().Contar(Paso::Escritura, reinterpret_cast<Archivo*>(f), b, n, d);
                return codigo != SQLITE_OK ? codigo : M(f)->xWrite(R(f), b, n, d);
            };
            m.xTruncate = [](sqlite3_file* f, sqlite3_int64 n) {
                const int codigo = Instalado().Contar(Paso::Otro, nullptr, nullptr, 0, 0);
                return codigo != SQLITE_OK ? codigo : M(f)->xTruncate(R(f), n);
            };
            m.xSync = [](sqlite3_file* f, int banderas) {
                const int codigo = Instalado().Contar(Paso::Otro, nullptr, nullptr, 0, 0);
                return codigo != SQLITE_OK ? codigo : M(f)->xSync(R(f), banderas);
            };
            m.xFileSize = [](sqlite3_file* f, sqlite3_int64* n) { return M(f)->xFileSize(R(f), n); };
            m.xLock = [](sqlite3_file* f, int clase) {
                const int codigo = clase <= SQLITE_LOCK_SHARED
                                       ? SQLITE_OK
                                       : Instalado().Contar(Paso::Cierre, nullptr, nullptr, 0, 0);
                return codigo != SQLITE_OK ? codigo : M(f)->xLock(R(f), clase);
            };
            m.xUnlock = [](sqlite3_file* f, int clase) { return M(f)->xUnlock(R(f), clase); };
            m.xCheckReservedLock = [](sqlite3_file* f, int* s) { return M(f)->xCheckReservedLock(R(f), s); };
            m.xFileControl = [](sqlite3_file* f, int que, void* dato) {
                return M(f)->xFileControl(R(f), que, dato);
            };
            m.xSectorSize = [](sqlite3_file* f) { return M(f)->xSectorSize(R(f)); };
            m.xDeviceCharacteristics = [](sqlite3_file* f) { return M(f)->xDeviceCharacteristics(R(f)); };
            return m;
        }();
        return &metodos;
    }
    static sqlite3_file* R(sqlite3_file* archivo) { return reinterpret_cast<Archivo*>(archivo)->Real(); }
    static const sqlite3_io_methods* M(sqlite3_file* archivo) { return R(archivo)->pMethods; }

    sqlite3_vfs* real_;
    sqlite3_vfs propio_;
    Falla falla_ = Falla::Ninguna;
    long paso_ = 0;
    long pasos_ = 0;
    bool persiste_ = true;
};

}  // namespace trabex::prueba
