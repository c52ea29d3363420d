#pragma once

#include <string>

namespace korven::report {

/// A sentence of the program with the symbols of its formulas as the formulas beside it print them:
/// "tan phi" becomes "tan φ", "alfa" or "alpha" "α", "Ngamma" "Nγ", "sqrt(" "√(". The texts of the
/// program have no such letters, since they are kept in a code page without them. For words of the
/// program alone: what a user typed stays as it is.
[[nodiscard]] std::string conLettereGreche(const std::string& frase);

}  // namespace korven::report
