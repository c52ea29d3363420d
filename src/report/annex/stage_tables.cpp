#include "report/annex/stage_tables.hpp"

#include <algorithm>
#include <cmath>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/option_names.hpp"
#include "base/translated_texts.hpp"
#include "project/anchor_names.hpp"
#include "project/field_table.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/field_cells.hpp"
#include "report/annex/table_pieces.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::BilancioFase;
using dossier::Fascicolo;
using dossier::Risultante;
using project::DatiProgetto;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

// A column headed by what a field is.
void campo(const DatiProgetto& dati, const project::Membro& membro, int fase, Prospetto& p) {
    const project::Campo& c = project::campo(membro);
    const double valore = project::numeroConservato(dati, c, fase);
    p.colonne.push_back({.titolo = nomeDetto(c), .unita = std::string(c.unita.mostrata)});
    p.righe.back().push_back(c.unita.mostrata.empty()
                                 ? Cella{.testo = base::testoNumero(valore), .numero = valore}
                                 : tables::cella(valore, 2, c.unita));
}

// What rounding leaves beside the largest part.
constexpr double arrotondamento = 1e-9;

// Where a resultant acts; none where it is but what rounding leaves of the forces.
Cella puntoDi(const Risultante& parte, const Risultante& massima) {
    if (std::fabs(parte.forza) <= arrotondamento * massima.forza) return {};
    return tables::profondita(parte.momento / parte.forza);
}

void riga(std::string nome, const Risultante& parte, const Cella& punto, Prospetto& p) {
    p.righe.push_back({tables::parola(std::move(nome)), tables::forza(parte.forza),
                       tables::momento(parte.momento), punto});
}

// A sum that is rounding alone is told as 0, with what it is small beside.
std::vector<Cella> rigaSomma(const Risultante& resto, const Risultante& massima) {
    if (std::fabs(resto.forza) <= arrotondamento * massima.forza &&
        std::fabs(resto.momento) <= arrotondamento * massima.momento) {
        Cella forza = tables::forza(0), momento = tables::momento(0);
        forza.numero = mostrato(unita::forzaAlMetro, resto.forza);
        momento.numero = mostrato(unita::momentoAlMetro, resto.momento);
        return {tables::parola(traduttore("Somma di tutte (< 1e-9 della maggiore)")),
                forza,
                momento,
                {}};
    }
    return {tables::parola(traduttore("Somma di tutte")),
            ordineDiGrandezza(mostrato(unita::forzaAlMetro, resto.forza)),
            ordineDiGrandezza(mostrato(unita::momentoAlMetro, resto.momento)),
            {}};
}

// Why the reaction of a fixed toe is more than the shear of the last node, with the numbers of a
// stage.
std::string frasePiede(const BilancioFase& b) {
    const double mezzo = b.passo / 2;
    return riempito(
        traduttore("Con l'incastro la maglia continua sotto la paratia, e l'ultimo nodo porta un "
                   "segmento intero: mezzo più di quanto dicono i trapezi. È la riga «Mezzo "
                   "segmento oltre il piede», nella fase %1 la pressione netta dell'ultimo nodo, "
                   "%2 kN/m², per %3 m. Va tutta al vincolo: momenti e tagli della paratia non ne "
                   "hanno, e senza di essa la reazione al piede, %4 kN/m, è il taglio dell'ultimo "
                   "nodo, %5 kN/m. Il momento d'incastro è quello dell'ultimo nodo, di segno "
                   "opposto."),
        {std::to_string(b.fase), tables::pressione(b.oltrePiede.forza / mezzo).testo,
         tables::cella(mezzo, 4, unita::metri).testo, tables::forza(b.piede.forza).testo,
         tables::forza(b.piede.forza + b.oltrePiede.forza).testo});
}

}  // namespace

Prospetto prospettoCondizioni(const DatiProgetto& dati, int fase) {
    Prospetto p{.titolo = traduttore("Condizioni della fase"), .righe = {{}}};
    campo(dati, &DatiProgetto::profFase, fase, p);
    campo(dati, &DatiProgetto::faldaMonte, 1, p);
    campo(dati, &DatiProgetto::faldaFase, fase, p);
    campo(dati, &DatiProgetto::sovraccMonte, 1, p);
    campo(dati, &DatiProgetto::sovraccFase, fase, p);
    campo(dati, &DatiProgetto::tirantiFase, fase, p);
    return p;
}

