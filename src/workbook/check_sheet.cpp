#include "workbook/check_sheet.hpp"

#include <optional>
#include <utility>
#include <vector>

#include "base/translated_texts.hpp"
#include "safety/check_verdict.hpp"
#include "safety/margin_words.hpp"
#include "safety/mesh_words.hpp"
#include "tables/check_table.hpp"
#include "tables/check_words.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"

namespace korven::workbook {

namespace {

using base::traduttore;
using dossier::Fascicolo;
using dossier::VerificaDoppia;
using tables::Cella;
using tables::colonna;
using tables::Prospetto;
namespace unita = project::unita;

std::vector<tables::Colonna> colonne() {
    std::vector<tables::Colonna> tutte = tables::colonneVerifiche();
    tutte.push_back(colonna(unita::nessuna, "Di progetto, relazione",
                            "Come lo trova il calcolo per fasi e lo usa la relazione"));
    tutte.push_back(colonna(unita::percento, "Sfruttamento, relazione",
                            "Come lo trova il calcolo per fasi e lo usa la relazione"));
    tutte.push_back(tables::colonnaTendenza());
    tutte.push_back(tables::colonnaParole("Esito", tables::spiegazioneEsito));
    return tutte;
}

Cella arrotondata(double mostrato) { return tables::cella(mostrato, 2, unita::nessuna); }

std::string nome(const project::Unita& u, const char* cosa) {
    return traduttore(cosa) + " " + traParentesi(u);
}

std::vector<Cella> riga(const Fascicolo& f, const VerificaDoppia& v) {
    const Cella senzaMomento = tables::senza(traduttore("Nessun momento negativo agisce."));
    const Cella senzaRelazione =
        f.conRelazione() ? senzaMomento : tables::senza(paroleRelazione(*f.margine));
    const auto& e = v.equilibrio;
    const auto& r = v.relazione;
    return {tables::parola(nome(tables::unitaDi(v.cosa), tables::nome(v.cosa))),
            e ? arrotondata(e->progetto) : senzaMomento,
            arrotondata((e ? *e : *r).resistenza),
            e ? tables::uso(e->progetto, e->resistenza) : senzaMomento,
            e && e->dove.fase > 0 ? tables::cella(e->dove.fase) : tables::dove(0, 0),
            e ? tables::dove(e->dove.fase, e->dove.z, e->dove.lato) : senzaMomento,
            r ? tables::cifre(r->progetto) : senzaRelazione,
            r ? tables::uso(r->progetto, r->resistenza) : senzaRelazione,
            tables::tendenza(*f.margine, v.cosa),
            tables::esito(giudizio(*f.margine, v.cosa))};
}

// What nobody checks must not look as if there were nothing to check.
std::vector<Cella> rigaTaglio(const Fascicolo& f, double Vd) {
    const equilibrium::Estremo& T = f.parete.estremi.taglio;
    const Cella manca = tables::senza(tables::percheSenzaTaglio(f.parete.dati.sezione));
    return {tables::parola(nome(unita::forzaAlMetro, "Taglio")),
            arrotondata(Vd),
            manca,
            manca,
            tables::cella(T.fase),
            tables::profondita(T.z, T.lato),
            manca,
            manca,
            manca,
            tables::parola(traduttore("nessuna verifica"))};
}

void note(const Fascicolo& f, Prospetto& p) {
    p.note.push_back(tables::notaVerificheInEquilibrio());
    for (const safety::AvvisoMaglia& avviso : safety::avvisiMaglia(*f.margine))
        if (avviso.verdetto) p.note.push_back(avviso.testo);
}

}  // namespace

Prospetto prospettoVerifiche(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Verifiche"), .colonne = colonne()};
    if (!f.parete.sta() || !f.margine) {
        p.note = {tables::perche(f.parete, f.parete.fasiInEquilibrio() + 1),
                  traduttore("Nessuna verifica: la paratia non è in equilibrio.")};
        return p;
    }
    for (const VerificaDoppia& v : f.verifiche) p.righe.push_back(riga(f, v));
    const auto Vd = dossier::taglioDiProgetto(f.parete);
    if (!f.taglio && Vd) p.righe.push_back(rigaTaglio(f, *Vd));
    if (!f.flessione)
        p.note.push_back(traduttore("Nessuna verifica: la sezione non è definita."));
    else
        note(f, p);
    return p;
}

}  // namespace korven::workbook
