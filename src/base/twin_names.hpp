#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// The two names of something that is typed on the command line or that a made file is called by.
/// What is typed is understood by either of them in every language. Both point to texts of the
/// program, which outlive them.
struct Gemelli {
    std::string_view italiano, inglese;

    /// The one that help, messages and file names show: the Italian one in Italian, the English one
    /// in every other language.
    [[nodiscard]] std::string mostrato() const;
    /// The other one.
    [[nodiscard]] std::string taciuto() const;
    /// True for either of them.
    [[nodiscard]] constexpr bool comprende(std::string_view parola) const {
        return parola == italiano || parola == inglese;
    }
};

/// A name that is the same in both: a sign, a word of a format, somebody's name.
[[nodiscard]] constexpr Gemelli uguali(std::string_view nome) { return {nome, nome}; }

}  // namespace korven::base
