#include "report/annex/run_tables.hpp"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/margin_words.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::CorsaFase;
using dossier::Fascicolo;
using dossier::Scarto;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

const CorsaFase* corsa(const Fascicolo& f, int fase) {
    const auto i = static_cast<std::size_t>(fase) - 1;
    return i < f.corsa.size() ? &f.corsa[i] : nullptr;
}

Cella scarto(const std::optional<Scarto>& s, Cella (*cella)(double)) {
    return s ? cella(s->valore) : Cella{};
}

// The stages that differ for one reason, by depth.
struct Causa {
    std::string perche;
    double altrove = 0;  // largest difference of their other nodes
    bool unNodo = true;  // all are of one node
    std::vector<std::pair<std::string, std::vector<int>>> dove;  // depth, stages
};

// The element of a list that a word begins, added where there is none.
template <class T, class Parola>
T& trova(std::vector<T>& tutti, Parola T::*parola, const std::string& cercata) {
    for (T& uno : tutti)
        if (uno.*parola == cercata) return uno;
    T& nuovo = tutti.emplace_back();
    nuovo.*parola = cercata;
    return nuovo;
}

std::string elenco(const std::vector<int>& fasi) {
    std::string testo;
    for (const int fase : fasi) testo += (testo.empty() ? "" : ", ") + std::to_string(fase);
    return testo;
}

// "Scarto del taglio (fasi 2, 3 a 1.60 m): at the anchor ...", a reason once for all its stages.
void motivi(const Fascicolo& f, const project::Unita& u, const char* cosa,
            std::optional<Scarto> CorsaFase::*quale, Prospetto& p) {
    using Dove = std::pair<std::string, std::vector<int>>;
    std::vector<Causa> cause;
    for (const CorsaFase& c : f.corsa) {
        const std::optional<Scarto>& s = c.*quale;
        if (!s || s->perche.empty()) continue;
        Causa& causa = trova(cause, &Causa::perche, s->perche);
        causa.altrove = std::max(causa.altrove, s->altrove);
        causa.unNodo = causa.unNodo && s->unNodo();
        trova(causa.dove, &Dove::first, tables::profondita(s->z).testo).second.push_back(c.fase);
    }
    for (const Causa& causa : cause) {
        std::string dove;
        for (const auto& [z, fasi] : causa.dove)
            dove += (dove.empty() ? std::string() : base::puntoEVirgola()) +
                    riempito(traduttore(fasi.size() == 1 ? "fase %1 a %2 m" : "fasi %1 a %2 m"),
                             {elenco(fasi), z});
        p.note.push_back(
            inFrase(base::conDuePunti(traduttore(cosa) + " (" + dove + ")", causa.perche)));
        if (causa.unNodo)
            p.note.back() +=
                " " + riempito(traduttore("Soltanto lì: negli altri nodi è al più di %1 %2."),
                               {tables::cella(causa.altrove, 2, u).testo, std::string(u.mostrata)});
    }
}

// Why a stage differs, where its own sentence on the report has not said it.
std::string motivo(const Fascicolo& f, const CorsaFase& c, const char* cosa,
                   const std::optional<Scarto>& s) {
    if (!s || s->perche.empty()) return {};
    const bool detto = std::any_of(f.doppi.begin(), f.doppi.end(), [&](const auto& d) {
        return d.fase == c.fase && d.cosa != dossier::Doppio::tiro && d.perche == s->perche;
    });
    return detto ? std::string() : " " + inFrase(base::conDuePunti(traduttore(cosa), s->perche));
}

// That a largest difference is no difference of the curves but of one node.
std::string delNodo(const project::Unita& u, const char* frase, const std::optional<Scarto>& s) {
    if (!s || s->perche.empty() || !s->unNodo()) return {};
    return " " + riempito(traduttore(frase),
                          {tables::profondita(s->z).testo, tables::cella(s->altrove, 2, u).testo});
}

