#include "lote/qt/Correr.h"

#include <QGuiApplication>
#include <QHashSeed>
#include <algorithm>
#include <array>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "base/Archivos.h"
#include "lote/Opciones.h"
#include "lote/ProyectoLegible.h"
#include "lote/Resumen.h"
#include "lote/Terminal.h"
#include "lote/qt/HojasLote.h"
#include "lote/qt/MemoriaLote.h"
#include "lote/qt/ReportesLote.h"

namespace trabex::lote::qt {

namespace {

enum Estado { Hecho = 0, NoSePuedeEscribir = 1, MalUso = 2, NoSePuedeAbrir = 3 };

std::filesystem::path CarpetaDelPrograma() {
    return CaminoDeTexto(QCoreApplication::applicationDirPath().toStdString());
}

/// The outputs of a run; each that is written adds a closing line.
class Salidas {
  public:
    Salidas(const ProyectoCalculado& calculado, const Opciones& opciones, const Marcha& marcha)
        : calculado_(calculado), opciones_(opciones), marcha_(marcha) {}

    void Escribir() {
        EscribirResultados();
        // Files of exchange need one thread and report no progress: the rest goes on beside them.
        EnParalelo(std::min(marcha_.Hilos, 2U), 2, [this](std::size_t i, unsigned) {
            i == 0 ? EscribirHojasYReportes() : EscribirIntercambios();
        });
    }

    std::string Cierre() const { return cierreDeResultados_ + cierreDeIntercambios_ + cierre_; }
    std::vector<Falta> LasFaltas() const { return faltas_.Todas(); }

  private:
    static std::string Linea(const std::string& rotulo, const std::filesystem::path& camino) {
        return rotulo + ": " + camino.string() + '\n';
    }
    void Cerrar(const std::string& rotulo, const std::filesystem::path& camino) {
        cierre_ += Linea(rotulo, camino);
    }

    void EscribirHojasYReportes() {
        for (const Lista& lista : calculado_.Listas) {
            if (lista.De->Dibujos && !opciones_.SinDibujos) EscribirLosDibujos(lista);
        }
        if (opciones_.Pide(SalidaReportes)) EscribirLosReportes();
        if (opciones_.Solo.contains(SalidaMemoria)) {
            std::vector<ArchivoDeMemoria> archivos;
            for (const char* extension : {".pdf", ".htm", ".rtf", ".xls"})
                archivos.push_back({opciones_.Carpeta / (std::string("memoria") + extension), extension});
            EscribirMemoria(calculado_, !opciones_.SinDibujos, {}, archivos, marcha_, faltas_, &pinturas_);
            Cerrar("Memoria de cálculo", opciones_.Carpeta / "memoria.pdf");
        }
    }

    void EscribirResultados() {
        const std::filesystem::path archivo = opciones_.Carpeta / "resultados.json";
        try {
            EscribirArchivo(archivo, DocumentoJson(calculado_, marcha_));
            cierreDeResultados_ = Linea("Resultados", archivo);
        } catch (const ErrorEjecucion& error) {
            faltas_.Anotar("resultados.json", error.Texto());
        }
    }

    void EscribirIntercambios() {
        for (const Lista& lista : calculado_.Listas) {
            for (const Intercambio& intercambio : lista.De->Intercambios)
                EscribirIntercambio(lista, intercambio);
        }
    }

    void EscribirLosDibujos(const Lista& lista) {
        const std::filesystem::path carpeta = opciones_.Carpeta / lista.De->Clave;
        if (opciones_.Pide(SalidaHojas)) {
            EscribirHojas(lista, calculado_.Datos, carpeta, marcha_, faltas_);
            Cerrar("Hojas de las " + std::string(lista.De->Plural), carpeta);
        }
        if (opciones_.Solo.contains(SalidaVectores)) {
            EscribirVectores(lista, carpeta, marcha_, faltas_);
            Cerrar("Dibujos SVG y DXF de las " + std::string(lista.De->Plural), carpeta);
        }
    }

