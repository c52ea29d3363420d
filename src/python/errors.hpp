#pragma once

#include <stdexcept>

namespace korven::python {

/// A field or an argument that can't be what it is told to be; translated, a line each of what is
/// wrong.
class ErroreCampo : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A wall that a run refuses; translated.
class ErroreCalcolo : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace korven::python
