#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace korven::base {

/// A text with its values: %1 to %9 are replaced by the first to the ninth, so that a translation
/// may put them in another order. A sign without a value stays as it is.
[[nodiscard]] std::string riempito(std::string_view testo, std::span<const std::string> valori);
[[nodiscard]] inline std::string riempito(std::string_view testo,
                                          std::initializer_list<std::string> valori) {
    return riempito(testo, std::span(valori.begin(), valori.size()));
}

}  // namespace korven::base
