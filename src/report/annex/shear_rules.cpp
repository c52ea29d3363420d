#include "report/annex/shear_rules.hpp"

#include <cassert>
#include <cmath>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/section_rows.hpp"
#include "structure/partial_factors.hpp"
#include "tables/check_words.hpp"

namespace korven::report {

using base::riempito;
using base::testoDecimali;
using base::traduttore;
using dossier::Fascicolo;
using dossier::ValoriTaglio;
using tables::Prospetto;

namespace {

// Of the code: the least k, the largest share of bars, the factor of concrete.
constexpr double minimoK = 1, massimaQuotaBarre = 0.02, fsCalcestruzzoNorma = 1.5;

constexpr const char* aFavore = "resistenza minore: a favore di sicurezza";
constexpr const char* aSfavore = "resistenza maggiore: a sfavore di sicurezza";
constexpr const char* uguale = "nessuna differenza";

std::string mm(double misura) { return testoDecimali(misura, 1) + " " + unitaLunghezza; }

const char* effettoNormale(double N) {
    if (N == 0) return uguale;
    return N > 0 ? aFavore : aSfavore;
}

}  // namespace

Prospetto prospettoScostamentiTaglio(const project::DatiProgetto& dati, const ValoriTaglio& v) {
    Prospetto p{.titolo = traduttore("Dove la verifica si scosta da ENV 1992-1-1"),
                .colonne = {colonna("Grandezza fisica"), colonna("Nella norma"),
                            colonna("In questa verifica"), colonna("Che cosa ne viene")}};
    const auto riga = [&](const char* simbolo, std::string norma, std::string qui,
                          const char* effetto) {
        p.righe.push_back({tables::parola(simbolo), tables::parola(std::move(norma)),
                           tables::parola(std::move(qui)), tables::parola(traduttore(effetto))});
    };
    const structure::ValoriTaglio& w = v.palo;
    riga("γc", testoDecimali(fsCalcestruzzoNorma, 2), testoDecimali(v.fsCalcestruzzo, 2), aFavore);
    riga("k", traduttore("1.6 - d in metri, non sotto 1"), testoDecimali(w.k, 4),
         w.k < minimoK ? aFavore : uguale);
    riga("ρl",
         riempito(traduttore("le barre tese e ancorate, non oltre %1"),
                  {testoDecimali(massimaQuotaBarre, 2)}),
         riempito(traduttore("tutte le barre: %1"), {testoDecimali(w.rhoL, 6)}), aSfavore);
    riga("bw", traduttore("la larghezza minore dell'anima"),
         riempito(traduttore("il diametro: %1"), {mm(w.bw)}), aSfavore);
    riga("d", traduttore("fino al baricentro delle barre tese"),
         riempito(traduttore("fino alla barra più lontana: %1"), {mm(w.d)}), aSfavore);
    riga("σcp", "τRd k (1.2 + 40 ρl) + 0.15 σcp",
         riempito(traduttore("0, lo sforzo normale di %1 kN/m non entra"),
                  {project::numeroMostrato(project::inKilonewton(dati.sforzoNormale), 2)}),
         effettoNormale(dati.sforzoNormale));
    p.note.push_back(
        traduttore("La norma è scritta per anime rettangolari: per un palo tondo gli scostamenti a "
                   "sfavore vanno pesati da chi verifica. Dove lo sforzo normale non entra, una "
                   "compressione lasciata fuori è a favore, una trazione a sfavore."));
    return p;
}

std::string percheSenzaTaglio(const Fascicolo& f) {
    assert(!f.taglio);
    return tables::percheSenzaTaglio(f.parete.dati.sezione);
}

std::string taglioDaVerificare(const Fascicolo& f) {
    // The shear of the stages before the one that falls is not the wall's largest.
    if (!f.parete.sta()) return traduttore("La paratia non è in equilibrio.");
    const equilibrium::Estremo& T = f.parete.estremi.taglio;
    const auto Vd = dossier::taglioDiProgetto(f.parete);
    if (!Vd) return {};
    const double V = std::fabs(project::inKilonewton(T.valore));
    return riempito(
        traduttore("Da verificare a parte: taglio di progetto %1 · %2 = %3 kN/m (fase "
                   "%4, z = %5 m)."),
        {testoDecimali(structure::fsAzioniSezione, 2), project::numeroMostrato(V, 3),
         project::numeroMostrato(*Vd, 2), std::to_string(T.fase), project::numeroMostrato(T.z, 2)});
}

}  // namespace korven::report
