#pragma once

#include <string>

#include "equilibrium/extremes.hpp"
#include "project/units.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// A quantity along the wall: how it is headed, in which unit and with which digits it is shown.
struct Grandezza {
    const project::Unita& unita;
    const char* titolo;
    const char* spiegazione;
    Cella (*cella)(double);
};

inline constexpr Grandezza grandezzaSpostamento{project::unita::spostamentoFine, "Spostamento",
                                                "Positivo verso lo scavo", spostamento};
inline constexpr Grandezza grandezzaMomento{
    project::unita::momentoAlMetro, "Momento",
    "Positivo se tende la faccia verso lo scavo; per metro di paratia", momento};
inline constexpr Grandezza grandezzaTaglio{
    project::unita::forzaAlMetro, "Taglio",
    "Derivata del momento lungo la profondità; per metro di paratia", forza};
inline constexpr Grandezza grandezzaTaglioSopra{
    project::unita::forzaAlMetro, "Taglio sopra",
    "Derivata del momento lungo la profondità, subito sopra il nodo; per metro di paratia", forza};
inline constexpr Grandezza grandezzaTaglioSotto{
    project::unita::forzaAlMetro, "Taglio sotto",
    "Subito sotto il nodo: dove agisce un tirante è maggiore di quello sopra della sua forza",
    forza};
inline constexpr Grandezza grandezzaPressione{
    project::unita::pressione, "Pressione netta",
    "Somma delle pressioni sulla paratia, positiva verso lo scavo", pressione};

[[nodiscard]] inline Colonna colonna(const Grandezza& g) {
    return colonna(g.unita, g.titolo, g.spiegazione);
}

/// Depth of the largest value of a curve; one that is 0 all along has it nowhere.
/// @param fase  of the value; 0: there is none
/// @param lato  told behind the depth where the value is of one side of its node
[[nodiscard]] Cella dove(int fase, double z, equilibrium::Lato lato = equilibrium::Lato::unico);
/// The same of a value that there is.
[[nodiscard]] Cella profondita(double z, equilibrium::Lato lato);

/// "Fase 2"; of 0 "Inviluppo delle fasi".
[[nodiscard]] std::string titoloFase(int fase);

}  // namespace korven::tables
