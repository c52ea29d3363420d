#include "tables/check_table.hpp"

#include <cassert>
#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "results/structure_checks.hpp"
#include "safety/margin_words.hpp"
#include "safety/mesh_words.hpp"
#include "structure/section_validity.hpp"
#include "tables/check_words.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"

namespace korven::tables {

namespace {

using base::traduttore;
using live::ControlliSezione;
using live::DoveVerifica;
using live::PareteViva;
using results::ConfrontoMomenti;
using results::Verifica;
using safety::Margine;
using structure::ConfrontoTaglio;
namespace unita = project::unita;

// @param numero  a number with the digits of the report, or rounded where it is not the report's
std::vector<Cella> riga(Verifica cosa, double progetto, double resistenza, Cella (*numero)(double),
                        const DoveVerifica& dove, Cella esito) {
    return {parola(traduttore(nome(cosa)) + " " + traParentesi(unitaDi(cosa))),
            numero(progetto),
            numero(resistenza),
            uso(progetto, resistenza),
            dove.fase > 0 ? cella(dove.fase) : tables::dove(0, 0),
            tables::dove(dove.fase, dove.z, dove.lato),
            std::move(esito)};
}

Cella arrotondato(double mostrato) { return cella(mostrato, 2, unita::nessuna); }

// The digits of the numbers that the checks are made of.
Cella (*numeroDi(const ControlliSezione& controlli))(double) {
    return controlli.dellaRelazione ? cifre : arrotondato;
}

// What is said of a check: what is known of it, or the words of the report.
using Esito = std::function<Cella(Verifica cosa, std::string_view dellaRelazione, bool fallita)>;

void flessione(const ConfrontoMomenti& c, const ControlliSezione& controlli, const Esito& esito,
               Prospetto& p) {
    const project::Unita& u = unita::momentoAlMetro;
    p.righe.push_back(riga(Verifica::momentoPositivo, mostrato(u, c.mdMax), mostrato(u, c.mrPos),
                           numeroDi(controlli), controlli.positivo,
                           esito(Verifica::momentoPositivo,
                                 results::sentenza(true, c.verificatoPos), c.fallitaPos())));
    if (c.negativo)
        p.righe.push_back(riga(Verifica::momentoNegativo, mostrato(u, c.mdMin),
                               mostrato(u, c.mrNeg), numeroDi(controlli), controlli.negativo,
                               esito(Verifica::momentoNegativo,
                                     results::sentenza(false, c.verificatoNeg), c.fallitaNeg())));
}

// The report has a sentence for each failure and none for what holds.
void taglio(const ConfrontoTaglio& c, const ControlliSezione& controlli, const Esito& esito,
            Prospetto& p) {
    const auto aggiungi = [&](Verifica cosa, double VRd, bool fallita, const char* rottura) {
        p.righe.push_back(
            riga(cosa, c.Vsd, VRd, numeroDi(controlli), controlli.diTaglio,
                 esito(cosa, fallita ? rottura : "Condizioni di sicurezza verificate (taglio)",
                       fallita)));
    };
    aggiungi(Verifica::bielle, c.Vrd2, c.rotturaBielle(),
             "Rottura delle bielle di calcestruzzo compresse");
    aggiungi(Verifica::armatura, c.Vrd3, c.rotturaArmatura(), "Rottura dell'armatura d'anima");
}

// @param esito  explanation of its column, an Italian key
std::vector<Colonna> colonne(const char* esito) {
    std::vector<Colonna> tutte = colonneVerifiche();
    tutte.push_back(colonnaParole("Esito", esito));
    return tutte;
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

void noteRelazione(const Margine& margine, Prospetto& p) {
    if (margine.relazione) {
        p.note.push_back(traduttore(
            "Numeri e regole della relazione: flessione con i momenti di tutte le fasi, taglio con "
            "il massimo dell'ultima fase."));
        return;
    }
    p.note.push_back(safety::paroleRelazione(margine));
    p.note.push_back(notaVerificheInEquilibrio());
}

Prospetto senzaNote(const PareteViva& parete, const Margine& margine, const char* colonnaEsito,
                    const Esito& esito) {
    Prospetto p{.titolo = traduttore("Verifiche"), .colonne = colonne(colonnaEsito)};
    if (!parete.sta()) return p;  // resistances alone are no check
    const ControlliSezione controlli = live::controlliSezione(parete, &margine);
    if (controlli.flessione) flessione(*controlli.flessione, controlli, esito, p);
    if (controlli.taglio) taglio(*controlli.taglio, controlli, esito, p);
    return p;
}

}  // namespace

std::vector<Colonna> colonneVerifiche() {
    return {colonnaParole("Verifica", "Che cosa si verifica, per metro di paratia"),
            colonna(unita::nessuna, "Di progetto",
                    "Valore di progetto: il massimo di calcolo per il coefficiente delle azioni"),
            colonna(unita::nessuna, "Resistenza", "Resistenza di progetto della sezione"),
            colonna(unita::percento, "Sfruttamento", "Valore di progetto diviso per la resistenza"),
            colonna(unita::nessuna, "Fase", "Fase in cui il valore è raggiunto"),
            colonnaSimbolo(unita::metri, "z", "Profondità a cui il valore è raggiunto")};
}

std::string notaVerificheInEquilibrio() {
    return traduttore(
        "Verifiche con i numeri della soluzione di equilibrio: momenti e taglio massimi di tutte "
        "le "
        "fasi.");
}

Cella cifre(double mostrato) {
    if (!std::isfinite(mostrato)) return senza(traduttore("nessun numero"));
    std::string testo = project::numeroRelazione(mostrato);
    // The report writes ".06".
    if (const auto punto = testo.find('.'); punto == 0 || (punto == 1 && testo[0] == '-'))
        testo.insert(punto, 1, '0');
    return {.testo = std::move(testo), .numero = mostrato + 0.0};
}

Cella esito(std::optional<safety::Giudizio> giudizio) {
    if (!giudizio) return {};
    return esito(traduttore(nome(*giudizio)), *giudizio != safety::Giudizio::verificata);
}

Colonna colonnaTendenza() {
    return colonna(unita::percento, "Tendenza",
                   "Lo sfruttamento a cui tendono maglie sempre più fini");
}

Cella tendenza(const Margine& margine, Verifica cosa) {
    if (!assestata(margine)) return senza(safety::avvisiMaglia(margine).front().testo);
    const auto limite = safety::tendenza(margine, cosa);
    return limite ? cella(*limite, 1, unita::percento)
                  : senza(traduttore("Le tre maglie non vanno da una parte sola."));
}

Cella uso(double progetto, double resistenza) {
    return resistenza == 0 ? senza(traduttore("La resistenza è 0."))
                           : cella(progetto / resistenza, 1, unita::percento);
}

Prospetto prospettoVerifiche(const PareteViva& parete, const Margine& margine) {
    Prospetto p = senzaNote(
        parete, margine, spiegazioneEsito,
        [&](Verifica cosa, std::string_view, bool) { return esito(giudizio(margine, cosa)); });
    if (!noteSezione(parete, p)) return p;
    noteRelazione(margine, p);
    for (const safety::AvvisoMaglia& avviso : avvisiMaglia(margine))
        if (avviso.verdetto) p.note.push_back(avviso.testo);
    return p;
}

Prospetto prospettoVerificheRelazione(const PareteViva& parete, const Margine& margine) {
    assert(margine.relazione);
    Prospetto p = senzaNote(parete, margine, "Esito, con le parole della relazione",
                            [](Verifica, std::string_view parole, bool fallita) {
                                return esito(traduttore(parole), fallita);
                            });
    if (noteSezione(parete, p)) noteRelazione(margine, p);
    return p;
}

}  // namespace korven::tables
