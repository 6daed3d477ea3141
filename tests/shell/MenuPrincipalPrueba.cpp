#include <gtest/gtest.h>

#include "base/Archivos.h"
#include "shell/Arranque.h"
#include "shell/MenuPrincipal.h"
#include "shell/Respaldos.h"
#include "store/antiguo/Convertir.h"
#include "store/antiguo/EscribirJet.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"

namespace trabex::prueba {
namespace {

struct PantallaGuiada : PantallaMenuPrincipal {
    void PonerTitulo(const std::string& titulo) override { Titulo = titulo; }
    void PonerRevision(const std::string& texto) override { Revision = texto; }
    void HabilitarSalvarComo(bool habilitado) override { SalvarComo = habilitado; }
    void PunteroDeEspera(bool espera) override { Espera = espera; }
    void PonerTapiz(const Tapiz&) override {}
    void Repintar() override {}
    void RecordarProyecto(const std::filesystem::path& archivo) override { Recordado = archivo; }
    void Cerrar() override { Cerrada = true; }
    void MostrarDatosProyecto() override { Mostradas.push_back("DatosProyecto"); }
    void MostrarConfiguracion() override { Mostradas.push_back("Configuracion"); }
    void MostrarReparacion() override { Mostradas.push_back("Reparacion"); }
    void MostrarSobre() override { Mostradas.push_back("Sobre"); }
    void MostrarEspacio(std::string_view clave) override { Mostradas.emplace_back(clave); }
    std::string Titulo, Revision;
    bool SalvarComo = true, Espera = true, Cerrada = false;
    std::vector<std::string> Mostradas;
    std::filesystem::path Recordado;
};

class Menu_ : public testing::Test, protected Maquina {
  protected:
    Menu_() {
        CrearBaseDatos(Plantilla(), EsquemaDeProyecto());
        PrepararArranque(plataforma, carpetas, aplicacion);
        menu.Iniciar();
    }
    std::filesystem::path Plantilla() const { return carpeta / "programa" / "Imagen" / "LosaImagen.tbx"; }

