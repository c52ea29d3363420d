#include "workbook/node_sheets.hpp"

#include <iterator>
#include <utility>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"

namespace korven::workbook {

namespace {

using base::traduttore;
using dossier::Fascicolo;
using tables::Prospetto;

// Columns of the table of all stages, and of that of the envelope.
constexpr std::size_t zFasi = 2, primaFasi = 3, zInviluppo = 1, primaInviluppo = 2;

// Words stand behind the quantities.
std::size_t fineGrandezze(const Prospetto& p, std::size_t prima) {
    std::size_t fine = prima;
    while (fine < p.colonne.size() && p.colonne[fine].numerica) ++fine;
    return fine;
}

Grafico vuoto(const Fascicolo& f, std::string titolo, const tables::Colonna& grandezza,
              const tables::Colonna& z) {
    return {.titolo = std::move(titolo),
            .asse = grandezza.testa(),
            .profondita = z.testa(),
            .fondo = f.parete.dati.lunghezzaParatia,
            .serie = {}};
}

}  // namespace

Prospetto prospettoNodiFasi(const Fascicolo& fascicolo) {
    const live::PareteViva& parete = fascicolo.parete;
    const int stanno = parete.fasiInEquilibrio();
    Prospetto tutti = tables::prospettoNodi(parete, stanno > 0 ? 1 : 0);
    tutti.titolo = traduttore("Nodi");
    tutti.righe.clear();
    tutti.colonne.insert(tutti.colonne.begin(),
                         tables::colonna(project::unita::nessuna, "Fase", "Numero della fase"));
    for (int k = 1; k <= stanno; ++k)
        for (auto& riga : tables::prospettoNodi(parete, k).righe) {
            riga.insert(riga.begin(), tables::cella(k));
            tutti.righe.push_back(std::move(riga));
        }
    if (!parete.sta()) tutti.note = {tables::perche(parete, stanno + 1)};
    return tutti;
}

void aggiungiGraficiFasi(const Fascicolo& fascicolo, std::size_t posto, CartellaFogli& cartella) {
    const Prospetto& p = cartella.fogli[posto].prospetto;
    if (p.righe.empty()) return;
    const auto nodi =
        p.righe.size() / static_cast<std::size_t>(fascicolo.parete.fasiInEquilibrio());
    for (std::size_t c = primaFasi; c < fineGrandezze(p, primaFasi); ++c) {
        Grafico g = vuoto(fascicolo, p.colonne[c].titolo, p.colonne[c], p.colonne[zFasi]);
        for (std::size_t prima = 0; prima < p.righe.size(); prima += nodi)
            g.serie.push_back({.nome = tables::titoloFase(static_cast<int>(prima / nodi) + 1),
                               .foglio = posto,
                               .prima = prima,
                               .ultima = prima + nodi - 1,
                               .profondita = zFasi,
                               .dato = c});
        cartella.diagrammi.push_back(std::move(g));
    }
}

void aggiungiGraficiInviluppo(const Fascicolo& fascicolo, std::size_t posto,
                              CartellaFogli& cartella) {
    const Prospetto& p = cartella.fogli[posto].prospetto;
    if (p.righe.empty()) return;
    std::size_t c = primaInviluppo;
    for (const tables::Grandezza* g : {&tables::grandezzaSpostamento, &tables::grandezzaMomento,
                                       &tables::grandezzaTaglio, &tables::grandezzaPressione}) {
        const tables::Colonna colonna = tables::colonna(*g);
        Grafico grafico =
            vuoto(fascicolo, tables::titoloFase(0) + base::duePunti() + colonna.titolo, colonna,
                  p.colonne[zInviluppo]);
        for (int lato = 0; lato < 2; ++lato, ++c)
            grafico.serie.push_back({.nome = p.colonne[c].titolo,
                                     .foglio = posto,
                                     .prima = 0,
                                     .ultima = p.righe.size() - 1,
                                     .profondita = zInviluppo,
                                     .dato = c});
        cartella.diagrammi.push_back(std::move(grafico));
    }
}

}  // namespace korven::workbook