    void EscribirIntercambio(const Lista& lista, const Intercambio& intercambio) {
        if (!opciones_.Pide(intercambio.Clave)) return;
        const std::filesystem::path archivo =
            opciones_.Carpeta / intercambio.Clave /
            calculado_.Camino.filename().replace_extension(intercambio.Extension);
        std::error_code ignorado;
        std::filesystem::create_directories(archivo.parent_path(), ignorado);
        std::string enCurso;
        try {
            const std::filesystem::path original =
                intercambio.Escribir(CarpetaDelPrograma(), archivo, calculado_.Datos, lista, enCurso);
            cierreDeIntercambios_ += Linea(intercambio.Rotulo, archivo);
            if (!original.empty())
                cierreDeIntercambios_ += Linea("El que había, de otro programa, queda como", original);
        } catch (const ErrorEjecucion& error) {
            const std::string salida = TextoDeCamino(archivo.filename());
            faltas_.Anotar(enCurso.empty() ? salida : SalidaDe(salida, lista.De->Nombre, enCurso),
                           error.Texto());
        }
    }

    void EscribirLosReportes() {
        bool hay = false;
        for (const Lista& lista : calculado_.Listas) {
            if (!lista.De->Reportes) continue;
            hay = true;
            EscribirReportes(CarpetaDelPrograma(), lista, calculado_.Datos, !opciones_.SinDibujos,
                             opciones_.Carpeta, marcha_, faltas_, ParaLaMemoria());
        }
        if (hay) Cerrar("Reportes", opciones_.Carpeta / "reportes");
    }

    /// Where drawings are kept when the memo is to show them too.
    Pinturas* ParaLaMemoria() { return opciones_.Solo.contains(SalidaMemoria) ? &pinturas_ : nullptr; }

    const ProyectoCalculado& calculado_;
    const Opciones& opciones_;
    const Marcha& marcha_;
    Faltas faltas_;
    Pinturas pinturas_;
    std::string cierreDeResultados_, cierreDeIntercambios_, cierre_;
};

std::string Resumen(const ProyectoCalculado& calculado) {
    std::string resumen;
    for (const Lista& lista : calculado.Listas) {
        if (resumen.empty() || !lista.Elementos.empty())
            resumen += (resumen.empty() ? "" : "\n") + TablaResumen(lista, {});
    }
    return resumen;
}

bool HayCarpeta(const std::filesystem::path& carpeta) {
    std::error_code error;
    std::filesystem::create_directories(carpeta, error);
    return std::filesystem::is_directory(carpeta, error);
}

int CalcularYEscribir(const Opciones& opciones, Modulos modulos) {
    const Marcha marcha{std::max(1U, std::thread::hardware_concurrency()), AvanceEnTerminal()};
    ProyectoCalculado calculado;
    const ProyectoLegible legible(CarpetaDelPrograma(), opciones.Proyecto);
    if (!CalcularProyecto(legible.Camino(), modulos, marcha, calculado)) {
        std::cerr << "trabex-lote: no se puede abrir el proyecto " << opciones.Proyecto << '\n';
        return NoSePuedeAbrir;
    }
    if (!legible.Aviso().empty()) std::cerr << "trabex-lote: " << legible.Aviso() << '\n';
    if (!HayCarpeta(opciones.Carpeta)) {
        std::cerr << "trabex-lote: no se puede escribir en " << opciones.Carpeta << '\n';
        return NoSePuedeEscribir;
    }
    Salidas salidas(calculado, opciones, marcha);
    salidas.Escribir();
    std::cout << Resumen(calculado) << '\n' << salidas.Cierre();
    const std::vector<Falta> faltas = salidas.LasFaltas();
    for (const Falta& falta : faltas)
        std::cerr << "trabex-lote: no se puede escribir " << falta.Salida << ": " << falta.Texto << '\n';
    return faltas.empty() ? Hecho : NoSePuedeEscribir;
}

}  // namespace

int Correr(int argc, char** argv, Modulos modulos) {
    const std::vector<const char*> argumentos(argv + 1, argv + argc);
    const auto opciones = LeerOpciones(argumentos, modulos);
    if (!opciones) {
        std::cerr << Uso(modulos) << '\n';
        return MalUso;
    }
    // Pictures need the toolkit's fonts, not a display; what the toolkit remarks on the machine is no concern
    // of whoever reads standard error.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // The toolkit orders a PDF's fonts by their hashes: without this, each run would give another file.
    QHashSeed::setDeterministicGlobalSeed();
    std::string plataforma = "-platform";
    std::string ninguna = "offscreen";
    std::array<char*, 4> propios{argv[0], plataforma.data(), ninguna.data(), nullptr};
    int cuantos = 3;
    const QGuiApplication grafica(cuantos, propios.data());
    return CalcularYEscribir(*opciones, modulos);
}

}  // namespace trabex::lote::qt
