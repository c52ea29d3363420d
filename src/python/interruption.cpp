#include "python/interruption.hpp"

#include <pybind11/pybind11.h>

namespace korven::python {

namespace py = pybind11;

// The error that the handler has set stays set in its thread until it is raised.
bool Interruzione::chiesta() {
    using namespace std::chrono_literals;
    const auto ora = std::chrono::steady_clock::now();
    if (chiesta_ || ora - guardata_ < 100ms) return chiesta_;
    guardata_ = ora;
    const py::gil_scoped_acquire chiuso;
    chiesta_ = PyErr_CheckSignals() != 0;
    return chiesta_;
}

void Interruzione::solleva() const {
    if (chiesta_) throw py::error_already_set();
}

}  // namespace korven::python
