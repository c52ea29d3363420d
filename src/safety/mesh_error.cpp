#include "safety/mesh_error.hpp"

#include <algorithm>
#include <cmath>

#include "project/units.hpp"

namespace korven::safety {

namespace {

using equilibrium::Estremi;
namespace unita = project::unita;

constexpr double arrotondamento = 1e-9;  // of a value

// An error falls with the first power of the step at least, and with the second at most.
constexpr double minimoRapporto = 2, massimoRapporto = 4;

std::optional<Estremi> involuppo(const project::DatiProgetto& dati, int nSeg) {
    const auto fasi =
        equilibrium::calcolaEquilibrio(dati, nSeg, equilibrium::RigiditaVincoli::rigidi);
    if (fasi.empty() || fasi.back().esito != equilibrium::EsitoFase::equilibrio)
        return std::nullopt;
    return equilibrium::estremi(fasi, dati.lunghezzaParatia / nSeg);
}

Andamento andamento(double a, double b, double c, const project::Unita& u) {
    if (std::max(std::fabs(a - b), std::fabs(b - c)) <= arrotondamento * c)
        return Andamento::uguali;
    if (mostrato(u, std::fabs(b - c)) < minimaConOrdine) return Andamento::vicine;
    const double rapporto = (a - b) / (b - c);  // 2 to the order
    if (std::fabs(rapporto) <= 1) {
        const auto [minimo, massimo] = std::minmax({a, b, c});
        return massimo - minimo < quotaSenzaOrdine * c ? Andamento::strette : Andamento::lontane;
    }
    return rapporto > 0 ? Andamento::avvicinano : Andamento::alternano;
}

ErroreGrandezza errore(double semplice, double doppia, double quadrupla, const project::Unita& u) {
    const double a = std::fabs(semplice), b = std::fabs(doppia), c = std::fabs(quadrupla);
    ErroreGrandezza e{.valore = a, .doppia = b, .fine = c, .andamento = andamento(a, b, c, u)};
    if (c > 0 && mostrato(u, std::max({a, b, c})) >= minimoConErrore)
        e.quota = std::fabs(a - c) / c;
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
            usata = usata || u.quota(i) > arrotondamento;
        }
        if (usata) tutti.push_back(u);
    }
    return tutti;
}

}  // namespace

std::optional<double> limiteMaglie(double a, double b, double c) {
    const double primo = b - a, secondo = c - b;
    if (secondo == 0) return c;
    if (!(primo * secondo > 0)) return std::nullopt;
    return c + secondo / (std::clamp(primo / secondo, minimoRapporto, massimoRapporto) - 1);
}

double UsoMaglia::quota(std::size_t maglia) const {
    return maglie[maglia] ? maglie[maglia]->uso().value_or(0) : 0;
}

std::optional<double> UsoMaglia::limite() const {
    return limiteMaglie(quota(0), quota(1), quota(2));
}

EsitoMaglie UsoMaglia::esito() const {
    const auto fallite = std::count_if(maglie.begin(), maglie.end(),
                                       [](const auto& uso) { return uso && uso->fallita; });
    if (fallite == static_cast<long>(maglie.size())) return EsitoMaglie::fallita;
    if (fallite > 0) return EsitoMaglie::cambia;
    return limite().value_or(0) > 1 ? EsitoMaglie::nonAssestata : EsitoMaglie::verificata;
}

const ErroreGrandezza& ErroreMaglia::di(Massimo massimo) const {
    switch (massimo) {
        case Massimo::momentoPositivo:
            return momentoPositivo;
        case Massimo::momentoNegativo:
            return momentoNegativo;
        case Massimo::taglio:
            return taglio;
        case Massimo::spostamento:
            return spostamento;
        case Massimo::tiro:
            break;
    }
    return tiro;
}

const ErroreGrandezza& ErroreMaglia::momento() const {
    return momentoNegativo.fine > momentoPositivo.fine ? momentoNegativo : momentoPositivo;
}

ErrorePeggiore ErroreMaglia::peggiore() const {
    ErrorePeggiore peggiore;
    for (const Massimo massimo : tuttiIMassimi) {
        const bool flessione =
            massimo == Massimo::momentoPositivo || massimo == Massimo::momentoNegativo;
        const ErroreGrandezza& e = di(massimo);
        if (flessione && e.fine < momentoMinore * momento().fine) continue;
        if (e.quota.value_or(0) > peggiore.quota) peggiore = {massimo, *e.quota};
    }
    return peggiore;
}

std::optional<ErroreMaglia> erroreMaglia(const project::DatiProgetto& dati, int nSeg,
                                         const Estremi& estremi) {
    const auto doppia = involuppo(dati, 2 * nSeg);
    const auto quadrupla = involuppo(dati, 4 * nSeg);
    if (!doppia || !quadrupla) return std::nullopt;
    const auto di = [&](const project::Unita& u, auto valore) {
        return errore(valore(estremi), valore(*doppia), valore(*quadrupla), u);
    };
    return ErroreMaglia{
        di(unita::momentoAlMetro, [](const Estremi& e) { return e.momentoMassimo.valore; }),
        di(unita::momentoAlMetro, [](const Estremi& e) { return e.momentoMinimo.valore; }),
        di(unita::forzaAlMetro, [](const Estremi& e) { return e.taglio.valore; }),
        di(unita::spostamentoFine, [](const Estremi& e) { return e.spostamento.valore; }),
        di(unita::forzaAlMetro, [](const Estremi& e) { return e.tiro.valore; }),
        usi(dati, {&estremi, &*doppia, &*quadrupla})};
}

}  // namespace korven::safety
