#pragma once

#include <pybind11/pybind11.h>

namespace korven::python {

/// The function `serie`: a plan as a text in, names, words, a table of
/// numbers and the marks of what fails out.
void legaSerie(pybind11::module_& modulo);

}  // namespace korven::python
