#include "tables/check_table.hpp"

#include <cassert>
#include <cmath>
#include <optional>

#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "results/structure_checks.hpp"
#include "safety/margin_words.hpp"
#include "structure/section_validity.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"

namespace korven::tables {

namespace {

using base::traduttore;
using live::ControlliSezione;
using live::DoveVerifica;
using live::PareteViva;
using results::ConfrontoMomenti;
using safety::Margine;
using structure::ConfrontoTaglio;
namespace unita = project::unita;

// @param numero  a number with the digits of the report, or rounded where it is not the report's
std::vector<Cella> riga(const project::Unita& u, const char* cosa, double progetto,
                        double resistenza, Cella (*numero)(double), const DoveVerifica& dove,
                        std::string_view parole, bool fallita) {
    return {parola(traduttore(cosa) + " " + traParentesi(u)),
            numero(progetto),
            numero(resistenza),
            uso(progetto, resistenza),
            dove.fase > 0 ? cella(dove.fase) : tables::dove(0, 0),
            tables::dove(dove.fase, dove.z, dove.lato),
            esito(traduttore(parole), fallita)};
}

Cella arrotondato(double mostrato) { return cella(mostrato, 2, unita::nessuna); }

// The digits of the numbers that the checks are made of.
Cella (*numeroDi(const ControlliSezione& controlli))(double) {
    return controlli.dellaRelazione ? cifre : arrotondato;
}

void flessione(const ConfrontoMomenti& c, const ControlliSezione& controlli, Prospetto& p) {
    const project::Unita& u = unita::momentoAlMetro;
    p.righe.push_back(riga(u, "Flessione, momento positivo", mostrato(u, c.mdMax),
                           mostrato(u, c.mrPos), numeroDi(controlli), controlli.positivo,
                           results::sentenza(true, c.verificatoPos), c.fallitaPos()));
    if (c.negativo)
        p.righe.push_back(riga(u, "Flessione, momento negativo", mostrato(u, c.mdMin),
                               mostrato(u, c.mrNeg), numeroDi(controlli), controlli.negativo,
                               results::sentenza(false, c.verificatoNeg), c.fallitaNeg()));
}

// The report has a sentence for each failure and none for what holds.
void taglio(const ConfrontoTaglio& c, const ControlliSezione& controlli, Prospetto& p) {
    const auto aggiungi = [&](const char* cosa, double VRd, bool fallita, const char* rottura) {
        p.righe.push_back(
            riga(unita::forzaAlMetro, cosa, c.Vsd, VRd, numeroDi(controlli), controlli.diTaglio,
                 fallita ? rottura : "Condizioni di sicurezza verificate (taglio)", fallita));
    };
    aggiungi("Taglio, bielle di calcestruzzo", c.Vrd2, c.rotturaBielle(),
             "Rottura delle bielle di calcestruzzo compresse");
    aggiungi("Taglio, armatura d'anima", c.Vrd3, c.rotturaArmatura(),
             "Rottura dell'armatura d'anima");
}

std::vector<Colonna> colonne() {
    return {colonnaParole("Verifica", "Che cosa si verifica, per metro di paratia"),
            colonna(unita::nessuna, "Di progetto",
                    "Valore di progetto: il massimo di calcolo per il coefficiente delle azioni"),
            colonna(unita::nessuna, "Resistenza", "Resistenza di progetto della sezione"),
            colonna(unita::percento, "Sfruttamento", "Valore di progetto diviso per la resistenza"),
            colonna(unita::nessuna, "Fase", "Fase in cui il valore è raggiunto"),
            colonnaSimbolo(unita::metri, "z", "Profondità a cui il valore è raggiunto"),
            colonnaParole("Esito", "Esito, con le parole della relazione")};
}

// @return false where there is nothing to check
bool noteSezione(const PareteViva& parete, Prospetto& p) {
    if (!parete.sta()) {
        p.note.push_back(perche(parete, parete.fasiInEquilibrio() + 1));
        p.note.push_back(traduttore("Nessuna verifica: la paratia non è in equilibrio."));
        return false;
    }
    if (!structure::sezioneDefinita(parete.dati.sezione)) {
        p.note.push_back(traduttore("Nessuna verifica: la sezione non è definita."));
        return false;
    }
    if (!structure::staffePresenti(parete.dati.sezione))
        p.note.push_back(
            traduttore("Il taglio si verifica solo per pali armati con le staffe scritte."));
    return true;
}

void notaEquilibrio(Prospetto& p) {
    p.note.push_back(
        traduttore("Verifiche con i numeri della soluzione di equilibrio: momenti e taglio massimi "
                   "di tutte le fasi."));
}

void noteRelazione(const Margine& margine, Prospetto& p) {
    if (margine.relazione) {
        p.note.push_back(traduttore(
            "Numeri e regole della relazione: flessione con i momenti di tutte le fasi, taglio con "
            "il massimo dell'ultima fase."));
        return;
    }
    p.note.push_back(safety::paroleRelazione(margine));
    notaEquilibrio(p);
}

Prospetto senzaNote(const PareteViva& parete, const ControlliSezione& controlli) {
    Prospetto p{.titolo = traduttore("Verifiche"), .colonne = colonne()};
    if (!parete.sta()) return p;  // resistances alone are no check
    if (controlli.flessione) flessione(*controlli.flessione, controlli, p);
    if (controlli.taglio) taglio(*controlli.taglio, controlli, p);
    return p;
}

}  // namespace

Cella cifre(double mostrato) {
    if (!std::isfinite(mostrato)) return senza(traduttore("nessun numero"));
    return {.testo = project::numeroRelazione(mostrato), .numero = mostrato + 0.0};
}

Cella uso(double progetto, double resistenza) {
    return resistenza == 0 ? senza(traduttore("La resistenza è 0."))
                           : cella(progetto / resistenza, 1, unita::percento);
}

Prospetto prospettoVerifiche(const PareteViva& parete, const Margine& margine) {
    const ControlliSezione controlli =
        parete.sta() ? live::controlliSezione(parete, &margine) : ControlliSezione();
    Prospetto p = senzaNote(parete, controlli);
    if (noteSezione(parete, p)) noteRelazione(margine, p);
    return p;
}

Prospetto prospettoVerifiche(const PareteViva& parete, const ControlliSezione& controlli) {
    assert(!controlli.dellaRelazione);
    Prospetto p = senzaNote(parete, controlli);
    if (noteSezione(parete, p)) notaEquilibrio(p);
    return p;
}

}  // namespace korven::tables
