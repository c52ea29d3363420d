#include "dossier/twin_numbers.hpp"

#include <cassert>
#include <cmath>

#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "project/units.hpp"
#include "review/limits.hpp"
#include "review/statics_reasons.hpp"

namespace korven::dossier {

namespace {

using base::traduttore;
using equilibrium::Estremo;
using live::ControlliSezione;
using live::PareteViva;
using results::NumeroRelazione;
using safety::Confronto;
using safety::Margine;

// What neither a rule of the report nor the digits of its file explain.
constexpr const char* altreRegole =
    "il calcolo per fasi e la relazione hanno regole loro: si veda il capitolo Osservazioni";
constexpr const char* cifre =
    "soltanto cifre: il calcolo per fasi si ferma alla sua tolleranza, il suo file arrotonda gli "
    "spostamenti e la relazione tronca i numeri";

// In kN m or kN.
bool stessoNumero(double equilibrio, double relazione) {
    return std::fabs(equilibrio - relazione) < ultimaCifra;
}

// @param regola    of the report, an Italian key; empty where none is known
// @param conservati  in t m or t
std::string perche(double equilibrio, double relazione, std::string_view regola) {
    const double e = project::inKilonewton(equilibrio), r = project::inKilonewton(relazione);
    if (stessoNumero(e, r)) return {};
    constexpr double soloCifre = 1e-3;  // of the number: far below what any rule changes
    if (std::fabs(e - r) <= soloCifre * std::fabs(e)) return traduttore(cifre);
    return traduttore(regola.empty() ? altreRegole : regola);
}

NumeroDoppio doppio(Doppio cosa, const Estremo& e, const NumeroRelazione& r, int fase) {
    return {.cosa = cosa,
            .fase = fase,
            .equilibrio = e.valore,
            .zEquilibrio = e.z,
            .relazione = r.valore,
            .zRelazione = r.z};
}

// Follows the report of one wall.
class Doppi {
 public:
    Doppi(const PareteViva& parete, const Margine& margine) : parete_(parete), margine_(margine) {
        for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) fase(k);
    }
    [[nodiscard]] std::vector<NumeroDoppio> tutti() { return std::move(tutti_); }

 private:
    void fase(int k) {
        const auto i = static_cast<std::size_t>(k) - 1;
        if (i >= margine_.relazione->fasi.size()) return;
        const results::NumeriFase& r = margine_.relazione->fasi[i];
        const equilibrium::Estremi e = *parete_.estremiDi(k);
        momento(doppio(Doppio::momentoMassimo, e.momentoMassimo, r.momentoMassimo, k));
        momento(doppio(Doppio::momentoMinimo, e.momentoMinimo, r.momentoMinimo, k));
        taglio(doppio(Doppio::taglio, e.taglio, r.taglio, k), e.taglio.lato);
        for (const safety::ConfrontoTiro& t : margine_.fasi.at(i).confronto.tiri) tiro(k, t);
    }

    [[nodiscard]] static Confronto confronto(const NumeroDoppio& d,
                                             equilibrium::Lato lato = equilibrium::Lato::unico) {
        return {{d.equilibrio, d.zEquilibrio, d.fase, lato},
                NumeroRelazione{d.relazione, d.zRelazione, d.fase}};
    }
    void momento(NumeroDoppio d) {
        d.perche = percheMomento(parete_, margine_, confronto(d));
        tutti_.push_back(std::move(d));
    }
    void taglio(NumeroDoppio d, equilibrium::Lato lato) {
        d.perche = percheTaglio(parete_, margine_, confronto(d, lato));
        tutti_.push_back(std::move(d));
    }
    void tiro(int k, const safety::ConfrontoTiro& t) {
        if (!t.relazione) return;
        NumeroDoppio& d = tutti_.emplace_back();
        d.cosa = Doppio::tiro;
        d.fase = k;
        d.tirante = t.tirante;
        d.equilibrio = t.statica;
        d.relazione = t.relazione->valore;
        d.perche = perche(d.equilibrio, d.relazione, regolaTiro(t));
    }
    [[nodiscard]] std::string_view regolaTiro(const safety::ConfrontoTiro& t) const {
        const project::DatiProgetto& dati = parete_.dati;
        if (t.statica == 0 && t.relazione->valore < 0 &&
            dati.tipoTirante[t.tirante] != project::TipoTirante::trazioneCompressione)
            return "il tirante è lento: la relazione lo conta come una molla compressa";
        const double incertezza =
            review::incertezzaSpostamento * std::fabs(dati.rigTirante[t.tirante]);
        if (std::fabs(t.statica - t.relazione->valore) <= incertezza)
            return "il file dei risultati arrotonda gli spostamenti, che una rigidezza così "
                   "grande moltiplica";
        return {};
    }

