#pragma once

#include <pybind11/pybind11.h>

#include <mutex>
#include <shared_mutex>

#include "python/language.hpp"

namespace korven::python {

/// Computes while other threads of Python run: they may compute too.
template <class Calcolo>
auto senzaInterprete(const Calcolo& calcolo) {
    const pybind11::gil_scoped_release libero;
    const std::shared_lock insieme(parole());
    return calcolo();
}

/// Works on what all calculations rely on, while none is under way.
template <class Lavoro>
auto daSolo(const Lavoro& lavoro) {
    const pybind11::gil_scoped_release libero;
    const std::unique_lock solo(parole());
    return lavoro();
}

}  // namespace korven::python
