#include <algorithm>
#include <string>

#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/anchor_names.hpp"
#include "project/field_table.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/greek_letters.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/margin_words.hpp"
#include "tables/check_table.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"

namespace korven::report {

using base::traduttore;
using dossier::Fascicolo;
using dossier::StoriaTirante;
using project::DatiProgetto;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

constexpr const char* maiInOpera = "Non è in opera in nessuna fase in equilibrio.";

// How many ties and how many struts the table has.
struct Conto {
    int tiranti = 0, puntoni = 0;
};
Conto conto(const Fascicolo& f) {
    Conto c;
    for (const StoriaTirante& t : f.tiranti)
        ++(puntone(f.parete.dati, t.tirante) ? c.puntoni : c.tiranti);
    return c;
}

const char* titolo(const Conto& c, const char* tiranti, const char* puntoni, const char* tutti) {
    return c.puntoni == 0 ? tiranti : c.tiranti == 0 ? puntoni : tutti;
}

Cella tipo(const DatiProgetto& dati, int j) {
    const auto* codice =
        project::codice(project::campo(&DatiProgetto::tipoTirante), dati.tipoTirante[j]);
    return codice == nullptr ? Cella{} : tables::parola(traduttore(codice->voce));
}

// As the editors show it: a stiffness has few digits that matter.
Cella rigidezza(double conservata) {
    const double kN = mostrato(unita::rigidezzaAlMetro, conservata);
    return {.testo = base::testoNumero(kN), .numero = kN};
}

// Why the report has no number of an anchor.
Cella senzaRelazione(const Fascicolo& f) {
    if (!f.margine) return tables::senza(traduttore("nessun numero"));
    if (f.conRelazione()) return tables::senza(traduttore(maiInOpera));
    return tables::senza(inFrase(f.parete.sta() ? safety::paroleRelazione(*f.margine)
                                                : tables::verdetto(*f.margine)));
}

Prospetto elenco(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore(titolo(conto(f), "Tiranti", "Puntoni", "Tiranti e puntoni")),
                .colonne = {colonna("Elemento"), simboli(unita::metri, "z"),
                            numeri(unita::metri, "Nodo a z"), colonna("Tipo"),
                            numeri(unita::rigidezzaAlMetro, "Rigidezza"),
                            numeri(unita::forzaAlMetro, "Pretensione"), numeri("Posa nella fase"),
                            numeri(unita::spostamentoFine, "y0")}};
    const DatiProgetto& dati = f.parete.dati;
    for (const StoriaTirante& t : f.tiranti) {
        auto& riga = p.righe.emplace_back(std::vector<Cella>{
            tables::parola(nomeTirante(dati, t.tirante)), tables::profondita(t.profondita),
            t.profonditaNodo ? tables::profondita(*t.profonditaNodo)
                             : tables::senza(traduttore("Non agisce su nessun nodo.")),
            tipo(dati, t.tirante), rigidezza(dati.rigTirante[t.tirante]),
            tables::forza(dati.pretTirante[t.tirante])});
        if (t.posa == 0)
            riga.resize(p.colonne.size(), tables::senza(traduttore(maiInOpera)));
        else
            riga.insert(riga.end(),
                        {tables::cella(t.posa),
                         t.spostamentoPosa ? tables::spostamento(*t.spostamentoPosa) : Cella{}});
    }
    p.note.push_back(
        traduttore("z: profondità scritta. Nodo a z: il nodo più vicino, su cui la forza agisce. "
                   "y0: spostamento del nodo alla fine della fase precedente, da cui la forza "
                   "conta; 0 per la prima fase. Rigidezza e pretensione sono orizzontali e per "
                   "metro di paratia, come scritte."));
    return p;
}

// Why the report has another largest force of an anchor; empty where it is the same number.
std::string percheAltra(const Fascicolo& f, const StoriaTirante& t) {
    if (!t.relazione) return {};
    const auto sua = std::find_if(f.doppi.begin(), f.doppi.end(), [&](const auto& d) {
        return d.cosa == dossier::Doppio::tiro && d.tirante == t.tirante && d.fase == t.faseMassimo;
    });
    return sua == f.doppi.end() ? std::string() : sua->perche;
}

