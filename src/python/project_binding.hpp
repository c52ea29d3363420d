#pragma once

#include <pybind11/pybind11.h>

namespace korven::python {

/// The class `Dati`: the data of a project.
void legaDati(pybind11::module_& modulo);

}  // namespace korven::python
