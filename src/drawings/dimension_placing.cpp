#include "drawings/dimension_placing.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

#include "plot/line_clip.hpp"
#include "plot/plot_engine.hpp"

namespace korven::drawings {

namespace {

using plot::Riquadro;
using plot::Tratto;
using project::Lato;

constexpr double passoColonne = 0.1;  // between the places that are tried

bool dentro(const Riquadro& r, const Riquadro& stanza) {
    return r.xmin >= stanza.xmin && r.xmax <= stanza.xmax && r.ymin >= stanza.ymin &&
           r.ymax <= stanza.ymax;
}

bool siCoprono(const Riquadro& a, const Riquadro& b) {
    return a.xmin < b.xmax && b.xmin < a.xmax && a.ymin < b.ymax && b.ymin < a.ymax;
}

Riquadro attorno(const Tratto& t) {
    return {std::min(t.da.x, t.a.x), std::min(t.da.y, t.a.y), std::max(t.da.x, t.a.x),
            std::max(t.da.y, t.a.y)};
}

bool tocca(const Tratto& tratto, const Riquadro& riquadro) {
    return plot::ritagliaTratto(tratto, riquadro).has_value();
}

// Two level or two upright lines that run along each other, nearer than they can be told apart.
bool sovrapposti(const Tratto& a, const Tratto& b) {
    constexpr double vicino = 0.06;
    const Riquadro r = attorno(a), q = attorno(b);
    const bool livellati = r.altezza() == 0 && q.altezza() == 0;
    const bool dritti = r.larghezza() == 0 && q.larghezza() == 0;
    if (livellati) return std::fabs(r.ymin - q.ymin) < vicino && r.xmin < q.xmax && q.xmin < r.xmax;
    return dritti && std::fabs(r.xmin - q.xmin) < vicino && r.ymin < q.ymax && q.ymin < r.ymax;
}

// The outermost turned text first: those that come later find room between it and the section.
Candidate richiamiLivellati(Lato lato, plot::Punto oggetto, double y, double xSezione,
                            const Scritta& scritta) {
    Candidate quote{richiamo(lato, oggetto, y, scritta)};
    constexpr double daSezione = 0.35, dalBordo = 0.4;
    const bool monte = lato == Lato::monte;
    const double bordo = monte ? stanzaQuote.xmin + dalBordo : stanzaQuote.xmax - dalBordo;
    const double spazio = (monte ? xSezione - bordo : bordo - xSezione) - daSezione;
    for (double rientro = 0; rientro < spazio; rientro += passoColonne)
        for (const bool inAlto : {true, false})
            quote.push_back(richiamoGirato(
                lato, oggetto, y, monte ? bordo + rientro : bordo - rientro, inAlto, scritta));
    return quote;
}

}  // namespace

bool PostiQuote::libera(const Quota& quota, const Posti& posti) {
    const Riquadro testo = quota.riquadroTesto();
    if (!dentro(testo, stanzaQuote)) return false;
    const auto coperto = [&](const Riquadro& altro) { return siCoprono(testo, altro); };
    if (std::any_of(posti.testi.begin(), posti.testi.end(), coperto)) return false;
    const auto attraversa = [&](const Tratto& linea) { return tocca(linea, testo); };
    if (std::any_of(posti.linee.begin(), posti.linee.end(), attraversa) ||
        std::any_of(quota.linee.begin(), quota.linee.end(), attraversa))
        return false;
    return std::all_of(quota.linee.begin(), quota.linee.end(), [&](const Tratto& linea) {
        return dentro(attorno(linea), stanzaQuote) &&
               std::none_of(posti.testi.begin(), posti.testi.end(),
                            [&](const Riquadro& altro) { return tocca(linea, altro); }) &&
               std::none_of(posti.linee.begin(), posti.linee.end(),
                            [&](const Tratto& altra) { return sovrapposti(linea, altra); });
    });
}

bool PostiQuote::sullaSezione(const Riquadro& testo) const {
    const auto sulDisco = [&](const Disco& disco) {
        const double x = std::clamp(disco.centro.x, testo.xmin, testo.xmax);
        const double y = std::clamp(disco.centro.y, testo.ymin, testo.ymax);
        return std::hypot(x - disco.centro.x, y - disco.centro.y) < disco.raggio;
    };
    const auto sulPieno = [&](const Riquadro& pieno) { return siCoprono(testo, pieno); };
    const auto sulBordo = [&](const Tratto& tratto) { return tocca(tratto, testo); };
    return std::any_of(dischi_.begin(), dischi_.end(), sulDisco) ||
           std::any_of(pieni_.begin(), pieni_.end(), sulPieno) ||
           std::any_of(bordi_.begin(), bordi_.end(), sulBordo);
}

PostiQuote::Posti PostiQuote::prova(const std::vector<Candidate>& quote,
                                    const std::vector<std::size_t>& ordine) const {
    Posti posti = posti_;
    posti.scelte.assign(quote.size(), nullptr);
    for (const std::size_t i : ordine) {
        if (quote[i].empty()) continue;
        const auto prima = [&](bool ancheSullaSezione) {
            return std::find_if(quote[i].begin(), quote[i].end(), [&](const Quota& quota) {
                return libera(quota, posti) &&
                       (ancheSullaSezione || !sullaSezione(quota.riquadroTesto()));
            });
        };
        auto trovata = prima(false);
        if (trovata == quote[i].end()) {
            ++posti.difetti;
            trovata = prima(true);
        }
        if (trovata == quote[i].end()) trovata = quote[i].begin();
        posti.scelte[i] = &*trovata;
        posti.testi.push_back(trovata->riquadroTesto());
        posti.linee.insert(posti.linee.end(), trovata->linee.begin(), trovata->linee.end());
    }
    return posti;
}

void PostiQuote::disponi(const std::vector<Candidate>& quote) {
    std::vector<std::size_t> ordine(quote.size());
    std::iota(ordine.begin(), ordine.end(), std::size_t{0});
    Posti migliori = prova(quote, ordine);
    constexpr int massimoOrdini = 120;
    for (int k = 1; k < massimoOrdini && migliori.difetti > 0; ++k) {
        if (!std::next_permutation(ordine.begin(), ordine.end())) break;
        if (Posti altri = prova(quote, ordine); altri.difetti < migliori.difetti)
            migliori = std::move(altri);
    }
    for (const Quota* quota : migliori.scelte)
        if (quota != nullptr) quota->disegna();
    migliori.scelte.clear();
    migliori.difetti = 0;
    posti_ = std::move(migliori);
}

Candidate quoteVerticali(double y1, double y2, double xVicino, double xOggetto,
                         const Scritta& scritta) {
    Candidate quote;
    const double verso = xVicino > xOggetto ? 1 : -1;
    constexpr double stacco = 0.15;  // of a text from the middle
    for (double x = xVicino; x > stanzaQuote.xmin && x < stanzaQuote.xmax;
         x += verso * passoColonne) {
        Quota quota = quotaVerticale(y1, y2, x, xOggetto, scritta);
        const Riquadro r = quota.riquadroTesto();
        const double spostamento = r.altezza() / 2 + stacco;
        for (const double dy : {0.0, spostamento, -2 * spostamento}) {
            quota.posizione.y += dy;
            quote.push_back(quota);
        }
    }
    return quote;
}

Candidate richiami(Lato lato, plot::Punto oggetto, double xSezione, const Scritta& scritta) {
    Candidate quote;
    for (const double piega : {0.0, 0.6, -0.6, 1.2, -1.2, 2.4, -2.4})
        aggiungi(quote, richiamiLivellati(lato, oggetto, oggetto.y + piega, xSezione, scritta));
    return quote;
}

Candidate richiamiConMisura(Lato lato, plot::Punto oggetto, double xSezione,
                            const Scritta& scritta) {
    auto quote = richiamiLivellati(lato, oggetto, oggetto.y, xSezione, scritta);
    for (Quota& quota : quote)
        for (const double x : {xSezione, oggetto.x}) quota.linee.push_back(tacca(x, oggetto.y));
    return quote;
}

void aggiungi(Candidate& prime, Candidate altre) {
    prime.insert(prime.end(), std::make_move_iterator(altre.begin()),
                 std::make_move_iterator(altre.end()));
}

}  // namespace korven::drawings
