#include "jet/TablaEnObra.h"

#include <algorithm>
#include <utility>

#include "jet/MapaDePaginas.h"
#include "jet/Texto.h"

namespace trabex::jet {

namespace {

/// They stand in every definition that the original engine writes, and no reader asks for them.
constexpr std::uint32_t SelloTabla = 1625, SelloIndice = 1923;
/// Marks of a column.
constexpr std::uint32_t Automatica = 0x04, AutomaticaGuid = 0x40;
constexpr std::size_t ColumnasDeIndice = 10;
constexpr std::size_t Cabecera = 8;
constexpr std::size_t LugarLargo = 8;

/// A definition as one text, before it is cut into pages.
class Texto {
  public:
    Texto& Byte(std::uint32_t valor) { return Entero(valor, 1); }
    Texto& Corto(std::size_t valor) { return Entero(static_cast<std::uint32_t>(valor), 2); }
    Texto& Largo(std::size_t valor) { return Entero(static_cast<std::uint32_t>(valor), 4); }
    Texto& Ceros(std::size_t cuantos) {
        todo_.append(cuantos, '\0');
        return *this;
    }
    Texto& Nombre(std::string_view nombre) {
        const std::string texto = ComoUtf16(nombre);
        Corto(texto.size());
        todo_ += texto;
        return *this;
    }
    std::string& Todo() { return todo_; }

  private:
    Texto& Entero(std::uint32_t valor, int bytes) {
        for (int i = 0; i < bytes; ++i) todo_ += static_cast<char>(valor >> 8 * i & 0xFF);
        return *this;
    }

    std::string todo_;
};

void Columnas(Texto& texto, const std::vector<Columna>& columnas) {
    std::size_t variable = 0, lugar = 0;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        const Columna& columna = columnas[i];
        const bool fija = EsFija(columna.De);
        texto.Byte(static_cast<std::uint32_t>(columna.De)).Largo(SelloTabla).Corto(i);
        texto.Corto(fija ? 0 : variable).Corto(i);
        if (columna.De == Tipo::Numerico)
            texto.Byte(columna.Precision).Byte(columna.Escala).Ceros(2);
        else
            texto.Corto(OrdenGeneral).Ceros(2);
        const bool comprime = columna.De == Tipo::Texto || columna.De == Tipo::Memo;
        const std::uint32_t automatica = columna.De == Tipo::Guid ? AutomaticaGuid : Automatica;
        texto.Byte((fija ? 3U : 2U) | (columna.Automatica ? automatica : 0))
            .Byte(comprime ? 1 : 0)
            .Ceros(4)
            .Corto(fija ? lugar : 0);
        if (columna.De == Tipo::Logico)
            texto.Corto(1);
        else if (fija)
            texto.Corto(BytesDe(columna.De));
        else
            texto.Corto(columna.De == Tipo::Texto ? std::size_t{2} * columna.Ancho : columna.Ancho);
        fija ? lugar += BytesDe(columna.De) : ++variable;
    }
    for (const Columna& columna : columnas) texto.Nombre(columna.Nombre);
}

}  // namespace

TablaEnObra::TablaEnObra(Paginas& paginas, std::uint32_t definicion, std::vector<Columna> columnas,
                         Clase clase, std::vector<Indice> indices)
    : paginas_(paginas),
      definicion_(definicion),
      columnas_(std::move(columnas)),
      clase_(clase),
      indices_(std::move(indices)),
      filas_(paginas, definicion),
      largos_(paginas) {}

void TablaEnObra::Numerar(Fila& fila) {
    for (std::size_t i = 0; i < columnas_.size() && i < fila.size(); ++i) {
        if (!columnas_[i].Automatica || columnas_[i].De != Tipo::Largo) continue;
        if (std::holds_alternative<std::monostate>(fila[i])) fila[i] = ultimo_ + 1;
        if (const auto* numero = std::get_if<std::int64_t>(&fila[i])) ultimo_ = std::max(ultimo_, *numero);
    }
}

void TablaEnObra::Agregar(Fila fila) {
    Numerar(fila);
    const Puntero donde = filas_.Agregar(CodificarFila(columnas_, fila, largos_));
    for (Indice& indice : indices_) indice.Entradas.emplace_back(ClaveDe(indice, fila), donde);
    ++cuantas_;
}

