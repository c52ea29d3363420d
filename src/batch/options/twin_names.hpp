#pragma once

#include <string>
#include <string_view>

namespace korven::batch {

/// The two names of something that is typed on the command line or that a command gives to a file.
/// What is typed is understood by either of them in every language.
struct Gemelli {
    std::string italiano, inglese;

    /// The one that help, messages and file names show: the Italian one in Italian, the English one
    /// in every other language.
    [[nodiscard]] const std::string& mostrato() const;
    /// The other one.
    [[nodiscard]] const std::string& taciuto() const;
    /// True for either of them.
    [[nodiscard]] bool comprende(std::string_view parola) const {
        return parola == italiano || parola == inglese;
    }
};

/// A name that is the same in both: a sign, a word of a format, somebody's name.
[[nodiscard]] inline Gemelli uguali(const std::string& nome) { return {nome, nome}; }

}  // namespace korven::batch
