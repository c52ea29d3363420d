#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The small calculator beside the table of anchors: what is typed about one anchor or strut, and
// what follows from it for the row, as texts.

namespace korven::panels {

/// What is calculated; it says which length counts.
enum class GenereAncoraggio {
    tirante,          ///< the free length and part of the bond
    puntone,          ///< against something that does not move: its whole length
    puntoneTraPareti  ///< between two walls alike, whose middle stays where it is: half of it
};

/// How the area of one strand, bar or profile is given.
enum class MisuraArea { area, diametro };

/// An input with a text, in the order of the calculator.
enum class VoceCalcolo { modulo, numero, misura, lunghezza, interasse, inclinazione, forza };
inline constexpr std::size_t numeroVoci = 7;

/// Moduli of elasticity that are proposed [N/mm²]: of strands, of bars, of profiles and tubes.
inline constexpr std::string_view moduliProposti[] = {"195000", "200000", "210000"};

/// What stands in the calculator.
struct IngressiCalcolo {
    GenereAncoraggio genere = GenereAncoraggio::tirante;
    MisuraArea misuraArea = MisuraArea::area;
    std::array<std::string, numeroVoci> testi = {"195000", "", "", "", "", "0", ""};

    [[nodiscard]] std::string& testo(VoceCalcolo voce) {
        return testi[static_cast<std::size_t>(voce)];
    }
    [[nodiscard]] const std::string& testo(VoceCalcolo voce) const {
        return testi[static_cast<std::size_t>(voce)];
    }
};

/// Caption of an input with its symbol and unit, translated; those of length and area follow the
/// two choices.
[[nodiscard]] std::string etichetta(VoceCalcolo voce, const IngressiCalcolo& ingressi);

/// What an input is and where its value comes from, translated; it follows the choices too.
[[nodiscard]] std::string spiegazione(VoceCalcolo voce, const IngressiCalcolo& ingressi);

/// A result for the cell of a row.
struct EsitoCalcolo {
    std::optional<double> valore;  ///< in the unit of the cell, to five digits
    /// The formula with its values put in; without a value which input is at fault and what to do.
    std::string conto;
    std::optional<VoceCalcolo> voce;  ///< that input

    /// The value as it is written into the cell; empty for none.
    [[nodiscard]] std::string testo() const;
};

/// Area of one anchor [mm²].
[[nodiscard]] EsitoCalcolo area(const IngressiCalcolo& ingressi);
/// Stiffness per metre of wall [kN/m/m], horizontal.
[[nodiscard]] EsitoCalcolo rigidezza(const IngressiCalcolo& ingressi);
/// Prestress per metre of wall [kN/m], horizontal.
[[nodiscard]] EsitoCalcolo pretensione(const IngressiCalcolo& ingressi);

/// Force along the axis of one anchor [kN] for a force per metre of wall; nothing while spacing and
/// angle are not known.
[[nodiscard]] std::optional<double> forzaDiUno(const IngressiCalcolo& ingressi, double perMetro);

}  // namespace korven::panels
