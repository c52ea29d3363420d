#pragma once

#include <stdexcept>

namespace korven::base {

/// A value that is not finite is to be written: the data of a project lead to numbers beyond what
/// the program can show. Caught once, in `main`, which tells the user and ends like a refused run.
class ErroreValore : public std::range_error {
 public:
    /// The text says what is wrong, in the language in force.
    ErroreValore();
};

}  // namespace korven::base