    PantallaGuiada pantalla;
    MenuPrincipal menu{aplicacion, servicios, pantalla};
};

TEST_F(Menu_, Empieza) {
    EXPECT_EQ(pantalla.Titulo + pantalla.Revision, "Trabex 2024   Proyecto:[]Revisión del Programa: 24.0.0");
    EXPECT_FALSE(pantalla.SalvarComo || pantalla.Espera);
    EXPECT_EQ(aplicacion.SeparadoresLocales.Miles, ".");
    EXPECT_EQ(LeerSeparadores("1 234.56").Decimal, ".");
    EXPECT_EQ(LeerSeparadores("1234.56").Decimal, ",");
}

TEST_F(Menu_, LoQueNoSePuedeAbrirSeDice) {
    for (const char* clave : {"ID_Temas", "ID_Manual"}) {
        caja.Mensajes.clear();
        menu.Ejecutar(clave);
        ASSERT_EQ(caja.Mensajes.size(), 1U) << clave;
        EXPECT_EQ(caja.Mensajes[0].Texto, "Error Número: 53\nNo se encontró el archivo");
    }
    std::filesystem::remove_all(carpetas.Proyectos());
    menu.Ejecutar("ID_Explorador");
    EXPECT_EQ(caja.Mensajes.back().Texto, "Error Número: 76\nNo se encontró la ruta de acceso");
    EXPECT_TRUE(plataforma.Abiertos.empty());
    menu.AbrirDeFuera(carpeta / "no hay.los");
    EXPECT_EQ(caja.Mensajes.back().Encabezado, "Abrir un Proyecto Existente...");
    EXPECT_EQ(pantalla.Titulo, "Trabex 2024   Proyecto:[]");
    EscribirArchivo(carpeta / "hay.los", "");
    menu.AbrirDeFuera(carpeta / "hay.los");
    EXPECT_EQ(pantalla.Titulo, "Trabex 2024   Proyecto:[hay.los]");
    EXPECT_EQ(pantalla.Recordado, carpeta / "hay.los");
    EXPECT_TRUE(pantalla.SalvarComo);
}

std::vector<std::filesystem::path> EnOrden(std::vector<std::filesystem::path> archivos) {
    std::sort(archivos.begin(), archivos.end());
    return archivos;
}

/// Of each project the last ones stay, and one comes back over what was there, which is kept in its turn.
TEST_F(Menu_, LosRespaldosSeGuardanYVuelven) {
    const auto obra = carpetas.Proyectos() / "Obra Ñ 2024.los";
    EscribirArchivo(obra, "de hoy");
    std::filesystem::create_directory(carpetas.Respaldos());
    for (int i = 10; i < 35; ++i)
        EscribirArchivo(carpetas.Respaldos() /
                            CaminoDeTexto("Obra Ñ 2024 2020-01-" + std::to_string(i) + " 10.15.30.los"),
                        std::to_string(i));
    EscribirArchivo(carpetas.Respaldos() / "otra 2020-01-01 10.15.30.los", "");
    Respaldar(aplicacion.Respaldos, obra);
    auto quedan = EnOrden(ArchivosDe(carpetas.Respaldos()));
    ASSERT_EQ(quedan.size(), RespaldosQueQuedan + 1);
    EXPECT_EQ(LeerArchivo(quedan[0]), "16");
    EXPECT_EQ(LeerArchivo(quedan[RespaldosQueQuedan - 1]), "de hoy");
    EXPECT_EQ(NombreRespaldado(quedan[0]), "Obra Ñ 2024.los");

    dialogos.Elegidos = {quedan[0], obra};
    menu.Ejecutar("ID_Restaurar");
    EXPECT_EQ(dialogos.Peticiones[0].Titulo, "Restaurar un Respaldo");
    EXPECT_EQ(dialogos.Peticiones[1].Nombre, "Obra Ñ 2024.los");
    EXPECT_TRUE(dialogos.Peticiones[1].AvisarReemplazo);
    EXPECT_EQ(LeerArchivo(obra), "16");
    EXPECT_EQ(LeerArchivo(EnOrden(ArchivosDe(carpetas.Respaldos()))[RespaldosQueQuedan - 1]), "de hoy");
    EXPECT_EQ(pantalla.Titulo, "Trabex 2024   Proyecto:[Obra Ñ 2024.los]");
    EXPECT_TRUE(ArchivosDe(carpetas.CaminoTemporales).empty());
}

TEST_F(Menu_, ElPrimerCambioDelDiaDejaUnRespaldoDeAntes) {
    aplicacion.ArchivoProyecto = carpetas.Proyectos() / "obra.los";
    CopiarArchivo(Plantilla(), aplicacion.ArchivoProyecto);
    Conexion conexion;
    for (int vez = 0; vez < 2; ++vez) {
        ConectarProyecto(aplicacion, conexion);
        Recordset lista;
        AbrirRecordset(conexion, lista, "SELECT * FROM LosaDatos");
        EXPECT_EQ(ArchivosDe(carpetas.Respaldos()).size(), vez == 0 ? 0U : 1U);
        EXPECT_TRUE(conexion.Ejecutar("DELETE * FROM LosaG"));
        EXPECT_TRUE(conexion.Ejecutar("DELETE * FROM Proyecto"));
    }
    const auto respaldos = ArchivosDe(carpetas.Respaldos());
    ASSERT_EQ(respaldos.size(), 1U);
    EXPECT_EQ(LeerArchivo(respaldos[0]), LeerArchivo(Plantilla()));
}

TEST_F(Menu_, NuevoSobreUnoExistenteReemplazaSeRespondaLoQueSeResponda) {
    const auto archivo = carpetas.Proyectos() / "Año Ñ 1.los";
    for (const std::int16_t respuesta : {RespuestaSi, RespuestaAceptarONo}) {
        EscribirArchivo(archivo, "lo que había");
        caja.Mensajes.clear();
        caja.Respuestas = {RespuestaCancelar, respuesta};  // 2 alone comes back to the dialog
        dialogos.Elegidos = {archivo, archivo};
        pantalla.Mostradas.clear();
        menu.Ejecutar("ID_Nuevo");
        ASSERT_EQ(caja.Mensajes.size(), 2U);
        EXPECT_EQ(caja.Dicho(),
                  "Proyecto: Año Ñ 1.los\n¿Esta Seguro de Reemplazar el Proyecto Existente?|Crear un Nuevo "
                  "Proyecto...");
        EXPECT_EQ(LeerArchivo(archivo), LeerArchivo(Plantilla()));
        EXPECT_EQ(pantalla.Mostradas, std::vector<std::string>{"DatosProyecto"});
        EXPECT_TRUE(pantalla.SalvarComo);
        EXPECT_EQ(pantalla.Titulo, "Trabex 2024   Proyecto:[Año Ñ 1.los]");
    }
    EXPECT_TRUE(dialogos.Peticiones[0].AvisarReemplazo);
}

TEST_F(Menu_, SinPlantillaElNuevoFallaConSuCodigo) {
    const auto archivo = carpetas.Proyectos() / "obra.los";
    EscribirArchivo(archivo, "viejo");
    std::filesystem::remove(Plantilla());
    dialogos.Elegidos = {archivo};
    menu.Ejecutar("ID_Nuevo");
    EXPECT_EQ(caja.Dicho(), "Error Número: 53\nNo se encontró el archivo|Error Inesperado...");
    EXPECT_FALSE(std::filesystem::exists(archivo));
    EXPECT_EQ(pantalla.Titulo, "Trabex 2024   Proyecto:[obra.los]");
    EXPECT_TRUE(pantalla.Mostradas.empty());
    EXPECT_FALSE(pantalla.Espera);
    dialogos.Elegidos = {carpeta / "no hay" / "x.los"};
    CrearBaseDatos(Plantilla(), EsquemaDeProyecto());
    menu.Ejecutar("ID_Nuevo");
    EXPECT_EQ(caja.Mensajes.back().Texto, "Error Número: 76\nNo se encontró la ruta de acceso");
}

TEST_F(Menu_, SalvarComoNuncaPisaUnArchivo) {
    const auto proyectos = carpetas.Proyectos();
    EscribirArchivo(proyectos / "Obra Ñ.los", "mío");
    EscribirArchivo(proyectos / "otra.los", "ajeno");
    std::filesystem::create_symlink(proyectos / "Obra Ñ.los", proyectos / "enlace.los");
    dialogos.Elegidos = {proyectos / "Obra Ñ.los"};
    menu.Ejecutar("ID_Abrir");
    EXPECT_EQ(dialogos.Peticiones.back().Filtro, "Archivos de Proyectos (.losa)|*.los");

    caja.Respuestas = {0, RespuestaSi, RespuestaSi};
    dialogos.Elegidos = {proyectos / "OBRA ñ.los", proyectos / "otra.los", proyectos / "enlace.los",
                         proyectos / "copia.los"};
    menu.Ejecutar("ID_SalvarComo");
    ASSERT_EQ(caja.Mensajes.size(), 3U);
    EXPECT_EQ(caja.Mensajes[0].Texto,
              "Proyecto: OBRA ñ.los\n!No se puede Salvar el Proyecto con el mismo Nombre!");
    EXPECT_EQ(caja.Mensajes[1].Texto, "El Proyecto: otra.los  Ya Existe...\n¿Desea Usted Reemplazarlo?");
    EXPECT_EQ(LeerArchivo(proyectos / "otra.los"), "ajeno");
    EXPECT_EQ(LeerArchivo(proyectos / "Obra Ñ.los"), "mío");
    EXPECT_EQ(LeerArchivo(proyectos / "copia.los"), "mío");
    EXPECT_EQ(aplicacion.ArchivoProyecto, proyectos / "copia.los");

    std::filesystem::remove(proyectos / "copia.los");
    dialogos.Elegidos = {proyectos / "última.los"};
    menu.Ejecutar("ID_SalvarComo");
    EXPECT_EQ(caja.Mensajes.back().Texto, "Error Número: 53\nNo se encontró el archivo");
    EXPECT_EQ(aplicacion.NombreProyecto, "copia.los");
}

/// Leaves at `camino` the project and the journal of a process that died in the middle of a save: half of the
/// new rows are in the file, and what takes them back stands beside it.
void CortarGuardado(const std::filesystem::path& camino) {
    const std::filesystem::path vivo = std::filesystem::path(camino) += ".vivo";
    ASSERT_TRUE(CrearBaseDatos(vivo, EsquemaDeProyecto()));
    ProyectoAbierto proyecto;
    ASSERT_TRUE(Abrir(proyecto, vivo));
    Losa losa = LosaUniforme(3, 4, 100);
    losa.Nombre = "L-1";
    ASSERT_TRUE(AgregarLosa(proyecto, losa));
    proyecto.ConexionProyecto.Ejecutar("PRAGMA cache_size=1");  // pages reach the file before the end
    const Transaccion guardado(proyecto.ConexionProyecto);
    losa = LosaUniforme(2000, 5, 200);
    losa.Nombre = "L-1";
    EscribirElementos(proyecto.ConexionProyecto, losa.Nombre, losa);
    std::filesystem::copy_file(vivo, camino);
    std::filesystem::copy_file(std::filesystem::path(vivo) += "-journal",
                               std::filesystem::path(camino) += "-journal");
}

TEST_F(Menu_, UnGuardadoCortadoNoPasaALaCopiaNiAlQueLoReemplaza) {
    const auto proyectos = carpetas.Proyectos();
    CortarGuardado(proyectos / "obra.los");
    dialogos.Elegidos = {proyectos / "obra.los", proyectos / "copia.los"};
    menu.Ejecutar("ID_Abrir");
    menu.Ejecutar("ID_SalvarComo");
    ProyectoAbierto proyecto;
    ASSERT_TRUE(Abrir(proyecto, proyectos / "copia.los"));
    Losa losa;
    LeerLosa(proyecto, losa);
    EXPECT_EQ(losa.Tramos.size(), 4U);

    CortarGuardado(proyectos / "otra.los");
    dialogos.Elegidos = {proyectos / "otra.los"};
    menu.Ejecutar("ID_Nuevo");
    ASSERT_TRUE(Abrir(proyecto, proyectos / "otra.los"));
    EXPECT_EQ(proyecto.RegistrosProyecto.NumeroRegistros(), 0);
    EXPECT_EQ(LeerArchivo(proyectos / "otra.los"), LeerArchivo(Plantilla()));
}

/// A log that stands beside the place of a new file is another's; a project that another program has open
/// stays.
TEST_F(Menu_, NiElDiarioAjenoNiElAbiertoPorOtro) {
    const auto proyectos = carpetas.Proyectos();
    EscribirArchivo(proyectos / "obra.los-wal", std::string(5000, 'x'));
    dialogos.Elegidos = {proyectos / "obra.los"};
    menu.Ejecutar("ID_Nuevo");
    EXPECT_FALSE(std::filesystem::exists(proyectos / "obra.los-wal"));
    ProyectoAbierto otro;
    ASSERT_TRUE(Abrir(otro, proyectos / "obra.los"));
    ASSERT_TRUE(AgregarLosa(otro, LosaContinua({4}, 100)));
    dialogos.Elegidos = {proyectos / "obra.los"};
    menu.Ejecutar("ID_Nuevo");
    EXPECT_EQ(caja.Mensajes.back().Texto, "Error Número: 70\nPermiso denegado");
    EXPECT_EQ(otro.RegistrosProyecto.NumeroRegistros(), 1);
    ASSERT_TRUE(Abrir(otro, proyectos / "obra.los"));
    EXPECT_EQ(otro.RegistrosProyecto.NumeroRegistros(), 1);
}

TEST_F(Menu_, LosComandosDeUnProyectoPrimeroLoAbren) {
    for (const std::string clave :
         {"ID_LosasD", "ID_Marcus", "ID_CargaP", "ID_Tijera", "ID_EscaleraH", "ID_Modificar"}) {
        aplicacion.NombreProyecto = "  ";
        pantalla.Mostradas.clear();
        menu.Ejecutar(clave);  // the dialog is cancelled
        EXPECT_TRUE(pantalla.Mostradas.empty()) << clave;
        EXPECT_EQ(dialogos.Peticiones.back().Titulo, "Abrir un Proyecto Existente");
        dialogos.Elegidos = {carpeta / "x.los"};
        menu.Ejecutar(clave);
        EXPECT_EQ(pantalla.Mostradas, std::vector{clave == "ID_Modificar" ? "DatosProyecto" : clave});
        EXPECT_FALSE(pantalla.Espera);
    }
    aplicacion.NombreProyecto.clear();
    menu.Ejecutar("ID_Carga");
    EXPECT_EQ(pantalla.Mostradas.back(), "ID_Carga");
    menu.Ejecutar("ID_Normas");  // known to the menu, dispatched by none
    menu.Ejecutar("ID_Explorador");
    EXPECT_EQ(plataforma.Abiertos.back(), carpetas.Proyectos());
    menu.Ejecutar("ID_Salida");
    EXPECT_TRUE(pantalla.Cerrada);
}

TEST_F(Menu_, UnProyectoDelFormatoAnteriorSeConvierteSiSeQuiere) {
    const std::filesystem::path programa = Programa();
    std::filesystem::create_symlink(programa / "trabex-jet", carpeta / "programa" / "trabex-jet");
    const auto viejo = carpeta / "obra.los", apartado = carpeta / "obra (formato anterior).los";
    almacen::antiguo::EscribirJet(programa / "Imagen" / "Ejemplo Demostrativo.tbx", viejo);
    const std::string antes = LeerArchivo(viejo);
    const auto abrir = [&](std::int16_t respuesta) {
        dialogos.Elegidos = {viejo};
        caja.Respuestas = {respuesta};
        menu.Ejecutar("ID_Abrir");
    };
    abrir(RespuestaAceptarONo);
    EXPECT_TRUE(caja.Mensajes.back().Texto.find("obra (formato anterior).los") != std::string::npos);
    EXPECT_EQ(LeerArchivo(viejo), antes);
    EXPECT_EQ(aplicacion.NombreProyecto, "");

    EscribirArchivo(apartado, "de otro día");
    abrir(RespuestaSi);
    EXPECT_EQ(aplicacion.ArchivoProyecto, viejo);
    EXPECT_EQ(LeerArchivo(carpeta / "obra (formato anterior 2).los"), antes);
    EXPECT_EQ(LeerArchivo(apartado), "de otro día");
    Conexion conexion;
    AbrirConexion(conexion, viejo);
    Recordset losas;
    AbrirRecordset(conexion, losas, "LosaDatos");
    EXPECT_GT(losas.NumeroRegistros(), 5);

    EscribirArchivo(viejo, antes.substr(0, 20000));
    abrir(RespuestaSi);
    EXPECT_EQ(caja.Mensajes.back().Icono, IconoCaja::Advertencia);
    EXPECT_EQ(LeerArchivo(viejo), antes.substr(0, 20000));

    // The list that projects share has no engineer to ask.
    almacen::antiguo::EscribirJet(programa / "Imagen" / "AnalisisCarga.tbx", carpetas.AnalisisCarga());
    CopiarArchivo(programa / "Imagen" / "AnalisisCarga.tbx",
                  carpeta / "programa" / "Imagen" / "AnalisisCarga.tbx");
    PrepararArranque(plataforma, carpetas, aplicacion);
    EXPECT_FALSE(almacen::antiguo::EsBaseAntigua(carpetas.AnalisisCarga()));
    EXPECT_TRUE(Existe(carpetas.Proyectos() / "AnalisisCarga (formato anterior).mdb"));
}

}  // namespace
}  // namespace trabex::prueba
