#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include "base/Relato.h"

namespace trabex {

/// The fence between arithmetic and the processor's floating-point flags.
///
/// No compiler promises to leave arithmetic on its side of a flag that is read. So flags are cleared and read
/// in VigilanciaFlotante.cpp alone, around a call that goes through a pointer no compiler can follow: what
/// the task computes and stores is done when the call returns, and nothing of its caller's can slip in
/// between.
namespace vigilancia {

using Tarea = void (*)(void*);

/// Runs tarea(datos) with the flags down, puts them back as they were, and tells whether a fault or an
/// ErrorEjecucion came of it.
bool HuboError(Tarea tarea, void* datos);

/// Runs tarea(datos) with the flags down, puts them back as they were, and throws as Vigilar does when a
/// fault arose.
void CorrerVigilada(Tarea tarea, void* datos);

template <class F>
void Llamar(void* f) {
    (*static_cast<F*>(f))();
}

}  // namespace vigilancia

/// The steps of a calculation, as Vigilar hands them to it: run straight through, or each looked at. Or told
/// to who wants to read them.
class Pasos {
  public:
    Pasos() = default;
    explicit Pasos(bool vigilados) : vigilados_(vigilados) {}
    /// Run straight through, and told.
    explicit Pasos(Relato& relato) : relato_(&relato) {}

    /// Whether somebody listens. Asked before Contar, it saves putting together what nobody hears: that
    /// would double the time of a section's steel.
    bool SeCuentan() const {
        if (relato_ == nullptr) [[likely]]
            return false;
        return true;
    }

    /// Tells a step, where somebody listens: see Relatar.
    void Contar(const char* simbolo, const char* formula, std::initializer_list<Cantidad> cantidades,
                double valor, const char* unidad) const {
        if (relato_ != nullptr) Relatar(*relato_, simbolo, formula, cantidades, valor, unidad);
    }

    /// Whether each step is looked at.
    bool Vigilados() const { return vigilados_; }

    /// What `paso` returns. When the steps are looked at, throws instead where a fault arose in it, so that
    /// registro.Campo = pasos([&] { return …; }) stores nothing that is faulty.
    template <class Paso>
    std::invoke_result_t<Paso&> operator()(Paso paso) const {
        if (!vigilados_) return paso();
        using Devuelto = std::invoke_result_t<Paso&>;
        if constexpr (std::is_void_v<Devuelto>) {
            vigilancia::CorrerVigilada(&vigilancia::Llamar<Paso>, &paso);
        } else {
            std::optional<Devuelto> valor;
            auto tarea = [&] { valor.emplace(paso()); };
            vigilancia::CorrerVigilada(&vigilancia::Llamar<decltype(tarea)>, &tarea);
            return *std::move(valor);
        }
    }

  private:
    bool vigilados_ = false;
    Relato* relato_ = nullptr;
};

/// Runs calculo(pasos) with division by zero, overflow and invalid operation as run-time errors: throws
/// ErrorEjecucion 11, 6 or 5 for the first one to arise. What was stored before it stays; the step that it
/// arose in stores nothing, and no later one is run.
///
/// Reading the flags halts the processor's pipeline, so the calculation runs straight through and they are
/// read once; only when a fault or another ErrorEjecucion shows is it run again, each step looked at. Hence
/// its duties: run again, it begins with emptying all that it fills; run straight through, it ends whatever
/// its numbers are. All its arithmetic belongs in steps, one for each record or field that is stored; of two
/// faults in one step, division by zero goes before overflow, and that before an invalid operation, which may
/// follow from them.
template <class Calculo>
void Vigilar(Calculo calculo) {
    auto deCorrido = [&] { calculo(Pasos(false)); };
    if (!vigilancia::HuboError(&vigilancia::Llamar<decltype(deCorrido)>, &deCorrido)) return;
    auto pasoAPaso = [&] { calculo(Pasos(true)); };
    vigilancia::CorrerVigilada(&vigilancia::Llamar<decltype(pasoAPaso)>, &pasoAPaso);
}

}  // namespace trabex