    const PareteViva& parete_;
    const Margine& margine_;
    std::vector<NumeroDoppio> tutti_;
};

const live::DoveVerifica& dove(const ControlliSezione& c, Verifica cosa) {
    if (cosa == Verifica::momentoPositivo) return c.positivo;
    return cosa == Verifica::momentoNegativo ? c.negativo : c.diTaglio;
}

std::optional<LatoVerifica> lato(const ControlliSezione& c, Verifica cosa) {
    const auto uso = results::uso({c.flessione, c.taglio}, cosa);
    if (!uso) return std::nullopt;
    return LatoVerifica{*uso, dove(c, cosa)};
}

// Of the largest numbers, which the checks take.
std::string perche(const PareteViva& parete, const Margine& margine, Verifica cosa) {
    const results::NumeriRelazione& r = *margine.relazione;
    const equilibrium::Estremi& e = parete.estremi;
    if (cosa == Verifica::momentoPositivo || cosa == Verifica::momentoNegativo) {
        const bool positivo = cosa == Verifica::momentoPositivo;
        const Confronto c{positivo ? e.momentoMassimo : e.momentoMinimo,
                          positivo ? r.momentoMassimo() : r.momentoMinimo()};
        return percheMomento(parete, margine, c);
    }
    // The report checks the shear of its last stage.
    const Confronto c{e.taglio, r.fasi.back().taglio};
    if (c.statica.fase == c.relazione->fase) return percheTaglio(parete, margine, c);
    return perche(std::fabs(c.statica.valore), std::fabs(c.relazione->valore),
                  "la relazione verifica soltanto il taglio dell'ultima fase");
}

}  // namespace

std::string percheMomento(const PareteViva& parete, const Margine& margine, const Confronto& c) {
    assert(c.relazione);
    return perche(c.statica.valore, c.relazione->valore,
                  review::motivoMomento(parete.dati, margine, c).testo);
}

std::string percheTaglio(const PareteViva& parete, const Margine& margine, const Confronto& c) {
    assert(c.relazione);
    return perche(c.statica.valore, c.relazione->valore,
                  review::motivoTaglio(parete.dati, margine, c).testo);
}

std::vector<NumeroDoppio> numeriDoppi(const PareteViva& parete, const Margine& margine) {
    if (!margine.relazione) return {};
    return Doppi(parete, margine).tutti();
}

const LatoVerifica& VerificaDoppia::decisiva() const {
    assert(equilibrio || relazione);
    if (!relazione) return *equilibrio;
    if (!equilibrio) return *relazione;
    if (equilibrio->fallita != relazione->fallita)
        return equilibrio->fallita ? *equilibrio : *relazione;
    return relazione->uso().value_or(0) > equilibrio->uso().value_or(0) ? *relazione : *equilibrio;
}

std::vector<VerificaDoppia> verificheDoppie(const PareteViva& parete,
                                            const ControlliSezione& controlli,
                                            const Margine* margine) {
    std::vector<VerificaDoppia> tutte;
    if (!controlli.conAzioni) return tutte;
    const ControlliSezione altri = live::controlliSezione(parete, margine);
    for (const Verifica cosa : results::tutteLeVerifiche) {
        VerificaDoppia v{.cosa = cosa, .equilibrio = lato(controlli, cosa), .relazione = {}};
        if (altri.dellaRelazione) v.relazione = lato(altri, cosa);
        if (v.equilibrio && v.relazione) v.perche = perche(parete, *margine, cosa);
        if (v.equilibrio || v.relazione) tutte.push_back(std::move(v));
    }
    return tutte;
}

}  // namespace korven::dossier
