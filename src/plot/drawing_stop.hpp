#pragma once

#include <stdexcept>

namespace korven::plot {

/// A drawing was given up because its user asked for it. Caught in `main` alone; the drawing in the
/// store is then not to be shown.
class DisegnoInterrotto : public std::runtime_error {
 public:
    /// The text says so, in the language in force.
    DisegnoInterrotto();
};

}  // namespace korven::plot
