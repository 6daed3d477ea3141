#include "store/Comparacion.h"

#include <algorithm>

#include <unicode/coll.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace trabex::almacen {

struct Comparador::Interna {
    std::unique_ptr<icu::Collator> cotejo;
    const icu::Normalizer2* composicion = nullptr;
};

namespace {

icu::StringPiece Trozo(std::string_view texto) {
    return {texto.data(), static_cast<std::int32_t>(texto.size())};
}

}  // namespace

Comparador::Comparador() : interna_(std::make_unique<Interna>()) {
    UErrorCode estado = U_ZERO_ERROR;
    interna_->cotejo.reset(icu::Collator::createInstance(icu::Locale("es"), estado));
    interna_->cotejo->setStrength(icu::Collator::SECONDARY);
    interna_->composicion = icu::Normalizer2::getNFCInstance(estado);
}

Comparador::~Comparador() = default;

int Comparador::Comparar(std::string_view a, std::string_view b) const {
    if (a == b) return 0;
    UErrorCode estado = U_ZERO_ERROR;
    const UCollationResult orden = interna_->cotejo->compareUTF8(Trozo(a), Trozo(b), estado);
    if (orden != UCOL_EQUAL) return orden == UCOL_LESS ? -1 : 1;
    // The collator also lets pass what is no letter's case, such as m² and m2: the folded texts decide. Their
    // bytes stand in the order of their code points.
    return Plegar(a).compare(Plegar(b));
}

std::string Comparador::Plegar(std::string_view texto) const {
    std::string plegado;
    if (std::all_of(texto.begin(), texto.end(), [](char c) { return static_cast<signed char>(c) >= 0; })) {
        for (const char c : texto) plegado += static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
        return plegado;
    }
    UErrorCode estado = U_ZERO_ERROR;
    icu::UnicodeString normal;
    interna_->composicion->normalize(icu::UnicodeString::fromUTF8(Trozo(texto)), normal, estado);
    return normal.foldCase().toUTF8String(plegado);
}

}  // namespace trabex::almacen
