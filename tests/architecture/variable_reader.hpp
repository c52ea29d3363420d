#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace korven::architecture {

/// A variable that lives as long as the process.
struct ProcessVariable {
    std::string name;
    bool changes = true;  ///< false for a constant
    bool operator==(const ProcessVariable&) const = default;
};

/// C++ source split into what matters here: comments and preprocessor lines are gone, literals are
/// one token "" each, names and numbers are whole, anything else is one character a token.
[[nodiscard]] std::vector<std::string> tokensOf(std::string_view source);

/// The variables of a source that live as long as the process, by how it is written: those outside
/// all functions and types, and what is declared `static` or `thread_local` inside. Declarations
/// with `extern` count where they are defined. A pointer is a constant when it can't point
/// elsewhere; what it points to is not looked at.
///
/// This is no compiler: a variable defined by a macro, or as `Type name(argument);` with an
/// argument that might as well be a type, is not seen.
[[nodiscard]] std::vector<ProcessVariable> processVariables(std::string_view source);

/// The functions outside all types in whose bodies one of these names stands, by their own names.
[[nodiscard]] std::set<std::string> functionsNaming(const std::vector<std::string>& tokens,
                                                    const std::set<std::string>& names);

}  // namespace korven::architecture
