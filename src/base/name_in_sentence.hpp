#pragma once

#include <string>

namespace korven::base {

/// A name that begins a line, as it stands within a sentence of the language in force: with a small
/// letter, but as it is in German, whose nouns have capitals everywhere.
[[nodiscard]] std::string nellaFrase(const std::string& nome);

}  // namespace korven::base
