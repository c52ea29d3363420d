#include "safety/mesh_error.hpp"

#include <algorithm>
#include <cmath>

namespace korven::safety {

namespace {

using equilibrium::Estremi;

constexpr double arrotondamento = 1e-9;  // of a value

std::optional<Estremi> involuppo(const project::DatiProgetto& dati, int nSeg) {
    const auto fasi =
        equilibrium::calcolaEquilibrio(dati, nSeg, equilibrium::RigiditaVincoli::rigidi);
    if (fasi.empty() || fasi.back().esito != equilibrium::EsitoFase::equilibrio)
        return std::nullopt;
    return equilibrium::estremi(fasi, dati.lunghezzaParatia / nSeg);
}

Andamento andamento(double a, double b, double c) {
    if (std::max(std::fabs(a - b), std::fabs(b - c)) <= arrotondamento * c)
        return Andamento::uguali;
    const double rapporto = (a - b) / (b - c);  // 2 to the order
    if (!std::isfinite(rapporto) || std::fabs(rapporto) <= 1) return Andamento::lontane;
    return rapporto > 0 ? Andamento::avvicinano : Andamento::alternano;
}

ErroreGrandezza errore(double semplice, double doppia, double quadrupla) {
    const double a = std::fabs(semplice), b = std::fabs(doppia), c = std::fabs(quadrupla);
    ErroreGrandezza e{.valore = a, .doppia = b, .fine = c, .andamento = andamento(a, b, c)};
    if (c > 0) e.quota = std::fabs(a - c) / c;
    if (e.andamento == Andamento::avvicinano) e.ordine = std::log2((a - b) / (b - c));
    return e;
}

// Of the equilibrium, which has no report: the shear is the largest of all stages.
std::vector<UsoMaglia> usi(const project::DatiProgetto& dati,
                           const std::array<const Estremi*, 3>& maglie) {
    const auto MRd = results::momentiResistenti(dati);
    std::array<results::Controlli, 3> controlli;
    for (std::size_t i = 0; i < maglie.size(); ++i)
        controlli[i] =
            results::controlli(dati.sezione, MRd, maglie[i]->momentoMassimo.valore,
                               maglie[i]->momentoMinimo.valore, maglie[i]->taglio.valore);
    std::vector<UsoMaglia> tutti;
    for (const results::Verifica cosa : results::tutteLeVerifiche) {
        UsoMaglia u{.cosa = cosa};
        bool usata = false;
        for (std::size_t i = 0; i < maglie.size(); ++i) {
            u.maglie[i] = results::uso(controlli[i], cosa);
            usata = usata || (u.maglie[i] && u.maglie[i]->uso().value_or(0) > arrotondamento);
        }
        if (usata) tutti.push_back(u);
    }
    return tutti;
}

}  // namespace

double ErroreMaglia::massimo() const {
    double peggiore = 0;
    for (const ErroreGrandezza* e : {&momento, &taglio, &spostamento, &tiro})
        peggiore = std::max(peggiore, e->quota.value_or(0));
    for (const ErroreGrandezza* e : {&momentoPositivo, &momentoNegativo})
        if (e->fine >= momentoMinore * momento.fine)
            peggiore = std::max(peggiore, e->quota.value_or(0));
    return peggiore;
}

std::optional<ErroreMaglia> erroreMaglia(const project::DatiProgetto& dati, int nSeg,
                                         const Estremi& estremi) {
    const auto doppia = involuppo(dati, 2 * nSeg);
    const auto quadrupla = involuppo(dati, 4 * nSeg);
    if (!doppia || !quadrupla) return std::nullopt;
    const auto di = [&](auto valore) {
        return errore(valore(estremi), valore(*doppia), valore(*quadrupla));
    };
    return ErroreMaglia{di([](const Estremi& e) { return e.momento().valore; }),
                        di([](const Estremi& e) { return e.momentoMassimo.valore; }),
                        di([](const Estremi& e) { return e.momentoMinimo.valore; }),
                        di([](const Estremi& e) { return e.taglio.valore; }),
                        di([](const Estremi& e) { return e.spostamento.valore; }),
                        di([](const Estremi& e) { return e.tiro.valore; }),
                        usi(dati, {&estremi, &*doppia, &*quadrupla})};
}

}  // namespace korven::safety
