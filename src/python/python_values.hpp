#pragma once

#include <pybind11/pybind11.h>

#include <nlohmann/json_fwd.hpp>

namespace korven::python {

/// The same as objects of Python: None, bool, int, float, str, list and dict.
[[nodiscard]] pybind11::object inPython(const nlohmann::ordered_json& valore);

}  // namespace korven::python
