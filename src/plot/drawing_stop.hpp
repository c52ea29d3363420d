#pragma once

#include <stdexcept>

namespace korven::plot {

/// A drawing was given up because its user asked for it. What is in the store may then be a part of
/// a drawing, which is not to be shown.
class DisegnoInterrotto : public std::runtime_error {
 public:
    /// The text says so, in the language in force.
    DisegnoInterrotto();
};

}  // namespace korven::plot