Prospetto prospettoBilancio(const DatiProgetto& dati, const BilancioFase& b) {
    Prospetto p{.titolo = traduttore("Equilibrio delle forze e dei momenti"),
                .colonne = {colonna("Che cosa agisce"), numeri(unita::forzaAlMetro, "Forza"),
                            numeri(unita::momentoAlMetro, "Momento"), simboli(unita::metri, "z")}};
    const Risultante massima = b.massima();
    const auto aggiungi = [&](std::string nome, const Risultante& parte) {
        riga(std::move(nome), parte, puntoDi(parte, massima), p);
    };
    riga(traduttore("Carichi in testa"), b.testa, {}, p);
    aggiungi(traduttore("Terreno a monte"), b.monte);
    aggiungi(traduttore("Terreno a valle"), b.valle);
    aggiungi(traduttore("Acqua"), b.acqua);
    if (b.costante.forza != 0) aggiungi(traduttore("Pressione costante"), b.costante);
    for (std::size_t j = 0; j < b.tiranti.size(); ++j)
        aggiungi(nomeTirante(dati, static_cast<int>(j) + 1), b.tiranti[j]);
    if (b.oltrePiede.forza != 0)
        aggiungi(traduttore("Mezzo segmento oltre il piede"), b.oltrePiede);
    if (b.cerniera.forza != 0) aggiungi(traduttore("Reazione della cerniera in testa"), b.cerniera);
    if (b.piede.forza != 0) aggiungi(traduttore("Reazione del vincolo al piede"), b.piede);
    if (b.incastro.momento != 0) riga(traduttore("Momento d'incastro al piede"), b.incastro, {}, p);
    p.righe.push_back(rigaSomma(b.resto, massima));
    return p;
}

std::string fraseBilanci(const Fascicolo& f) {
    std::string frase = traduttore(
        "Di ogni fase c'è l'equilibrio di tutto ciò che agisce sulla paratia: momenti attorno alla "
        "testa, positivi se una forza positiva agisce sotto di essa; z è la profondità della "
        "risultante. Un tirante teso e un puntone compresso tengono la paratia verso terra: la "
        "loro forza è negativa. La somma è il residuo dell'arrotondamento.");
    if (f.parete.dati.momentoTesta != 0)
        frase += " " + traduttore(
                           "Un momento in testa positivo gira la testa verso lo scavo, cioè nel "
                           "verso contrario: nell'equilibrio sta con il segno opposto a quello "
                           "dei dati.");
    return frase;
}

std::string fraseSomme(const Fascicolo& f, int righe) {
    std::string frase = riempito(
        traduttore(
            "Terreno, acqua e pressione costante si riottengono dalla tabella dei nodi con la "
            "regola dei trapezi: pressione per passo, %1 m, metà nel primo e nell'ultimo nodo; i "
            "momenti, con la pressione per z. Le pressioni sono stampate con due decimali."),
        {tables::cella(f.parete.h, 4, unita::metri).testo});
    if (const int nodi = f.parete.nSeg + 1; nodi > righe)
        frase += " " + riempito(traduttore("Servono tutti i nodi, e qui le tabelle ne hanno una "
                                           "parte: con %1 il comando dell'ultimo capitolo li "
                                           "scrive tutti."),
                                {base::nomeOpzioneRighe.mostrato() + " " + std::to_string(nodi)});
    if (!f.tiranti.empty())
        frase += " " + traduttore(
                           "Nel nodo di un tirante o di un puntone il taglio ha due valori, subito "
                           "sopra e subito sotto: la differenza è la sua forza. Massimi, minimi e "
                           "inviluppi contano tutti e due.");
    if (!f.bilanci.empty() && f.bilanci.back().incastro.momento != 0)
        frase += " " + frasePiede(f.bilanci.back());
    return frase;
}

}  // namespace korven::report
