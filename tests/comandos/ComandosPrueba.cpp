// Every command of the windows that writes, with the disk failing at every step of it: what is said is what
// is in the file, and what is in the file is all of the change or nothing of it.

#include <set>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "helical/ui/EscaleraH.h"
#include "markus/ui/Marcus.h"
#include "resistencia/DiscoQueFalla.h"
#include "shell/DatosProyecto.h"
#include "slab/ui/LosaGeneral.h"
#include "slab/ui/LosaNueva.h"
#include "stairs/ui/EscaleraT.h"
#include "stairs/ui/EscaleraTG.h"
#include "stairs/ui/EscaleraTNueva.h"
#include "stairs/ui/EscaleraTitulo.h"
#include "support/CargasDePrueba.h"
#include "support/LosasGuiadas.h"
#include "support/VistasDeCarga.h"

namespace trabex {

using namespace prueba;
namespace {

struct PantallaT : PantallaEspacioGuiada, escaleras::ui::PantallaEscaleraT {
    bool MostrarEscaleraTNueva() override { return false; }
    void MostrarEscaleraTDatos(const escaleras::ui::TrabajoEscaleraT& trabajo) override { Datos(trabajo); }
    bool MostrarEscaleraTG() override { return false; }
    bool MostrarEscaleraTitulo() override { return false; }
    std::function<void(const escaleras::ui::TrabajoEscaleraT&)> Datos;
};
struct PantallaH : PantallaEspacioGuiada, helices::ui::PantallaEscaleraH {
    bool MostrarEscaleraTNueva() override { return false; }
    void MostrarEscaleraHDatos(const helices::ui::TrabajoEscaleraH& trabajo) override { Datos(trabajo); }
    void MostrarEscaleraTG() override {}
    bool MostrarEscaleraTitulo() override { return false; }
    void PonerPaneles(const helices::EscaleraHCalculada&) override {}
    void MarcarGiro(dibujo::helice::ModoGiro) override {}
    std::function<void(const helices::ui::TrabajoEscaleraH&)> Datos;
};
struct PantallaM : PantallaEspacioGuiada, marcus::ui::PantallaMarcus {
    void MostrarNiveles() override {}
    void MostrarNivel() override {}
    void MostrarPanos() override {}
    void SoltarBloque() override {}
    std::string Pedir(const std::string&, const std::string&) override { return {}; }
    bool MostrarMarcusNuevo() override { return false; }
    void MostrarReporte() override {}
};
struct SinFoco : escaleras::ui::PantallaDeCampos<escaleras::ui::CampoEscaleraT>,
                 escaleras::ui::PantallaDeCampos<escaleras::ui::CampoEscaleraTG>,
                 helices::ui::PantallaEscaleraHDatos {
    void Enfocar(escaleras::ui::CampoEscaleraT) override {}
    void Enfocar(escaleras::ui::CampoEscaleraTG) override {}
    void Enfocar(helices::ui::CampoEscaleraH) override {}
    void Pitar() override {}
};

class ConDiscoQueFalla : public CargasDePrueba {
  public:
    using Armar = std::function<void()>;
    using Comando = std::function<void(ConDiscoQueFalla&, const Armar&)>;

