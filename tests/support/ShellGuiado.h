#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"
#include "support/CarpetaTemporal.h"

namespace trabex::prueba {

using namespace programa;

/// Answers the message box from a script and keeps what was asked; past the script it answers 0.
class CajaGuiada : public CajaMensajes {
  public:
    std::int16_t Mostrar(const Mensaje& mensaje) override {
        Mensajes.push_back(mensaje);
        if (Respuestas.empty()) return RespuestaAceptarONo;
        const std::int16_t respuesta = Respuestas.front();
        Respuestas.pop_front();
        return respuesta;
    }
    /// Text and heading of the last message, parted by a bar.
    std::string Dicho() const {
        return Mensajes.empty() ? "" : Mensajes.back().Texto + "|" + Mensajes.back().Encabezado;
    }
    std::vector<Mensaje> Mensajes;
    std::deque<std::int16_t> Respuestas;
};

/// Chooses files from a script; past it the user cancels.
class DialogosGuiados : public DialogosArchivo {
  public:
    std::optional<std::filesystem::path> Elegir(const PeticionArchivo& peticion) override {
        Peticiones.push_back(peticion);
        if (Elegidos.empty()) return std::nullopt;
        const auto elegido = Elegidos.front();
        Elegidos.pop_front();
        return elegido;
    }
    std::vector<PeticionArchivo> Peticiones;
    std::deque<std::filesystem::path> Elegidos;
};

/// A machine whose folders are all below one.
class PlataformaGuiada : public Plataforma {
  public:
    explicit PlataformaGuiada(std::filesystem::path raiz) : raiz_(std::move(raiz)) {
        std::filesystem::create_directories(raiz_ / "programa" / "Imagen");
        std::filesystem::create_directories(raiz_ / "Documentos");
    }
    std::filesystem::path CarpetaDelPrograma() const override { return raiz_ / "programa"; }
    std::filesystem::path CarpetaDeDocumentos() const override { return raiz_ / "Documentos"; }
    std::optional<std::filesystem::path> RaizComun() const override { return raiz_ / "C"; }
    std::string NombreDelUsuario() const override { return "ING. NÚÑEZ"; }
    std::string NumeroDeMuestra() const override { return "1.234,56"; }
    bool AbrirArchivo(const std::filesystem::path& archivo) override {
        Abiertos.push_back(archivo);
        return true;
    }
    bool AbrirCarpeta(const std::filesystem::path& carpeta) override { return AbrirArchivo(carpeta); }
    bool InformacionDelSistema() override { return true; }
    bool LlevarAPapelera(const std::filesystem::path& archivo) override {
        if (!HayPapelera) return false;
        std::filesystem::create_directories(raiz_ / "Papelera");
        std::filesystem::rename(archivo, raiz_ / "Papelera" / archivo.filename());
        return true;
    }
    bool HayPapelera = false;

    std::vector<std::filesystem::path> Abiertos;

  private:
    std::filesystem::path raiz_;
};

/// A program on such a machine, whose folder goes with it.
struct Maquina {
    CarpetaTemporal carpeta;
    CajaGuiada caja;
    DialogosGuiados dialogos;
    PlataformaGuiada plataforma{carpeta.Camino()};
    Carpetas carpetas;
    Servicios servicios{caja, dialogos, plataforma, carpetas};
    Aplicacion aplicacion;
};

}  // namespace trabex::prueba
