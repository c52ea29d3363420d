#include "verification/quantities.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "results/structure_checks.hpp"
#include "results/working_pressures.hpp"
#include "safety/shortest_wall.hpp"
#include "safety/strength_reduction.hpp"
#include "structure/section_validity.hpp"
#include "structure/stiffness.hpp"
#include "verification/computed_wall.hpp"

namespace korven::verification {

namespace {

using analysis::RisultatiFase;
using analysis::VettoreNodi;
using equilibrium::FaseEquilibrio;
using Numero = std::optional<double>;
namespace unita = project::unita;

// A column of the run at the node of a depth.
template <VettoreNodi RisultatiFase::*colonna>
Numero corsaIn(PareteCalcolata& p, const Luogo& l) {
    const RisultatiFase* fase = p.corsa(l.fase);
    if (fase == nullptr) return {};
    return (fase->*colonna)[static_cast<int>(p.nodo(*l.z)) + 1];
}

// The same of a quantity that is stored negative.
template <VettoreNodi RisultatiFase::*colonna>
Numero oppostoIn(PareteCalcolata& p, const Luogo& l) {
    const Numero valore = corsaIn<colonna>(p, l);
    return valore ? Numero(-*valore) : valore;
}

template <std::vector<double> FaseEquilibrio::*colonna>
Numero equilibrioIn(PareteCalcolata& p, const Luogo& l) {
    const FaseEquilibrio* fase = p.inEquilibrio(l.fase);
    if (fase == nullptr) return {};
    return (fase->*colonna)[p.nodo(*l.z)];
}

// The largest of a curve by an order of its values.
bool perValore(double a, double b) { return a < b; }
bool perOpposto(double a, double b) { return a > b; }
bool perGrandezza(double a, double b) { return std::fabs(a) < std::fabs(b); }
using Ordine = bool (*)(double, double);

template <VettoreNodi RisultatiFase::*colonna, Ordine ordine>
Numero estremoCorsa(PareteCalcolata& p, const Luogo& l) {
    const RisultatiFase* fase = p.corsa(l.fase);
    if (fase == nullptr) return {};
    double trovato = (fase->*colonna)[1];
    for (int i = 2; i <= p.nSeg() + 1; ++i)
        if (ordine(trovato, (fase->*colonna)[i])) trovato = (fase->*colonna)[i];
    return trovato;
}

template <std::vector<double> FaseEquilibrio::*colonna, Ordine ordine>
Numero estremoEquilibrio(PareteCalcolata& p, const Luogo& l) {
    const FaseEquilibrio* fase = p.inEquilibrio(l.fase);
    if (fase == nullptr) return {};
    return *std::max_element((fase->*colonna).begin(), (fase->*colonna).end(), ordine);
}

template <double results::PressioniNodo::*lato>
Numero pressioneCorsa(PareteCalcolata& p, const Luogo& l) {
    const RisultatiFase* fase = p.corsa(l.fase);
    if (fase == nullptr) return {};
    const auto i = static_cast<int>(p.nodo(*l.z)) + 1;
    const auto terreno = results::resistenzaNodo(p.dati(), analysis::zNodo(i, p.h()));
    return results::pressioniNodo(*fase, i, p.dati().metodoSpinte, terreno).*lato;
}

Numero tiroCorsa(PareteCalcolata& p, const Luogo& l) { return p.tiroCorsa(l.fase, l.tirante); }

Numero tiroEquilibrio(PareteCalcolata& p, const Luogo& l) {
    const FaseEquilibrio* fase = p.inEquilibrio(l.fase);
    if (fase == nullptr || l.tirante > static_cast<int>(fase->tiri.size())) return {};
    return fase->tiri[static_cast<std::size_t>(l.tirante) - 1];
}

Numero esito(PareteCalcolata& p, const Luogo& l) {
    const FaseEquilibrio* fase = p.faseEquilibrio(l.fase);
    if (fase == nullptr) return {};
    return static_cast<double>(fase->esito);
}

Numero lunghezzaMinima(PareteCalcolata& p, const Luogo&) {
    return safety::lunghezzaMinima(p.dati(), p.nSeg()).lunghezza;
}

Numero riduzione(PareteCalcolata& p, const Luogo& l) {
    return safety::riduzione(p.dati(), p.nSeg(), l.fase).F;
}

Numero rigidezza(PareteCalcolata& p, const Luogo&) {
    if (!structure::sezioneValida(p.dati().sezione)) return {};
    return structure::calcolaEJ(p.dati().sezione) / project::newtonMillimetri2;
}

// A positive moment is resisted by bending of negative curvature.
template <int passata>
Numero momentoResistente(PareteCalcolata& p, const Luogo&) {
    if (!structure::sezioneValida(p.dati().sezione)) return {};
    return -p.resistenze()[passata] / project::newtonMillimetri;
}

template <double structure::ConfrontoTaglio::*resistenza>
Numero taglioResistente(PareteCalcolata& p, const Luogo&) {
    const auto confronto = results::verificaAlTaglio(p.dati().sezione, 0);
    if (!confronto) return {};
    return *confronto.*resistenza / project::kilonewton;
}

using R = RisultatiFase;
using E = FaseEquilibrio;

constexpr Grandezza riga(const project::Unita& u, std::string_view nome,
                         std::string_view didascalia) {
    return {nome, didascalia, u};
}
constexpr Grandezza inZ(Grandezza g, Grandezza::Valore corsa,
                        Grandezza::Valore equilibrio = nullptr) {
    g.conZ = true;
    g.corsa = corsa;
    g.equilibrio = equilibrio;
    return g;
}
constexpr Grandezza diFase(Grandezza g, Grandezza::Valore corsa, Grandezza::Valore equilibrio) {
    g.corsa = corsa;
    g.equilibrio = equilibrio;
    return g;
}
constexpr Grandezza diTirante(Grandezza g, Grandezza::Valore corsa, Grandezza::Valore equilibrio) {
    g.conTirante = true;
    return diFase(g, corsa, equilibrio);
}
constexpr Grandezza dellaParete(Grandezza g, Grandezza::Valore equilibrio) {
    g.diFase = false;
    g.equilibrio = equilibrio;
    return g;
}
constexpr Grandezza diSezione(Grandezza g, Grandezza::Valore valore) {
    g.diFase = false;
    g.sezione = valore;
    return g;
}

constexpr Grandezza tabella[] = {
    inZ(riga(unita::spostamentoFine, "spostamento", "Spostamento"), corsaIn<&R::yNodo>,
        equilibrioIn<&E::y>),
    inZ(riga(unita::momentoAlMetro, "momento", "Momento"), corsaIn<&R::momentoNodo>,
        equilibrioIn<&E::momento>),
    inZ(riga(unita::forzaAlMetro, "taglio", "Taglio"), corsaIn<&R::taglioNodo>,
        equilibrioIn<&E::taglio>),
    inZ(riga(unita::pressione, "pressione_monte", "Pressione a monte"),
        pressioneCorsa<&results::PressioniNodo::pm>, equilibrioIn<&E::monte>),
    inZ(riga(unita::pressione, "pressione_valle", "Pressione a valle"),
        pressioneCorsa<&results::PressioniNodo::pv>, equilibrioIn<&E::valle>),
    inZ(riga(unita::pressione, "acqua", "Pressione netta dell'acqua"), nullptr,
        equilibrioIn<&E::acqua>),

    diFase(riga(unita::spostamentoFine, "spostamento_massimo", "Spostamento massimo"),
           estremoCorsa<&R::yNodo, perGrandezza>, estremoEquilibrio<&E::y, perGrandezza>),
    diFase(riga(unita::momentoAlMetro, "momento_massimo", "Momento più grande"),
           estremoCorsa<&R::momentoNodo, perValore>, estremoEquilibrio<&E::momento, perValore>),
    diFase(riga(unita::momentoAlMetro, "momento_minimo", "Momento più piccolo"),
           estremoCorsa<&R::momentoNodo, perOpposto>, estremoEquilibrio<&E::momento, perOpposto>),
    diFase(riga(unita::forzaAlMetro, "taglio_massimo", "Taglio massimo"),
           estremoCorsa<&R::taglioNodo, perGrandezza>, estremoEquilibrio<&E::taglio, perGrandezza>),
    diTirante(riga(unita::forzaAlMetro, "tiro", "Tiro del tirante"), tiroCorsa, tiroEquilibrio),

    inZ(riga(unita::pressione, "sigma_monte", "Tensione verticale a monte"), corsaIn<&R::sigmaVm>),
    inZ(riga(unita::pressione, "sigma_valle", "Tensione verticale a valle"), corsaIn<&R::sigmaVv>),
    inZ(riga(unita::numero, "k0_monte", "k0 a monte"), corsaIn<&R::k0m>),
    inZ(riga(unita::numero, "ka_monte", "ka a monte"), corsaIn<&R::kam>),
    inZ(riga(unita::numero, "kp_monte", "kp a monte"), corsaIn<&R::kpm>),
    inZ(riga(unita::numero, "k0_valle", "k0 a valle"), oppostoIn<&R::k0v>),
    inZ(riga(unita::numero, "ka_valle", "ka a valle"), oppostoIn<&R::kav>),
    inZ(riga(unita::numero, "kp_valle", "kp a valle"), oppostoIn<&R::kpv>),
    inZ(riga(unita::modulo, "ks_monte", "ks a monte"), oppostoIn<&R::Ehm>),
    inZ(riga(unita::modulo, "ks_valle", "ks a valle"), oppostoIn<&R::Ehv>),

    diFase(riga(unita::nessuna, "esito", "Esito"), nullptr, esito),
    dellaParete(riga(unita::metri, "lunghezza_minima", "Lunghezza minima"), lunghezzaMinima),
    diFase(riga(unita::numero, "riduzione", "Riduzione della resistenza F"), nullptr, riduzione),

    diSezione(riga(unita::rigidezzaFlessionale, "rigidezza_sezione", "Rigidezza EJ della sezione"),
              rigidezza),
    diSezione(
        riga(unita::momentoAlMetro, "momento_resistente_positivo", "Momento resistente positivo"),
        momentoResistente<1>),
    diSezione(
        riga(unita::momentoAlMetro, "momento_resistente_negativo", "Momento resistente negativo"),
        momentoResistente<2>),
    diSezione(
        riga(unita::forzaAlMetro, "taglio_resistente_bielle", "Taglio resistente delle bielle"),
        taglioResistente<&structure::ConfrontoTaglio::Vrd2>),
    diSezione(
        riga(unita::forzaAlMetro, "taglio_resistente_armatura", "Taglio resistente dell'armatura"),
        taglioResistente<&structure::ConfrontoTaglio::Vrd3>),
};

}  // namespace

std::span<const Grandezza> grandezze() { return tabella; }

const Grandezza* grandezza(std::string_view nome) {
    const auto* trovata = std::find_if(std::begin(tabella), std::end(tabella),
                                       [nome](const Grandezza& g) { return g.nome == nome; });
    return trovata == std::end(tabella) ? nullptr : trovata;
}

bool aParole(const Grandezza& grandezza) { return grandezza.equilibrio == esito; }

}  // namespace korven::verification
