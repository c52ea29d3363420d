#include <vector>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/section_tables.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/check_verdict.hpp"
#include "structure/partial_factors.hpp"
#include "tables/check_table.hpp"
#include "tables/check_words.hpp"
#include "tables/quantities.hpp"

namespace korven::report {

using base::traduttore;
using dossier::Verifica;
using live::DoveVerifica;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

// One check of the section.
struct Controllo {
    Verifica cosa;
    double progetto, resistenza;  // in the shown unit
    DoveVerifica dove;
    Cella esito;
};

// Of a wall that does not stand only the stages before are known.
Cella esito(const dossier::Fascicolo& f, Verifica cosa) {
    if (!f.parete.sta() || !f.margine)
        return tables::senza(traduttore("La paratia non è in equilibrio."));
    return tables::esito(giudizio(*f.margine, cosa));
}

std::vector<Cella> riga(const dossier::Fascicolo& f, const Controllo& c, bool conAzioni) {
    const auto numero = [](double v) { return tables::cella(v, 2, unita::nessuna); };
    std::vector<Cella> riga{conUnita(tables::unitaDi(c.cosa), tables::nome(c.cosa))};
    if (!conAzioni) {
        const Cella manca = tables::senza(traduttore(tables::azioniNonNote(f.parete)));
        riga.insert(riga.end(), {manca, numero(c.resistenza), manca, manca, manca, manca});
        return riga;
    }
    const Cella progetto = numero(c.progetto);
    const bool nullo = c.dove.fase == 0 || stampataNulla(progetto);
    riga.insert(riga.end(),
                {progetto, numero(c.resistenza), tables::uso(c.progetto, c.resistenza),
                 nullo ? senzaPosto() : tables::cella(c.dove.fase),
                 nullo ? senzaPosto() : tables::profondita(c.dove.z, c.dove.lato), c.esito});
    return riga;
}

}  // namespace

// "50.4 %" is not all there is to say.
std::string sforzoFavorevole(const dossier::LatoFlessione& lato, const char* momento) {
    const auto massimo = lato.usoMaggiore();
    if (!lato.uso || !massimo || !(*massimo > *lato.uso)) return {};
    return base::riempito(
        traduttore("Flessione, %1: lo sforzo normale, moltiplicato per %2, aumenta la resistenza; "
                   "non moltiplicato, o senza, lo sfruttamento arriva al %3 %."),
        {traduttore(momento), base::testoDecimali(structure::fsAzioniSezione, 2),
         project::numeroMostrato(*massimo, 1, unita::percento)});
}

Prospetto prospettoControlli(const dossier::Fascicolo& f) {
    const live::ControlliSezione& tutti = f.controlli;
    Prospetto p{.titolo = traduttore("Verifiche"),
                .colonne = {colonna("Verifica"), numeri("Di progetto"), numeri("Resistenza"),
                            numeri(unita::percento, "Sfruttamento"), numeri("Fase"),
                            simboli(unita::metri, "z"), colonna("Esito")}};
    const auto aggiungi = [&](Verifica cosa, double progetto, double resistenza,
                              const DoveVerifica& dove) {
        p.righe.push_back(
            riga(f, {cosa, progetto, resistenza, dove, esito(f, cosa)}, tutti.conAzioni));
    };
    if (tutti.flessione) {
        const results::ConfrontoMomenti& c = *tutti.flessione;
        const project::Unita& u = unita::momentoAlMetro;
        aggiungi(Verifica::momentoPositivo, mostrato(u, c.mdMax), mostrato(u, c.mrPos),
                 tutti.positivo);
        if (c.negativo || !tutti.conAzioni)
            aggiungi(Verifica::momentoNegativo, mostrato(u, c.mdMin), mostrato(u, c.mrNeg),
                     tutti.negativo);
        else
            p.note.push_back(traduttore("Nessun momento negativo agisce."));
        for (const auto& [lato, momento] : {std::pair(&f.flessione->positivo, "momento positivo"),
                                            std::pair(&f.flessione->negativo, "momento negativo")})
            if (std::string nota = sforzoFavorevole(*lato, momento); !nota.empty())
                p.note.push_back(std::move(nota));
    }
    if (tutti.taglio) {
        const structure::ConfrontoTaglio& c = *tutti.taglio;
        aggiungi(Verifica::bielle, c.Vsd, c.Vrd2, tutti.diTaglio);
        aggiungi(Verifica::armatura, c.Vsd, c.Vrd3, tutti.diTaglio);
    }
    return p;
}

}  // namespace korven::report
