#pragma once

#include <cstddef>
#include <vector>

#include "drawings/dimension_lines.hpp"
#include "plot/geometry.hpp"

namespace korven::drawings {

/// Places that a dimension may take, the best first.
using Candidate = std::vector<Quota>;

/// Finds each dimension of a view its place: inside `stanzaQuote`, its text clear of the section,
/// of the other texts and of their lines, its lines clear of the texts and none on top of another.
/// All positions in cm of the sheet.
class PostiQuote {
 public:
    /// The section, on which no text may lie.
    void occupa(const plot::Riquadro& pieno) { pieni_.push_back(pieno); }
    void occupaDisco(plot::Punto centro, double raggio) { dischi_.push_back({centro, raggio}); }
    void occupaTratto(const plot::Tratto& tratto) { bordi_.push_back(tratto); }

    /// Draws each dimension at the first of its places that is free. One that is placed early may
    /// take the only place of a later one, so other orders are tried where one finds none. Where no
    /// order serves all, as with a section out of all proportion, a text that finds no free place
    /// lies on the section, clear of the other texts, or at its first place whatever lies there. A
    /// dimension that has no place at all, of a section that fills the sheet, is left out.
    void disponi(const std::vector<Candidate>& quote);

 private:
    struct Disco {
        plot::Punto centro;
        double raggio;
    };
    struct Posti {
        std::vector<plot::Riquadro> testi;
        std::vector<plot::Tratto> linee;
        std::vector<const Quota*> scelte;
        int difetti = 0;  ///< dimensions that found no free place
    };

    [[nodiscard]] Posti prova(const std::vector<Candidate>& quote,
                              const std::vector<std::size_t>& ordine) const;
    [[nodiscard]] bool sullaSezione(const plot::Riquadro& testo) const;
    static bool libera(const Quota& quota, const Posti& posti);

    std::vector<plot::Riquadro> pieni_;
    std::vector<Disco> dischi_;
    std::vector<plot::Tratto> bordi_;
    Posti posti_;
};

/// Dimensions between y1 and y2 at every place from `xVicino` away from `xOggetto` to the edge of
/// `stanzaQuote`, the nearest first, each with its text about the middle, above it, below it.
[[nodiscard]] Candidate quoteVerticali(double y1, double y2, double xVicino, double xOggetto,
                                       const Scritta& scritta);

/// Leaders from a point of the section: to the edge of `stanzaQuote`, then turned up and down at
/// every place from the section to that edge; all these first level, then bent up and down.
/// @param xSezione  where the section ends on that side
[[nodiscard]] Candidate richiami(project::Lato lato, plot::Punto oggetto, double xSezione,
                                 const Scritta& scritta);

/// Those of them that are level, across which the dimension from the section's edge to the point
/// has its marks.
[[nodiscard]] Candidate richiamiConMisura(project::Lato lato, plot::Punto oggetto, double xSezione,
                                          const Scritta& scritta);

/// The candidates of `altre` after those of `prime`.
void aggiungi(Candidate& prime, Candidate altre);

}  // namespace korven::drawings
