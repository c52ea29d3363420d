#pragma once

#include <string>

#include "dossier/section_values.hpp"
#include "project/units.hpp"
#include "tables/result_table.hpp"

// What the tables of bending and of shear share: units, and the rows that both have. Values put
// into a formula have a digit more than what comes out, so that only the result is rounded and a
// reader with a pencil comes to it.

namespace korven::report {

inline const std::string unitaTensione(project::unita::tensione.mostrata);
inline const std::string unitaArea = "mm²";
inline const std::string unitaLunghezza(project::unita::misura.mostrata);
inline const std::string unitaForza(project::unita::forzaAlMetro.mostrata);
inline const std::string unitaMomento(project::unita::momentoAlMetro.mostrata);

[[nodiscard]] inline double inKilonewton(double N) { return N / project::newtonKilonewton; }
/// From N mm to kN m.
[[nodiscard]] inline double inKilonewtonMetri(double Nmm) {
    return inKilonewton(Nmm) / project::millimetriMetro;
}

/// fcd = fck / γc [N/mm2].
void aggiungiResistenzaCls(double fck, double fs, double fcd, tables::Prospetto& prospetto);
/// fyd = fyk / γs [N/mm2].
void aggiungiResistenzaAcciaio(double fyk, double fs, double fyd, tables::Prospetto& prospetto);

/// Concrete and steel of one metre of wall, from the measures of the section where its circles and
/// rectangles lie whole within the strips; else the sums of these alone.
void aggiungiAree(const project::Sezione& sezione, const dossier::ValoriFlessione& valori,
                  tables::Prospetto& prospetto);

/// What the symbols of the section's measures are; empty without a type.
[[nodiscard]] std::string legendaMisure(const project::Sezione& sezione);

/// A force or a moment of the stages times the factor of actions, both in the shown unit.
struct AzioneDiProgetto {
    const char* cosa;  ///< Italian key
    std::string simbolo, simboloAzione;
    double fs, azione, progetto;
    std::string unita;
};
void aggiungiAzione(const AzioneDiProgetto& azione, tables::Prospetto& prospetto);

/// How much of a resistance is used, both in the shown unit.
struct RigaSfruttamento {
    const char* cosa;  ///< Italian key
    std::string simboloAzione, simboloResistenza;
    double azione, resistenza;
    double quota;  ///< of 1
};
void aggiungiSfruttamento(const RigaSfruttamento& sfruttamento, tables::Prospetto& prospetto);

}  // namespace korven::report
