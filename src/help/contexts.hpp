#pragma once

#include <array>
#include <cstdint>

namespace korven::help {

inline constexpr int ultimaVoceGuida = 200;

// Entries of the forms that no menu item names but for the box, which About opens; those of the
// menu are in menu_tree.cpp.
inline constexpr int voceGrafica = 28;
inline constexpr int voceConfStampa = 29;
inline constexpr int voceTempCalc = 30;
inline constexpr int voceFinestraGuida = 31;
inline constexpr int voceInformazioni = 32;
inline constexpr int voceSelezling = 33;
inline constexpr int voceOsservazioni = 34;

/// The table of help contexts, entries 0 to 200: menu items and masks name an entry, the entry
/// holds the number under which the help files keep the page. Entry n is page n, so that a page can
/// be found from either side; entry 0 has no page of its own.
[[nodiscard]] constexpr std::array<std::int16_t, ultimaVoceGuida + 1> contestiGuida() {
    std::array<std::int16_t, ultimaVoceGuida + 1> tabella{};
    for (std::size_t i = 0; i < tabella.size(); ++i) tabella[i] = static_cast<std::int16_t>(i);
    return tabella;
}

/// Help context of an entry; 0 for one outside the table.
[[nodiscard]] constexpr int contestoGuida(int voce) {
    if (voce < 0 || voce > ultimaVoceGuida) return 0;
    return contestiGuida()[static_cast<std::size_t>(voce)];
}

}  // namespace korven::help