void TablaEnObra::Cerrar() {
    // Maps first: their own pages belong to no table.
    PaginasDeFilas mapas(paginas_, 0);
    const auto mapa = [&](const std::deque<std::uint32_t>& cuales) {
        return mapas.Agregar(MapaDePaginas(paginas_, cuales)).Numero();
    };
    const auto ultima = [](const std::deque<std::uint32_t>& cuales) {
        return cuales.empty() ? cuales : std::deque<std::uint32_t>{cuales.back()};
    };
    const std::uint32_t suyas = mapa(filas_.Numeros()), conSitio = mapa(ultima(filas_.Numeros()));

    Texto texto;
    texto.Byte(2)
        .Byte(1)
        .Corto(0)
        .Largo(0)
        .Largo(0)
        .Largo(SelloTabla)
        .Largo(cuantas_)
        .Largo(static_cast<std::uint32_t>(ultimo_))
        .Byte(1)
        .Ceros(15);
    texto.Byte(static_cast<std::uint32_t>(clase_)).Corto(columnas_.size());
    texto.Corto(static_cast<std::size_t>(std::count_if(
        columnas_.begin(), columnas_.end(), [](const Columna& columna) { return !EsFija(columna.De); })));
    texto.Corto(columnas_.size()).Largo(indices_.size()).Largo(indices_.size()).Largo(suyas).Largo(conSitio);
    for (const Indice& indice : indices_) texto.Largo(0).Largo(indice.Entradas.size()).Largo(0);
    Columnas(texto, columnas_);
    for (Indice& indice : indices_) {
        std::deque<std::uint32_t> paginas;
        const std::uint32_t raiz = EscribirArbol(paginas_, definicion_, indice, paginas);
        texto.Largo(SelloIndice);
        for (std::size_t i = 0; i < ColumnasDeIndice; ++i) {
            const bool hay = i < indice.Columnas.size();
            texto.Corto(hay ? indice.Columnas[i] : 0xFFFF).Byte(hay ? 1 : 0);
        }
        texto.Largo(mapa(paginas)).Largo(raiz).Byte(indice.Unico ? 1 : 0).Ceros(9);
    }
    for (std::size_t i = 0; i < indices_.size(); ++i)
        texto.Largo(SelloTabla).Largo(i).Largo(i).Byte(0).Largo(0xFFFFFFFF).Largo(0).Ceros(3).Ceros(4);
    for (const Indice& indice : indices_) texto.Nombre(indice.Nombre);
    for (std::size_t i = 0; i < columnas_.size(); ++i) {
        if (!EsLarga(columnas_[i].De)) continue;
        const std::deque<std::uint32_t>& largas = largos_.Numeros(i);
        texto.Corto(i).Largo(mapa(largas)).Largo(mapa(ultima(largas)));
    }
    texto.Corto(0xFFFF);

    // The first page holds the definition's own header; those that follow, one of their own before the text
    // goes on.
    std::string& todo = texto.Todo();
    Pagina& primera = paginas_[definicion_];
    primera.Bytes(0, std::string_view(todo).substr(0, TamanoPagina));
    primera.Largo(LugarLargo, static_cast<std::uint32_t>(todo.size()));
    std::uint32_t actual = definicion_;
    std::size_t ocupado = std::min(todo.size(), TamanoPagina);
    for (std::size_t desde = ocupado; desde < todo.size();) {
        const std::uint32_t siguiente = paginas_.Nueva();
        paginas_[actual].Largo(4, siguiente);
        paginas_[siguiente].Byte(0, 2);
        paginas_[siguiente].Byte(1, 1);
        const std::string_view trozo = std::string_view(todo).substr(desde, TamanoPagina - Cabecera);
        paginas_[siguiente].Bytes(Cabecera, trozo);
        desde += trozo.size();
        ocupado = Cabecera + trozo.size();
        actual = siguiente;
    }
    paginas_[actual].Corto(2, ocupado + Cabecera <= TamanoPagina ? TamanoPagina - ocupado - Cabecera : 0);
}

}  // namespace trabex::jet