    /// A workspace of each kind, open; from `armar` on the disk fails.
    template <class Espacio, class Pantalla>
    void Con(const std::function<void(Espacio&, Pantalla&)>& hacer, const Armar& armar) {
        Pantalla pantalla;
        pantalla.Renombrar = [](programa::Renombrar& operaciones) { operaciones.Aceptar("Ñ NUEVO"); };
        if constexpr (std::is_same_v<Espacio, Losas>) {
            MemoriaLosas memoria;
            Losas espacio(aplicacion, servicios, pantalla, pantalla, memoria);
            espacio.Lista().Abrir();
            armar();
            hacer(espacio, pantalla);
        } else {
            Espacio espacio(aplicacion, servicios, pantalla, pantalla);
            espacio.Lista().Abrir();
            armar();
            hacer(espacio, pantalla);
        }
    }
    template <class Espacio, class Pantalla>
    static Comando En(std::function<void(ConDiscoQueFalla&, Espacio&, Pantalla&)> hacer) {
        return [hacer](ConDiscoQueFalla& c, const Armar& armar) {
            c.Con<Espacio, Pantalla>([&](Espacio& e, Pantalla& p) { hacer(c, e, p); }, armar);
        };
    }
    static Comando EnLista(
        Ambito donde,
        const std::function<void(ConDiscoQueFalla&, ListaAnalisis&, VistaListaGuiada&)>& hacer) {
        return [donde, hacer](ConDiscoQueFalla& c, const Armar& armar) {
            VistaListaGuiada vista;
            ListaAnalisis lista(c.aplicacion, c.servicios, VarianteDe(donde), Azar());
            lista.Abrir(vista);
            armar();
            hacer(c, lista, vista);
        };
    }
    /// Every value of every table, as another program reads them.
    static std::string Volcar(const std::filesystem::path& camino) {
        const auto agregar = [](void* texto, int columnas, char** valores, char**) {
            for (int i = 0; i < columnas; ++i)
                *static_cast<std::string*>(texto) += std::string(valores[i] ? valores[i] : "NULL") + ";";
            return 0;
        };
        std::string tablas, texto;
        sqlite3* base = nullptr;
        sqlite3_open(camino.c_str(), &base);
        sqlite3_exec(base, "SELECT 'SELECT * FROM ' || quote(name) FROM sqlite_master WHERE type = 'table'",
                     agregar, &tablas, nullptr);
        sqlite3_exec(base, tablas.c_str(), agregar, &texto, nullptr);
        sqlite3_close(base);
        return texto;
    }
    /// The code of the error that was told; 0 when none was.
    int Dicho() const {
        for (const Mensaje& mensaje : caja.Mensajes)
            if (const std::string marca = "Error Número: "; mensaje.Texto.starts_with(marca))
                return std::stoi(mensaje.Texto.substr(marca.size()));
        return 0;
    }
    std::vector<std::filesystem::path> Archivos() const { return {aplicacion.ArchivoProyecto, Compartido()}; }
    static std::filesystem::path Con(const std::filesystem::path& camino, const char* cola) {
        return std::filesystem::path(camino) += cola;
    }
    /// Of both files, once the program has let go of them: an interrupted save is rolled back by who opens
    /// next.
    std::string Contenido() {
        aplicacion.Proyecto.RegistrosProyecto.Cerrar();
        aplicacion.Proyecto.ConexionProyecto.Cerrar();
        std::string texto;
        for (const auto& archivo : Archivos()) {
            const bool movido = std::filesystem::exists(Con(archivo, ".apartado"));
            // A save that was under way when its file got another name ends in that file.
            if (movido && std::filesystem::exists(Con(archivo, "-journal")))
                std::filesystem::rename(Con(archivo, "-journal"), Con(archivo, ".apartado-journal"));
            const std::filesystem::path donde = movido ? Con(archivo, ".apartado") : archivo;
            almacen::AbrirConexion(otra_, donde);
            otra_.Cerrar();
            texto += Volcar(donde);
        }
        return texto;
    }
    void Reponer() {
        for (const auto& archivo : Archivos()) {
            for (const char* cola : {"", "-journal", ".apartado", ".apartado-journal"})
                std::filesystem::remove(Con(archivo, cola));
            std::filesystem::copy_file(Con(archivo, ".entero"), archivo);
        }
        caja.Mensajes.clear();
        caja.Respuestas.assign(9, RespuestaSi);
    }
    SinFoco sinFoco_;
};

TEST_F(ConDiscoQueFalla, LoDichoEsLoGuardadoFalleDondeFalleElDisco) {
    using namespace escaleras::ui;
    using helices::ui::EscaleraH;
    using marcus::ui::Marcus;
    const auto renombrar = [](ConDiscoQueFalla&, auto& e, auto&) { e.Lista().Renombrar(); };
    const auto eliminar = [](ConDiscoQueFalla&, auto& e, auto&) { e.Lista().Eliminar(); };
    const auto nueva = [](ConDiscoQueFalla&, auto& e, auto&) {
        EscaleraTNueva(e.Lista()).Aceptar("Ñ", "TÍTULO");
    };
    const auto titulo = [](ConDiscoQueFalla& c, auto&, auto&) {
        EscaleraTitulo(c.aplicacion.Proyecto, c.caja).Aceptar("OTRO");
    };
    const auto generales = [](ConDiscoQueFalla& c, almacen::tablas::ClaseEscalera clase) {
        bool cambiados = false;
        EscaleraTG ventana(c.aplicacion.Proyecto.ConexionProyecto, clase, c.aplicacion.Generales, cambiados,
                           c.caja, c.sinFoco_);
        EntradaEscaleraTG entrados = ventana.Mostrar();
        entrados.FC = 333;
        ventana.Aceptar(entrados);
    };
    using L = PantallaLosasGuiada;
    const std::vector<std::pair<const char*, Comando>> comandos{
        {"losa nueva", En<Losas, L>([](auto&, auto& e, auto&) { LosaNueva(e).Aceptar("NUEVA"); })},
        {"losa copiada",
         En<Losas, L>([](auto& c, auto& e, auto&) { LosaSalvarComo(e, c.caja).Aceptar("COPIA"); })},
        {"losa salvada", En<Losas, L>([](auto& c, auto& e, auto&) {
             PantallaLosaDatosGuiada pantalla;
             LosaDatos datos(e, pantalla, c.caja);
             datos.Abrir();
             datos.PonerNumeroTramos(4);
             datos.PonerLongitud(1, 7.77);
             const bool salvada = datos.Salvar();
             EXPECT_EQ(salvada, c.Dicho() == 0);
         })},
        {"losa renombrada", En<Losas, L>(renombrar)},
        {"losa eliminada", En<Losas, L>(eliminar)},
        {"generales de losas", En<Losas, L>([](auto& c, auto&, auto&) {
             DatosGenerales entrados = c.aplicacion.Generales;
             entrados.FC = 333;
             LosaGeneral(c.aplicacion.Proyecto.ConexionProyecto, c.aplicacion.Generales, c.caja)
                 .Aceptar(entrados);
         })},
        {"escalera nueva", En<EscaleraT, PantallaT>(nueva)},
        {"escalera titulada", En<EscaleraT, PantallaT>(titulo)},
        {"escalera salvada", En<EscaleraT, PantallaT>([](auto& c, auto& e, auto& p) {
             p.Datos = [&](const TrabajoEscaleraT& trabajo) {
                 EscaleraTDatos ventana(trabajo, c.caja, c.sinFoco_);
                 escaleras::DatosEscaleraT entrados = ventana.Mostrar();
                 entrados.L = 2.22;
                 ventana.Salvar(entrados);
             };
             e.Editar();
         })},
        {"escalera renombrada", En<EscaleraT, PantallaT>(renombrar)},
        {"escalera eliminada", En<EscaleraT, PantallaT>(eliminar)},
        {"generales de escaleras", En<EscaleraT, PantallaT>([&](auto& c, auto&, auto&) {
             generales(c, almacen::tablas::ClaseEscalera::Autoportante);
         })},
        {"hélice nueva", En<EscaleraH, PantallaH>(nueva)},
        {"hélice titulada", En<EscaleraH, PantallaH>(titulo)},
        {"hélice salvada", En<EscaleraH, PantallaH>([](auto& c, auto& e, auto& p) {
             p.Datos = [&](const helices::ui::TrabajoEscaleraH& trabajo) {
                 helices::ui::EscaleraHDatos ventana(trabajo, c.caja, c.sinFoco_);
                 helices::ui::EntradaEscaleraH entrados = ventana.Mostrar();
                 entrados.H = 2.22;
                 ventana.Salvar(entrados);
             };
             e.Editar();
         })},
        {"hélice renombrada", En<EscaleraH, PantallaH>(renombrar)},
        {"hélice eliminada", En<EscaleraH, PantallaH>(eliminar)},
        {"nivel nuevo", En<Marcus, PantallaM>(
                            [](auto&, auto& e, auto&) { marcus::ui::MarcusNuevo(e.Lista()).Aceptar("Ñ"); })},
        {"nivel salvado", En<Marcus, PantallaM>([](auto& c, auto& e, auto&) {
             e.PonerNumeroDePanos(7);
             const bool salvado = e.Salvar();
             EXPECT_EQ(salvado, c.Dicho() == 0);
             EXPECT_EQ(e.Modificado(), c.Dicho() != 0);
         })},
        {"nivel renombrado", En<Marcus, PantallaM>(renombrar)},
        {"nivel eliminado", En<Marcus, PantallaM>(eliminar)},
        {"análisis creado", EnLista(Ambito::Proyecto,
                                    [](auto&, auto& lista, auto& vista) {
                                        vista.EnNuevo = [&](NuevoAnalisisCarga& o) {
                                            VistaCreacionGuiada creacion;
                                            o.Aceptar(vista.Lineas[0].Descripcion, creacion);
                                        };
                                        lista.Crear();
                                    })},
        {"análisis salvado", EnLista(Ambito::Compartido,
                                     [](auto& c, auto& lista, auto& vista) {
                                         vista.EnModificar = [&](AnalisisCargaModificar& o) {
                                             VistaAnalisisGuiada edicion;
                                             o.Abrir(edicion);
                                             o.CambiarItem(1, CampoDePeso::Peso, "77");
                                             const bool salvado = o.Salvar();
                                             EXPECT_EQ(salvado, c.Dicho() == 0);
                                             EXPECT_EQ(o.Modificado(), c.Dicho() != 0);
                                         };
                                         lista.Modificar();
                                     })},
        {"celda de análisis",
         EnLista(Ambito::Proyecto,
                 [](auto&, auto& lista, auto&) { lista.ModificarCelda(1, CampoDeLinea::Carga, "777"); })},
        {"análisis eliminado",
         EnLista(Ambito::Proyecto, [](auto&, auto& lista, auto&) { lista.Eliminar(); })},
        {"pesos", EnLista(Ambito::Compartido,
                          [](auto&, auto& lista, auto& vista) {
                              vista.EnModificar = [&](AnalisisCargaModificar& o) {
                                  VistaAnalisisGuiada edicion;
                                  VistaPesosGuiada pesos;
                                  edicion.EnPesos = [&](AnalisisCargaBDCP& bd) {
                                      bd.Abrir(pesos);
                                      bd.ModificarCelda(1, CampoDePeso::Peso, "77");
                                  };
                                  o.Abrir(edicion);
                                  o.BuscarPesos(PesosPermanentes);
                              };
                              lista.Modificar();
                          })},
        {"datos del proyecto", [](ConDiscoQueFalla& c, const Armar& armar) {
             DatosProyecto ventana(c.aplicacion, c.caja);
             DatosDelProyecto datos = ventana.Leer();
             datos.Cliente = "OTRO";
             armar();
             ventana.Salvar(datos);
         }}};

    using Falla = DiscoQueFalla::Falla;
    DiscoQueFalla& disco = DiscoQueFalla::Instalado();
    const std::vector<std::pair<Falla, int>> fallas{
        {Falla::Lleno, 61}, {Falla::SoloLectura, 75}, {Falla::Bloqueado, 70}, {Falla::Desaparece, 53}};
    for (const auto& archivo : Archivos()) std::filesystem::copy_file(archivo, Con(archivo, ".entero"));
    disco.AlDesaparecer = [&] {
        for (const auto& archivo : Archivos()) std::filesystem::rename(archivo, Con(archivo, ".apartado"));
    };
    const std::string antes = Contenido();
    int pruebas = 0;
    for (const auto& [nombre, comando] : comandos) {
        Reponer();
        comando(*this, [] {});
        EXPECT_EQ(Dicho(), 0) << nombre;
        const std::string despues = Contenido();
        ASSERT_NE(despues, antes) << nombre;
        for (const auto& [falla, codigo] : fallas) {
            bool fallo = true;
            for (long paso = 1; fallo; ++paso, ++pruebas) {
                Reponer();
                comando(*this, [&, cual = falla] { disco.Fallar(cual, paso); });
                fallo = disco.Pasos() >= paso;
                disco.Fallar(Falla::Ninguna, 0);
                const std::string quedo = Contenido();
                ASSERT_TRUE(quedo == (Dicho() == 0 ? despues : antes) && (Dicho() == 0 || Dicho() == codigo))
                    << nombre << ", paso " << paso << ", falla " << codigo << ": se dijo " << Dicho()
                    << " y quedó "
                    << (quedo == antes     ? "lo de antes"
                        : quedo == despues ? "todo"
                                           : "a medias");
            }
        }
    }
    RecordProperty("fallas", pruebas);
}

}  // namespace
}  // namespace trabex
