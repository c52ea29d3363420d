#pragma once

#include <string>
#include <string_view>

// The unit that a number is stored in and the one that people read and type. The factor of a
// conversion is written here and nowhere else.

namespace korven::project {

inline constexpr double kilonewton = 10;   ///< in a tonne-force, taken as exactly that
inline constexpr double millimetri = 10;   ///< in a centimetre
inline constexpr double centimetri = 100;  ///< in a metre

// The section is calculated in newtons and millimetres.
inline constexpr double millimetriMetro = millimetri * centimetri;    ///< in a metre
inline constexpr double newtonKilonewton = 1000;                      ///< in a kilonewton
inline constexpr double newton = newtonKilonewton * kilonewton;       ///< in a tonne-force
inline constexpr double newtonMillimetri = newton * millimetriMetro;  ///< in a t m
inline constexpr double newtonMillimetri2 = newtonMillimetri * millimetriMetro;  ///< in a t m2

/// t to kN, and with it t m to kN m, t/m2 to kN/m2, t/m3 to kN/m3.
[[nodiscard]] constexpr double inKilonewton(double tonnellate) { return tonnellate * kilonewton; }
/// cm to mm: lengths of the section.
[[nodiscard]] constexpr double inMillimetri(double cm) { return cm * millimetri; }
/// m to cm: displacements.
[[nodiscard]] constexpr double inCentimetri(double m) { return m * centimetri; }

struct Unita {
    std::string_view conservata;  ///< of the file and the calculations
    std::string_view mostrata;    ///< of editors, report and drawings; empty: none is shown
    double fattore = 1;           ///< the shown number over the stored one
};

/// The stored number as it is shown.
[[nodiscard]] constexpr double mostrato(const Unita& unita, double conservato) {
    return conservato * unita.fattore;
}

/// Places by which the decimal point of the stored number moves for the shown one.
[[nodiscard]] constexpr int posti(const Unita& unita) {
    int n = 0;
    for (double fattore = unita.fattore; fattore > 1; fattore /= 10) ++n;
    return n;
}

/// "[kN m]"; empty where no unit is shown.
[[nodiscard]] inline std::string traParentesi(const Unita& unita) {
    return unita.mostrata.empty() ? std::string() : '[' + std::string(unita.mostrata) + ']';
}

/// Caption and unit, as a table or a list is headed: "Momento [kN m]"; Italian key.
[[nodiscard]] inline std::string etichetta(std::string_view didascalia, const Unita& unita) {
    std::string testo(didascalia);
    if (!unita.mostrata.empty()) testo.append(" ").append(traParentesi(unita));
    return testo;
}

namespace unita {

inline constexpr Unita nessuna{"", ""};
inline constexpr Unita numero{"-", "-"};
/// The bars of a pile are counted through the factor of the lengths beside which they are typed: a
/// typed 8 is stored, and calculates, as 0.8.
inline constexpr Unita numeroBarre{"-", "-", millimetri};
inline constexpr Unita percento{"-", "%", 100};  ///< of a share of 1
inline constexpr Unita gradi{"°", "°"};
inline constexpr Unita metri{"m", "m"};
inline constexpr Unita spostamento{"m", "cm", centimetri};  ///< of the report and the drawings
/// Of windows, pictures, remarks and the tables that are no part of the report.
inline constexpr Unita spostamentoFine{"m", "mm", millimetriMetro};
inline constexpr Unita misura{"cm", "mm", millimetri};  ///< a length of the section
inline constexpr Unita tensione{"N/mm²", "N/mm²"};
inline constexpr Unita forza{"t", "kN", kilonewton};
inline constexpr Unita momento{"t m", "kN m", kilonewton};
inline constexpr Unita forzaAlMetro{"t/m", "kN/m", kilonewton};  ///< of wall, where it is told
inline constexpr Unita momentoAlMetro{"t m/m", "kN m/m", kilonewton};
inline constexpr Unita pressione{"t/m²", "kN/m²", kilonewton};
inline constexpr Unita peso{"t/m³", "kN/m³", kilonewton};
inline constexpr Unita pesoAcqua{"t/m³", "t/m³"};  ///< unlike the weights of the soil
inline constexpr Unita modulo{"t/m³", "kN/m³", kilonewton};
inline constexpr Unita rigidezza{"t/m", "kN/m", kilonewton};
inline constexpr Unita rigidezzaAlMetro{"t/m/m", "kN/m/m", kilonewton};  ///< of wall, where told
inline constexpr Unita rigidezzaFlessionale{"t m²", "kN m²", kilonewton};
inline constexpr Unita rigidezzaFlessionaleAlMetro{"t m²/m", "kN m²/m", kilonewton};

}  // namespace unita

}  // namespace korven::project