Prospetto forze(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Forze maggiori"),
                .colonne = {colonna("Elemento"), numeri(unita::forzaAlMetro, "A fine fase di posa"),
                            numeri(unita::forzaAlMetro, "Massima"), numeri("Fase"),
                            numeri(unita::forzaAlMetro, "Relazione")}};
    for (const StoriaTirante& t : f.tiranti) {
        auto& riga = p.righe.emplace_back(
            std::vector<Cella>{tables::parola(nomeTirante(f.parete.dati, t.tirante))});
        if (t.posa == 0)
            riga.resize(4, tables::senza(traduttore(maiInOpera)));
        else
            riga.insert(riga.end(), {tables::forza(t.allaPosa), tables::forza(t.massimo),
                                     tables::cella(t.faseMassimo)});
        riga.push_back(t.relazione ? tables::cifre(mostrato(unita::forzaAlMetro, *t.relazione))
                                   : senzaRelazione(f));
    }
    p.note.push_back(traduttore(
        "A fine fase di posa: forza alla fine della fase che lo mette in opera. Massima: fra le "
        "fasi in equilibrio."));
    p.note.push_back(
        traduttore("Relazione: forza che la relazione stampa, cioè pretensione più rigidezza per "
                   "quanto il nodo è andato oltre la posizione alla messa in opera."));
    for (const StoriaTirante& t : f.tiranti)
        if (const std::string perche = percheAltra(f, t); !perche.empty())
            p.note.push_back(inFrase(base::conDuePunti(
                traduttore("Relazione") + ", " + nomeTirante(f.parete.dati, t.tirante), perche)));
    return p;
}

Prospetto perFase(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore(titolo(conto(f), "Forza dei tiranti in ogni fase",
                                            "Forza dei puntoni in ogni fase",
                                            "Forza di tiranti e puntoni in ogni fase")),
                .colonne = {numeri("Fase")}};
    for (const StoriaTirante& t : f.tiranti)
        p.colonne.push_back({.titolo = nomeTirante(f.parete.dati, t.tirante),
                             .unita = std::string(unita::forzaAlMetro.mostrata)});
    for (int k = 1; k <= f.parete.fasiInEquilibrio(); ++k) {
        auto& riga = p.righe.emplace_back(std::vector{tables::cella(k)});
        for (const StoriaTirante& t : f.tiranti) {
            const auto& tiro = t.tiri.at(static_cast<std::size_t>(k) - 1);
            riga.push_back(tiro ? tables::forza(*tiro)
                                : tables::senza(traduttore("Non è in opera in questa fase.")));
        }
    }
    if (!f.parete.sta()) p.note.push_back(percheInBreve(f.parete, f.parete.fasiInEquilibrio() + 1));
    return p;
}

}  // namespace

void capitoloTiranti(const Contesto& contesto, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    if (f.tiranti.empty()) {
        paragrafo(traduttore("Il progetto non ha né tiranti né puntoni."), blocchi);
        return;
    }
    const Conto quanti = conto(f);
    paragrafo(traduttore("Forze orizzontali per metro di paratia. Una forza positiva trattiene la "
                         "paratia: tende un tirante, comprime un puntone."),
              blocchi);
    paragrafo(traduttore("Nel modello ognuno è una molla sul suo nodo: T = P + k (y - y0), con P "
                         "pretensione, k rigidezza, y spostamento del nodo nella fase e y0 quello "
                         "alla posa; un tirante di sola trazione non scende sotto 0."),
              blocchi);
    if (quanti.tiranti > 0)
        paragrafo(conLettereGreche(
                      traduttore("La forza nell'asse di un tirante con interasse i e inclinazione "
                                 "alfa sull'orizzontale è T i / cos alfa.")),
                  blocchi);
    if (quanti.puntoni > 0)
        paragrafo(traduttore("Un puntone è orizzontale: a interasse i porta N = T i, di "
                             "compressione se positivo."),
                  blocchi);
    tavola(elenco(f), blocchi);
    tavola(forze(f), blocchi);
    if (f.parete.fasiInEquilibrio() > 0)
        tavola(perFase(f), blocchi);
    else
        paragrafo(percheInBreve(f.parete, 1), blocchi, document::Stile::pericolo);
}

}  // namespace korven::report
