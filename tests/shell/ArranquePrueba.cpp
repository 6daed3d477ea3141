#include <gtest/gtest.h>

#include "base/Archivos.h"
#include "shell/Arranque.h"
#include "shell/Compactar1.h"
#include "shell/ConfigurarPrograma.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"

namespace trabex::prueba {
namespace {

class Arranque : public testing::Test, protected Maquina {
  protected:
    Arranque() {
        for (const char* nombre : {"Ejemplo Demostrativo.tbx", "TapizTBX.jpg", "AnalisisCarga.tbx"})
            EscribirArchivo(carpeta / "programa" / "Imagen" / nombre, std::string("entregado: ") + nombre);
    }
    void Arrancar() { PrepararArranque(plataforma, carpetas, aplicacion); }
    std::filesystem::path Usuario(const std::string& camino) const { return carpetas.CaminoUsuario / camino; }
};

TEST_F(Arranque, HaceLoQueFaltaYRespetaLoQueEsta) {
    Arrancar();
    EXPECT_EQ(carpetas.CaminoUsuario, carpeta / "Documentos" / "Nodara Software" / "Trabex24");
    for (const char* nombre : {"ReportesExportados", "Trabajo", "Temporales"})
        EXPECT_TRUE(std::filesystem::is_directory(Usuario(nombre))) << nombre;
    EXPECT_EQ(LeerArchivo(Usuario("Proyectos/AnalisisCarga.mdb")), "entregado: AnalisisCarga.tbx");
    EscribirArchivo(Usuario("Proyectos/Ejemplo Demostrativo.los"), "trabajado");
    EscribirArchivo(Usuario("Tapices/TapizTBX.jpg"), std::string(500, 'x'));
    Arrancar();
    EXPECT_EQ(LeerArchivo(Usuario("Proyectos/Ejemplo Demostrativo.los")), "trabajado");
    EXPECT_FALSE(std::filesystem::exists(Usuario("Tapices/TapizTBX.jpg")));  // the next start brings it
    Arrancar();
    EXPECT_EQ(LeerArchivo(Usuario("Tapices/TapizTBX.jpg")), "entregado: TapizTBX.jpg");
    EscribirArchivo(Usuario("Tapices/TapizTBX.jpg"), std::string(33, 'x'));  // 10 bytes more: the same
    Arrancar();
    EXPECT_TRUE(std::filesystem::exists(Usuario("Tapices/TapizTBX.jpg")));
    std::filesystem::create_directories(carpeta / "C" / "Nodara Software");
    Arrancar();
    EXPECT_EQ(carpetas.CaminoUsuario, carpeta / "C" / "Nodara Software" / "Trabex24");
}

TEST_F(Arranque, LasPreferenciasSonRegistrosDe128Bytes) {
    constexpr std::size_t registro = 128;
    Arrancar();
    const std::string bytes = LeerArchivo(Usuario("Tapiz.tbx"));
    const std::string imagen = TextoDeCamino(Usuario("Tapices/TapizTBX.jpg"));
    ASSERT_EQ(bytes.size(), 1280U);
    EXPECT_EQ(static_cast<unsigned char>(bytes[0]), imagen.size());
    EXPECT_EQ(bytes.substr(2, imagen.size()), imagen);
    EXPECT_EQ(bytes[5 * registro], 4);
    EXPECT_EQ(bytes.substr(6 * registro, 4), std::string("\xFF\xF4\xD6\0", 4));

    std::string otros = bytes;
    otros[1 * registro] = 2;
    otros[1 * registro + 1] = 1;  // 258 as it is read: out of range
    otros[2 * registro] = 1;
    otros[4 * registro] = 40;
    otros[5 * registro] = 9;
    otros.replace(6 * registro, 4, std::string(4, '\0'));
    Tapiz leido = LeerRegistros(otros);
    EXPECT_EQ(std::tuple(leido.Horizontal, leido.Vertical, leido.Efecto, leido.TamanoAyuda, leido.FondoAyuda),
              std::tuple(0, 1, 0, 4, 0xD6F4FFU));
    leido.Horizontal = 1;
    PonerRegistros(leido, otros);  // one byte is written, the other stays
    EXPECT_EQ(otros.substr(128, 2), "\x01\x01");
    EXPECT_EQ(LeerRegistros(bytes.substr(0, 300)).TamanoAyuda, 4);
    EXPECT_EQ(LeerRegistros("").Imagen, "");
    leido.Imagen = std::string(127, 'x');
    EXPECT_FALSE(PonerRegistros(leido, otros));  // the other nine are put all the same
}

TEST_F(Arranque, UnaImagenPerdidaDevuelveLasPreferenciasDeFabrica) {
    Arrancar();
    Tapiz propia = aplicacion.Preferencias;
    propia.Imagen = TextoDeCamino(Usuario("Tapices/mía.jpg"));
    propia.Ajustar = true;
    EscribirArchivo(Usuario("Tapices/mía.jpg"), "x");
    GuardarTapiz(ArchivoTapiz(carpetas), propia);
    Arrancar();
    EXPECT_TRUE(aplicacion.Preferencias.Ajustar);
    std::filesystem::remove(Usuario("Tapices/mía.jpg"));
    Arrancar();
    EXPECT_FALSE(aplicacion.Preferencias.Ajustar);
    EXPECT_EQ(aplicacion.Preferencias.Imagen, TextoDeCamino(Usuario("Tapices/TapizTBX.jpg")));
}

struct VistaReparacion : PantallaCompactar {
    void MostrarProgreso(bool visible) override { Progreso = visible; }
    void Avanzar(double porcentaje, const std::string& rotulo) override {
        Avance = porcentaje;
        Rotulos.push_back(rotulo);
    }
    void PunteroDeEspera(bool espera) override { Espera = espera; }
    void RefrescarLista() override { ++Refrescos; }
    void Cerrar() override { Cerrada = true; }
    bool Progreso = false, Espera = false, Cerrada = false;
    double Avance = 0;
    int Refrescos = 0;
    std::vector<std::string> Rotulos;
};

TEST_F(Arranque, RepararRehaceCadaArchivoElegido) {
    Arrancar();
    const auto proyectos = Usuario("Proyectos");
    for (const char* nombre : {"b.los", "Á.LOS"}) {
        ASSERT_TRUE(CrearBaseDatos(proyectos / nombre, EsquemaDeProyecto()));
        ProyectoAbierto proyecto;
        Abrir(proyecto, proyectos / nombre);
        ASSERT_TRUE(AgregarLosa(proyecto, LosaContinua({4, 5}, 100)));
    }
    EscribirArchivo(Usuario("Temporales/resto.txt"), "x");
    EXPECT_EQ(ListarProyectos(proyectos),
              (std::vector<std::string>{"Á.LOS", "b.los", "Ejemplo Demostrativo.los"}));
    VistaReparacion pantalla;
    Compactar1 reparacion(aplicacion, servicios, pantalla);
    const auto reparar = [&](const std::vector<std::string>& elegidos) {
        pantalla.Cerrada = false;
        reparacion.Aceptar(proyectos, elegidos);
        return caja.Mensajes.back().Texto;
    };
    const auto losas = [&] {
        ProyectoAbierto proyecto;
        return Abrir(proyecto, proyectos / "b.los") ? proyecto.RegistrosProyecto.NumeroRegistros() : -1;
    };
    EXPECT_EQ(reparar({}), "No ha Seleccionado ningún Archivo...");
    EXPECT_EQ(caja.Mensajes.back().Titulo, "Reparar y Compactar Archivos");
    EXPECT_FALSE(pantalla.Cerrada);
    EXPECT_EQ(reparar({"Á.LOS", "b.los"}), "¡Se Repararon Y Compactaron ( 2 ) Archivos con Exito!");
    EXPECT_EQ(pantalla.Rotulos[0], "Archivo: Á.LOS");
    EXPECT_EQ(pantalla.Avance, 100);
    EXPECT_TRUE(pantalla.Cerrada);
    EXPECT_FALSE(pantalla.Espera || pantalla.Progreso || Existe(Usuario("Temporales/resto.txt")));
    EXPECT_EQ(losas(), 1);

    // A read-only file stops the run; what was done before stays done, and the file stays as it was.
    std::filesystem::permissions(proyectos / "b.los", std::filesystem::perms(0444));
    const std::string antes = LeerArchivo(proyectos / "b.los");
    EXPECT_EQ(reparar({"Á.LOS", "b.los"}), "Número de Error: 75\nError de acceso a la ruta o al archivo");
    EXPECT_EQ(caja.Mensajes.back().Encabezado, "¡Falló la Acción de Reparar Y Compactar el Archivo!");
    EXPECT_EQ(LeerArchivo(proyectos / "b.los"), antes);
    EXPECT_FALSE(pantalla.Cerrada);

    // Another running program has it open: it stays.
    std::filesystem::permissions(proyectos / "b.los", std::filesystem::perms(0644));
    {
        ProyectoAbierto proyecto;
        ASSERT_TRUE(Abrir(proyecto, proyectos / "b.los"));
        EXPECT_EQ(reparar({"b.los"}), "Número de Error: 70\nPermiso denegado");
        EXPECT_EQ(LeerArchivo(proyectos / "b.los"), antes);
    }

    // Of a damaged one the rest comes back, what was lost is told, and the trash has the file as it was.
    plataforma.HayPapelera = true;
    CrearBaseDatos(carpeta / "programa/Imagen/LosaImagen.tbx", EsquemaDeProyecto());
    std::string bytes = antes;
    std::fill_n(bytes.begin(), 4096, '\0');  // with it the catalogue
    EscribirArchivo(proyectos / "b.los", bytes);
    EXPECT_EQ(
        reparar({"b.los"}),
        "Archivo: B.LOS\nEstaba Dañado: se Salvaron 6 Filas y se Perdieron 0 Filas y 1 Páginas de Filas");
    EXPECT_EQ(caja.Mensajes[caja.Mensajes.size() - 2].Texto,
              "¡Se Repararon Y Compactaron ( 1 ) Archivos con Exito!");
    EXPECT_EQ(LeerArchivo(carpeta / "Papelera/b.los"), bytes);
    EXPECT_EQ(losas(), 1);
    plataforma.HayPapelera = false;

    // What is no database: the engine's box, then the failure of the copy.
    caja.Mensajes.clear();
    EXPECT_EQ(reparar({"Ejemplo Demostrativo.los"}), "Número de Error: 53\nNo se encontró el archivo");
    ASSERT_EQ(caja.Mensajes.size(), 2U);
    EXPECT_EQ(caja.Mensajes[0].Titulo, "Error Inesperado");
}

TEST(CajaMensajes, Medidas) {
    EXPECT_EQ(AnchoCaja(BotonesCaja::Aceptar, 100, 100), 3900);
    EXPECT_EQ(AnchoCaja(BotonesCaja::SiNo, 5000, 100), 5200);
    EXPECT_EQ(AnchoCaja(BotonesCaja::SiNoCancelar, 100, 20000), 10850);
}

}  // namespace
}  // namespace trabex::prueba
