#include "workbook/project_sheet.hpp"

#include <algorithm>
#include <utility>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "project/code_words.hpp"
#include "project/field_table.hpp"
#include "safety/margin_words.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"

namespace korven::workbook {

namespace {

using base::traduttore;
using dossier::Fascicolo;
using tables::Cella;
using tables::Prospetto;

class Voci {
 public:
    explicit Voci(Prospetto& p) : p_(p) {}
    void aggiungi(std::string voce, Cella valore) {
        p_.righe.push_back({tables::parola(std::move(voce)), std::move(valore)});
    }
    /// @param voce  Italian key
    void aggiungi(const char* voce, const std::string& testo) {
        if (!testo.empty()) aggiungi(traduttore(voce), tables::parola(testo));
    }

 private:
    Prospetto& p_;
};

void titoli(const Fascicolo& f, Voci& voci) {
    for (int i = 1; i <= project::numeroTitoli; ++i)
        if (!f.scritti.titoli[i].empty())
            voci.aggiungi(traduttore("Titolo") + " " + std::to_string(i),
                          tables::parola(f.scritti.titoli[i]));
}

void identita(const dossier::Identita& sua, Voci& voci) {
    voci.aggiungi("Programma", sua.programma);
    voci.aggiungi("Versione", sua.versione);
    voci.aggiungi("File del progetto", sua.file);
    voci.aggiungi("SHA-256 del progetto", sua.impronta);
    voci.aggiungi("Data del documento", sua.data);
    for (const std::string& opzione : sua.opzioni) voci.aggiungi("Opzione", opzione);
}

void modello(const Fascicolo& f, Voci& voci) {
    const project::DatiProgetto& usati = f.parete.dati;
    const auto metodo = [&](const char* cosa, double project::DatiProgetto::*membro) {
        const project::Campo& campo = project::campo(membro);
        if (const auto* codice = project::codice(campo, usati.*membro))
            voci.aggiungi(cosa, project::voceTradotta(campo, *codice));
    };
    metodo("Metodo delle spinte usato", &project::DatiProgetto::metodoSpinte);
    metodo("Metodo di ks usato", &project::DatiProgetto::metodoKs);
    if (f.parete.nSeg > 0) voci.aggiungi(traduttore("Segmenti"), tables::cella(f.parete.nSeg));
    voci.aggiungi(
        "Origine dei numeri",
        traduttore("Tutti i numeri delle fasi sono della soluzione di equilibrio e valgono per "
                   "metro di paratia; della relazione è solo la colonna che lo dice."));
}

// Each once, in the order of the rows.
std::vector<std::string> percheVuote(const Prospetto& p) {
    std::vector<std::string> motivi;
    for (const auto& riga : p.righe)
        for (const Cella& cella : riga)
            if (!cella.perche.empty() &&
                std::find(motivi.begin(), motivi.end(), cella.perche) == motivi.end())
                motivi.push_back(cella.perche);
    return motivi;
}

std::string verdetto(const Fascicolo& f) {
    if (f.margine) return tables::verdetto(*f.margine);
    return tables::perche(f.parete, f.parete.fasiInEquilibrio() + 1);
}

}  // namespace

Prospetto prospettoProgetto(const Fascicolo& fascicolo, const std::vector<Foglio>& altri) {
    Prospetto p{.titolo = traduttore("Progetto"),
                .colonne = {tables::colonnaParole("Voce", "Che cosa si dice del progetto"),
                            tables::colonnaParole("Valore", "Quello che se ne dice")}};
    Voci voci(p);
    titoli(fascicolo, voci);
    identita(fascicolo.identita, voci);
    modello(fascicolo, voci);
    voci.aggiungi("Sicurezza", verdetto(fascicolo));
    if (fascicolo.margine) voci.aggiungi("Relazione", paroleRelazione(*fascicolo.margine));
    for (const Foglio& foglio : altri)
        for (const std::string& nota : foglio.prospetto.note)
            voci.aggiungi(traduttore("Nota") + base::duePunti() + foglio.prospetto.titolo,
                          tables::parola(nota));
    for (const Foglio& foglio : altri)
        for (const std::string& motivo : percheVuote(foglio.prospetto))
            voci.aggiungi(traduttore("Celle vuote") + base::duePunti() + foglio.prospetto.titolo,
                          tables::parola(motivo));
    return p;
}

}  // namespace korven::workbook
