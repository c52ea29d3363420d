#pragma once

#include <string>
#include <vector>

#include "document/page.hpp"

namespace korven::test {

struct Cornice {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    std::string cosa;
};

/// The rectangle that a text takes: letters with accents above and tails below.
inline Cornice cornice(const document::Scritta& s) {
    return {s.x, s.y - 0.9 * s.carattere.corpo, s.x + s.larghezza, s.y + 0.21 * s.carattere.corpo,
            s.testo};
}
inline Cornice cornice(const document::Disegno& d) {
    const double scala = d.scala * document::puntiPerCentimetro;
    return {d.x, d.y, d.x + scala * d.figura->larghezza, d.y + scala * d.altezza,
            d.figura->didascalia};
}

/// What lies upon another thing or beyond the margins of its page, a line each; empty for pages
/// that can be handed in.
inline std::string difetti(const document::Impaginato& impaginato) {
    constexpr double gioco = 0.1;
    std::string trovati;
    const document::Formato& f = impaginato.formato;
    for (std::size_t n = 0; n < impaginato.pagine.size(); ++n) {
        const document::Pagina& pagina = impaginato.pagine[n];
        std::vector<Cornice> cornici;
        for (const auto& s : pagina.scritte) cornici.push_back(cornice(s));
        for (const auto& d : pagina.disegni) cornici.push_back(cornice(d));
        const std::string dove = "pagina " + std::to_string(n + 1) + ": ";
        for (std::size_t i = 0; i < cornici.size(); ++i) {
            const Cornice& a = cornici[i];
            const bool dentro = a.x1 >= f.sinistra - gioco &&
                                a.x2 <= f.larghezza - f.destra + gioco && a.y1 >= gioco &&
                                a.y2 <= f.altezza - gioco;
            if (!dentro) trovati += dove + "fuori dal foglio: " + a.cosa + "\n";
            for (std::size_t j = 0; j < i; ++j) {
                const Cornice& b = cornici[j];
                if (a.x1 < b.x2 - gioco && b.x1 < a.x2 - gioco && a.y1 < b.y2 - gioco &&
                    b.y1 < a.y2 - gioco)
                    trovati += dove + "\"" + a.cosa + "\" su \"" + b.cosa + "\"\n";
            }
        }
    }
    return trovati;
}

/// The texts of a page, head and foot left out, from its upper end on, parted by "|".
inline std::string testi(const document::Impaginato& impaginato, std::size_t pagina) {
    std::string tutti;
    const document::Formato& f = impaginato.formato;
    for (const auto& s : impaginato.pagine.at(pagina).scritte)
        if (s.y > f.sopra && s.y < f.altezza - f.sotto + 1)
            tutti += (tutti.empty() ? "" : "|") + s.testo;
    return tutti;
}

}  // namespace korven::test
