#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/code_words.hpp"
#include "project/field_table.hpp"
#include "project/shown_number.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/mesh_tables.hpp"
#include "report/annex/verdict_table.hpp"
#include "tables/quantities.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using tables::parola;

namespace {

using dossier::Fascicolo;

tables::Prospetto coppie(const char* titolo, const char* cosa, const char* valore) {
    return {.titolo = traduttore(titolo), .colonne = {colonna(cosa), colonna(valore)}};
}

// What a method is called in the editor; a code that is none says so by its number.
std::string voce(const Fascicolo& f, const project::Membro& membro) {
    const project::Campo& campo = project::campo(membro);
    const double valore = project::numeroConservato(f.parete.dati, campo);
    const project::Codice* codice = project::codice(campo, valore);
    return codice != nullptr ? project::voceTradotta(campo, *codice)
                             : project::numeroMostrato(valore, 0, campo.unita);
}

std::string segmenti(const Fascicolo& f) {
    if (f.parete.nSeg == 0) return tables::nessuno;
    return riempito(traduttore("%1, distanza dei nodi %2 m"),
                    {std::to_string(f.parete.nSeg), project::numeroMostrato(f.parete.h, 4)});
}

std::string opzioni(const Fascicolo& f) {
    if (f.identita.opzioni.empty()) return traduttore("nessuna: vale il progetto come è scritto");
    std::string testo;
    for (const auto& opzione : f.identita.opzioni) testo += (testo.empty() ? "" : ", ") + opzione;
    return testo;
}

std::string file(const dossier::Identita& identita) {
    if (identita.file.empty()) return traduttore("mai salvato");
    if (!identita.nonSalvato) return identita.file;
    return riempito(traduttore("%1, con modifiche non salvate"), {identita.file});
}

tables::Prospetto identita(const Fascicolo& f) {
    tables::Prospetto p = coppie("Documento", "Voce", "Valore");
    const auto riga = [&](const char* cosa, std::string valore) {
        p.righe.push_back({parola(traduttore(cosa)), parola(std::move(valore))});
    };
    riga("Programma e versione", f.identita.programma + " " + f.identita.versione);
    riga("File di progetto", file(f.identita));
    riga("SHA-256 del progetto", f.identita.impronta);
    riga("Data", f.identita.data);
    riga("Segmenti della paratia", segmenti(f));
    riga("Metodo delle spinte usato", voce(f, &project::DatiProgetto::metodoSpinte));
    riga("Metodo di ks usato", voce(f, &project::DatiProgetto::metodoKs));
    riga("Opzioni al posto del progetto", opzioni(f));
    return p;
}

// Lines to be filled in by hand.
std::string firma(const char* chi) {
    const auto riga = [](const char* cosa, std::size_t lunga) {
        return traduttore(cosa) + " " + std::string(lunga, '_');
    };
    return riga(chi, 20) + "   " + riga("Data", 10) + "   " + riga("Firma", 18);
}

}  // namespace

void capitoloCopertina(const Contesto& contesto, Blocchi& blocchi) {
    using document::Paragrafo;
    using document::Stile;
    const Fascicolo& f = *contesto.fascicolo;
    for (int i = 1; i <= project::numeroTitoli; ++i)
        if (!f.scritti.titoli[i].empty())
            blocchi.emplace_back(Paragrafo{f.scritti.titoli[i], Stile::rilievo});
    blocchi.emplace_back(document::Tavola{identita(f)});
    blocchi.emplace_back(document::Tavola{prospettoVerdetti(f)});
    if (f.margine) avvisaMaglia(*f.margine, blocchi);
    if (f.parete.fasiInEquilibrio() > 0)
        blocchi.emplace_back(Paragrafo{
            traduttore(
                "I numeri delle fasi sono quelli della soluzione "
                "di equilibrio: in ogni nodo le forze "
                "si bilanciano, a meno dell'arrotondamento. La "
                "relazione di calcolo viene dal calcolo "
                "per fasi, che cerca lo stesso equilibrio "
                "per tentativi sullo stato di terreno, tiranti e puntoni, "
                "elastico, al limite o inattivo, finché nessuno cambia più. I suoi numeri stanno "
                "accanto e sono detti della relazione; "
                "dove i due differiscono, il documento lo dice."),
            Stile::nota});
    // One below the other, with room to write above each.
    blocchi.emplace_back(
        Paragrafo{"\n" + firma("Progettista") + "\n\n" + firma("Verificatore"), {}});
}

}  // namespace korven::report