// Why there is no run, or why it has no report; empty where both are.
std::string sullaCorsa(const Fascicolo& f) {
    if (!f.parete.sta() || !f.margine || f.corsa.empty())
        return traduttore("Il calcolo per fasi, che scrive la relazione, non è stato eseguito.");
    return inFrase(safety::paroleRelazione(*f.margine));
}

}  // namespace

Prospetto prospettoCorse(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Soluzione di equilibrio e calcolo per fasi"),
                .colonne = {numeri("Fase"), numeri("Passi"), numeri("Iterazioni"), colonna("Esito"),
                            numeri(unita::spostamentoFine, "Scarto dello spostamento"),
                            numeri(unita::momentoAlMetro, "Scarto del momento"),
                            numeri(unita::forzaAlMetro, "Scarto del taglio")}};
    for (int k = 1; k <= f.parete.fasiInEquilibrio(); ++k) {
        auto& riga = p.righe.emplace_back(
            std::vector{tables::cella(k), tables::cella(f.parete.fase(k)->passi)});
        riga.resize(p.colonne.size());
        const CorsaFase* c = corsa(f, k);
        if (c == nullptr) continue;
        riga[2] = tables::cella(c->iterazioni);
        riga[3] = tables::esito(traduttore(c->convergente ? "a convergenza" : "non a convergenza"),
                                !c->convergente);
        riga[4] = scarto(c->scartoSpostamento, tables::spostamento);
        riga[5] = scarto(c->scartoMomento, tables::momento);
        riga[6] = scarto(c->scartoTaglio, tables::forza);
    }
    p.note.push_back(traduttore(
        "Passi: del metodo di Newton, con cui si trova la soluzione di equilibrio. Iterazioni: "
        "del calcolo per fasi, che scrive la relazione. Scarti: le maggiori differenze "
        "fra i due lungo la paratia, in valore assoluto."));
    motivi(f, unita::momentoAlMetro, "Scarto del momento", &CorsaFase::scartoMomento, p);
    motivi(f, unita::forzaAlMetro, "Scarto del taglio", &CorsaFase::scartoTaglio, p);
    if (std::string frase = sullaCorsa(f); !frase.empty()) p.note.push_back(std::move(frase));
    return p;
}

std::string frasePassi(const Fascicolo& f, int fase) {
    const std::string passi = std::to_string(f.parete.fase(fase)->passi);
    const CorsaFase* c = corsa(f, fase);
    if (c == nullptr)
        return riempito(traduttore("Equilibrio trovato in %1 passi. Il calcolo per fasi non ha "
                                   "numeri di questa fase."),
                        {passi});
    if (!c->convergente || !c->scartoSpostamento || !c->scartoMomento || !c->scartoTaglio)
        return riempito(
            traduttore("Equilibrio trovato in %1 passi. Il calcolo per fasi non converge "
                       "(iterazioni: %2)."),
            {passi, std::to_string(c->iterazioni)});
    return riempito(
               traduttore(
                   "Equilibrio trovato in %1 passi. Il calcolo per fasi (iterazioni: %2) ne "
                   "differisce al più di %3 mm, di %4 kN m/m nel momento e di %5 kN/m nel taglio."),
               {passi, std::to_string(c->iterazioni),
                tables::spostamento(c->scartoSpostamento->valore).testo,
                tables::momento(c->scartoMomento->valore).testo,
                tables::forza(c->scartoTaglio->valore).testo}) +
           delNodo(
               unita::momentoAlMetro,
               "Lo scarto del momento è del solo nodo a %1 m: negli altri è al più di %2 kN m/m.",
               c->scartoMomento) +
           delNodo(unita::forzaAlMetro,
                   "Lo scarto del taglio è del solo nodo a %1 m: negli altri è al più di %2 kN/m.",
                   c->scartoTaglio) +
           motivo(f, *c, "Scarto del momento", c->scartoMomento) +
           motivo(f, *c, "Scarto del taglio", c->scartoTaglio);
}

}  // namespace korven::report
