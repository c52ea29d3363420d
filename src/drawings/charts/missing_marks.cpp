#include "drawings/charts/missing_marks.hpp"

#include <algorithm>
#include <set>
#include <utility>

#include "drawings/annex/paper.hpp"

namespace korven::drawings {

namespace {

using scene::Linea;
using scene::Punto;
using scene::Ruolo;

constexpr double riga = 1.3 * corpoPiccolo;
constexpr double mezzo = 2.6;  // of a mark [px]

void tratto(scene::Tela& tela, Ruolo ruolo, Punto da, Punto a) {
    constexpr double spessore = 1.4;
    tela.disegna(scene::Elemento::estremo, 0, Linea{{da, a}, {ruolo}, spessore});
}

// A cross for a wall that falls, a stroke where there is none, a small upright one for a number.
void segna(scene::Tela& tela, Mancanza perche, Punto p) {
    switch (perche) {
        case Mancanza::cade:
            tratto(tela, Ruolo::meccanismo, {p.x - mezzo, p.y - mezzo}, {p.x + mezzo, p.y + mezzo});
            tratto(tela, Ruolo::meccanismo, {p.x - mezzo, p.y + mezzo}, {p.x + mezzo, p.y - mezzo});
            return;
        case Mancanza::rifiutata:
            return tratto(tela, Ruolo::testoTenue, {p.x - mezzo, p.y}, {p.x + mezzo, p.y});
        case Mancanza::senzaNumero:
            return tratto(tela, Ruolo::testoTenue, {p.x, p.y - mezzo}, {p.x, p.y + mezzo});
        case Mancanza::senzaPiede:
            return segnaSenzaPiede(tela, p);
    }
}

}  // namespace

void segnaSenzaPiede(scene::Tela& tela, Punto p) {
    constexpr double spessore = 1.2;
    constexpr double r = 1.2 * mezzo, d = r / 2;  // eight corners are a ring at this size
    tela.disegna(scene::Elemento::estremo, 0,
                 Linea{{{p.x - r, p.y - d},
                        {p.x - d, p.y - r},
                        {p.x + d, p.y - r},
                        {p.x + r, p.y - d},
                        {p.x + r, p.y + d},
                        {p.x + d, p.y + r},
                        {p.x - d, p.y + r},
                        {p.x - r, p.y + d},
                        {p.x - r, p.y - d}},
                       {Ruolo::meccanismo},
                       spessore});
}

double altezzaMancanze(std::size_t righe) {
    return righe == 0 ? 0 : riga * (static_cast<double>(righe) + 0.2);
}

double yMancanze(const Assi& assi, std::size_t quale) {
    return assi.campo().basso + riga * (static_cast<double>(quale) + 0.7);
}

// Many variants may stand at one place: it is marked once.
void segnaMancanze(scene::Tela& tela, const Assi& assi, std::size_t quale,
                   const std::vector<SenzaNumero>& mancanti) {
    std::set<std::pair<double, Mancanza>> posti;
    for (const auto& [x, perche] : mancanti) posti.insert({assi.x(x), perche});
    for (const auto& [x, perche] : posti) segna(tela, perche, {x, yMancanze(assi, quale)});
}

void spiegaMancanze(scene::Tela& tela, const Assi& assi, const std::vector<SenzaNumero>& tutti,
                    const ParoleMancanze& parole) {
    const double y = assi.yTitoloX();
    double x = assi.campo().sinistra + mezzo;
    for (const Mancanza perche :
         {Mancanza::cade, Mancanza::rifiutata, Mancanza::senzaNumero, Mancanza::senzaPiede}) {
        if (std::ranges::count(tutti, perche, &SenzaNumero::perche) == 0) continue;
        const std::string& detta = parole[static_cast<std::size_t>(perche)];
        segna(tela, perche, {x, y});
        scriviNota(tela, detta, {x + corpoCarta, y}, scene::Ancora::sinistra);
        x += tela.larghezza(detta, corpoPiccolo) + 2.5 * corpoCarta;
    }
}

}  // namespace korven::drawings
