#pragma once

#include <initializer_list>
#include <string_view>

#include "drawings/log/depth_scale.hpp"
#include "plot/sheet.hpp"
#include "project/project_data.hpp"

// The table of the stratigraphic log: columns side by side over the same depths; cm of the sheet.

namespace korven::drawings {

inline constexpr double larghezzaStratigrafia = 20;  ///< sheet
inline constexpr double altezzaStratigrafia = 28.5;
inline constexpr double sinistraTabella = 1.5;
inline constexpr double larghezzaTabella = 17;
inline constexpr double piedeTabella = 1;
inline constexpr double testaTabella = ScalaProfondita::yTesta;  ///< the heads are above
inline constexpr double cimaTestata = 24.5;                      ///< top of the heads

inline constexpr int pennaRigaTabella = 1;
inline constexpr int pennaTestata = 3;
inline constexpr int pennaColonna = 4;  ///< boxes, lines and texts in the columns
inline constexpr int pennaProfilo = 30;

inline constexpr double altezzaNumeriColonna = 0.2;

/// Where the log has heading line `i`, 1 to 6: the first alone, the others so close below each
/// other that of two neighbours the upper one is cut.
[[nodiscard]] plot::PostoTitolo titoloStratigrafia(int i);

struct Colonna {
    double sinistra = 0;
    double larghezza = 0;

    [[nodiscard]] double destra() const { return sinistra + larghezza; }
};

/// The layers of a project and where they lie on the sheet.
struct Stratigrafia {
    const project::DatiProgetto& dati;
    ScalaProfondita scala;

    [[nodiscard]] double profondita() const { return dati.profStrato[dati.nStrati]; }
    /// Ordinate of the foot of layer `i`; 0 is the ground level.
    [[nodiscard]] double yPiede(int i) const { return scala.y(dati.profStrato[i]); }
};

/// Draws the heads of a column in their box and leaves the pen of the column in use. The heads are
/// written upright and share the column equally.
/// @param testate  Italian keys, one or two
void disegnaTestata(const Colonna& colonna, std::initializer_list<std::string_view> testate);

/// Draws a horizontal line through the column.
void attraversa(const Colonna& colonna, double y);

/// Writes a number so that it ends at about x, half its height above y. Its start is reckoned in
/// character heights for a number of one digit, and one more for each further digit.
/// @param spazio      that a value under 10 takes [character heights]
/// @param altreCifre  further digits that count, at most
/// @param decimali    as of `plotNumero`
void numeroFinoA(double x, double y, double valore, int decimali, double spazio, int altreCifre);

}  // namespace korven::drawings
