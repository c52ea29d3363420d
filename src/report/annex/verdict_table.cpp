#include "report/annex/verdict_table.hpp"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "factors/words.hpp"
#include "project/codes.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/section_tables.hpp"
#include "report/annex/shear_rules.hpp"
#include "report/annex/table_pieces.hpp"
#include "review/limits.hpp"
#include "safety/check_verdict.hpp"
#include "safety/margin_words.hpp"
#include "tables/margin_table.hpp"
#include "tables/quantities.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::Fascicolo;
using dossier::LatoVerifica;
using dossier::VerificaDoppia;
using safety::Giudizio;
using tables::Cella;
using tables::parola;
namespace unita = project::unita;

namespace {

std::vector<Cella> riga(const char* cosa, Cella verdetto, std::string dettaglio) {
    return {parola(traduttore(cosa)), std::move(verdetto), parola(std::move(dettaglio))};
}

// The words of a verdict agree with the gender of what is judged.
struct Genere {
    const char* riuscito;
    const char* fallito;
};
constexpr Genere maschile = {"verificato", "NON verificato"};
constexpr Genere femminile = {"verificata", "NON verificata"};

Cella verdetto(const Genere& genere, Giudizio giudizio) {
    const auto parole = [&]() -> std::string {
        switch (giudizio) {
            case Giudizio::verificata:
                return genere.riuscito;
            case Giudizio::fallita:
                return genere.fallito;
            case Giudizio::nonAssestata:
            case Giudizio::cambia:
                break;
        }
        return std::string(nome(giudizio));
    };
    return tables::esito(traduttore(parole()), giudizio != Giudizio::verificata);
}

Cella nessunaVerifica() { return parola(traduttore("nessuna verifica")); }

// As it stands within a line.
const char* nomeBreve(dossier::Verifica verifica) {
    switch (verifica) {
        case dossier::Verifica::momentoPositivo:
            return "momento positivo";
        case dossier::Verifica::momentoNegativo:
            return "momento negativo";
        case dossier::Verifica::bielle:
            return "bielle di calcestruzzo";
        case dossier::Verifica::armatura:
            break;
    }
    return "armatura d'anima";
}

// Why no strength reduction of the range ends any stage.
std::string percheOltre(const Fascicolo& f) {
    const auto& fasi = f.margine->fasi;
    if (std::none_of(fasi.begin(), fasi.end(),
                     [](const auto& fase) { return fase.riduzione.senzaTerreno; }))
        return traduttore("basta un decimo della resistenza del terreno");
    const double piede = f.parete.dati.vincoloPiede;
    const char* chi = "tiranti, puntoni e vincoli tengono la paratia qualunque sia il terreno";
    if (piede == project::VincoloPiede::incastro)
        chi = "il piede incastrato tiene la paratia qualunque sia il terreno";
    else if (piede == project::VincoloPiede::cerniera)
        chi = "il piede fermo e i sostegni sopra tengono la paratia qualunque sia il terreno";
    return traduttore(chi) + base::puntoEVirgola() +
           traduttore(
               "il calcolo prende tiranti, puntoni e vincoli con resistenza senza limite, da "
               "verificare a "
               "parte");
}

// The verdict on the stages, with what a reader must know beside it.
std::string margineInBreve(const Fascicolo& f) {
    const safety::Margine& m = *f.margine;
    std::string testo = tables::verdetto(m);
    if (m.sta() && m.decisiva() == nullptr) testo += " " + inFrase(percheOltre(f));
    if (m.sta() && m.pericolosa())
        testo += " " + riempito(traduttore("F è sotto %1: pericolo, vedi Osservazioni."),
                                {base::testoDecimali(safety::riduzionePericolosa, 2)});
    if (!m.maglia) return testo;
    const double errore = m.maglia->peggiore().quota;
    if (errore > review::erroreMagliaDetto)
        testo += " " + riempito(traduttore("Errore di maglia fino a %1 %: aumentare i segmenti."),
                                {tables::cella(errore, 1, unita::percento).testo});
    return testo;
}

double uso(const std::optional<LatoVerifica>& lato) { return lato ? lato->uso().value_or(0) : 0; }

// The check that uses most of a resistance by the numbers of either calculation.
const VerificaDoppia* piuSfruttata(const Fascicolo& f,
                                   std::initializer_list<dossier::Verifica> quali) {
    const auto massimo = [](const VerificaDoppia& v) {
        return std::max(uso(v.equilibrio), uso(v.relazione));
    };
    const VerificaDoppia* peggiore = nullptr;
    for (const VerificaDoppia& v : f.verifiche) {
        if (std::find(quali.begin(), quali.end(), v.cosa) == quali.end()) continue;
        if (peggiore == nullptr || massimo(v) > massimo(*peggiore)) peggiore = &v;
    }
    return peggiore;
}

std::string sfruttamento(const VerificaDoppia& v, const std::optional<LatoVerifica>& lato) {
    if (!lato || !lato->uso()) return {};
    return riempito(
        traduttore("sfruttamento %1 % (%2, fase %3, z = %4 m)"),
        {tables::cella(*lato->uso(), 1, unita::percento).testo, traduttore(nomeBreve(v.cosa)),
         std::to_string(lato->dove.fase), tables::profondita(lato->dove.z).testo});
}

// Of one check both uses; the wall is judged by the worse of the two.
std::string sfruttamenti(const VerificaDoppia* v) {
    if (v == nullptr) return {};
    std::string equilibrio = sfruttamento(*v, v->equilibrio);
    const std::string relazione = sfruttamento(*v, v->relazione);
    if (relazione.empty() || relazione == equilibrio) return equilibrio;
    return riempito(traduttore("equilibrio: %1; relazione: %2; vale il maggiore"),
                    {equilibrio.empty() ? tables::nessuno : equilibrio, relazione});
}

// The heaviest of some checks; a paragraph below says what finer meshes make of them.
Giudizio peggiore(const Fascicolo& f, std::initializer_list<dossier::Verifica> quali) {
    Giudizio peggiore = Giudizio::verificata;
    for (const dossier::Verifica cosa : quali)
        if (f.margine) peggiore = std::max(peggiore, giudizio(*f.margine, cosa).value_or(peggiore));
    return peggiore;
}

std::vector<Cella> verifica(const char* cosa, const Genere& genere, const Fascicolo& f,
                            std::initializer_list<dossier::Verifica> quali) {
    std::string dettaglio = sfruttamenti(piuSfruttata(f, quali));
    if (dettaglio.empty()) dettaglio = traduttore("La resistenza è 0.");
    return riga(cosa, verdetto(genere, peggiore(f, quali)), std::move(dettaglio));
}

Giudizio equilibrioInFasi(const Fascicolo& f) {
    if (!f.parete.sta()) return Giudizio::fallita;
    return f.margine && !assestata(*f.margine) ? Giudizio::cambia : Giudizio::verificata;
}

std::vector<Cella> equilibrio(const Fascicolo& f) {
    std::vector<Cella> celle =
        riga("Equilibrio di tutte le fasi", verdetto(maschile, equilibrioInFasi(f)),
             f.margine ? margineInBreve(f) : f.parete.rifiuto);
    // As red as in the chapter on the margin: the cover is the page that is signed.
    if (f.margine && f.margine->pericolosa()) celle.back().peso = review::Peso::pericolo;
    return celle;
}

std::vector<Cella> senzaAzioni(const char* cosa) {
    return riga(cosa, nessunaVerifica(), traduttore("La paratia non è in equilibrio."));
}

std::vector<Cella> flessione(const Fascicolo& f) {
    constexpr const char* cosa = "Flessione";
    if (!f.flessione || !f.controlli.flessione)
        return riga(cosa, nessunaVerifica(), traduttore("La sezione non è definita."));
    if (!f.controlli.conAzioni || !f.parete.sta()) return senzaAzioni(cosa);
    std::vector<Cella> celle =
        verifica(cosa, femminile, f,
                 {dossier::Verifica::momentoPositivo, dossier::Verifica::momentoNegativo});
    for (const std::string& nota : {sforzoFavorevole(f.flessione->positivo, "momento positivo"),
                                    sforzoFavorevole(f.flessione->negativo, "momento negativo")})
        if (!nota.empty())
            celle.back().testo += (celle.back().testo.ends_with('.') ? " " : ". ") + nota;
    return celle;
}

std::vector<Cella> taglio(const Fascicolo& f) {
    constexpr const char* cosa = "Taglio";
    if (!f.taglio || !f.controlli.taglio) {
        std::string dettaglio = percheSenzaTaglio(f) + " " + taglioDaVerificare(f);
        if (f.norma) dettaglio += " " + factors::taglioDaVerificare(*f.norma);
        return riga(cosa, nessunaVerifica(), std::move(dettaglio));
    }
    if (!f.controlli.conAzioni || !f.parete.sta()) return senzaAzioni(cosa);
    return verifica(cosa, maschile, f, {dossier::Verifica::bielle, dossier::Verifica::armatura});
}

// Which combinations are not met; the numbers stand in their chapter.
std::vector<Cella> norma(const factors::Combinazioni& tutte) {
    Cella esito =
        tutte.sta() && !tutte.conVerifiche()
            ? nessunaVerifica()
            : tables::esito(traduttore(tutte.verificate() ? "verificate" : "NON verificate"),
                            !tutte.verificate());
    return {parola(riempito(traduttore("Combinazioni della norma %1"), {tutte.norma.titolo})),
            std::move(esito), parola(factors::verdetto(tutte))};
}

// The remarks of a weight; each is counted under its own, as in their chapter.
std::vector<Cella> osservazioni(const Fascicolo& f, const char* cosa, review::Peso peso) {
    const int quante = review::quante(f.osservazioni, peso);
    return riga(
        cosa,
        tables::esito(quante == 0 ? traduttore("nessuna") : std::to_string(quante), quante > 0),
        riempito(traduttore("%1 in tutto, nel capitolo Osservazioni"),
                 {std::to_string(f.osservazioni.size())}));
}

}  // namespace

tables::Prospetto prospettoVerdetti(const Fascicolo& f) {
    tables::Prospetto p{.titolo = traduttore("Verdetti"),
                        .colonne = {colonna("Verifica"), colonna("Esito"), colonna("Dettaglio")}};
    p.righe = {equilibrio(f), flessione(f), taglio(f)};
    if (f.norma) p.righe.push_back(norma(*f.norma));
    if (!review::calcolabile(f.osservazioni))
        p.righe.push_back(osservazioni(f, "Osservazioni che impediscono il calcolo per fasi",
                                       review::Peso::impedisce));
    p.righe.push_back(osservazioni(f, "Osservazioni di peso pericolo", review::Peso::pericolo));
    if (f.margine && !safety::paroleRelazione(*f.margine).empty())
        p.note.push_back(safety::paroleRelazione(*f.margine));
    return p;
}

}  // namespace korven::report
