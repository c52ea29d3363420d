#include "report/annex/mesh_tables.hpp"

#include <string>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/mesh_words.hpp"
#include "tables/check_table.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"

namespace korven::report {

using base::traduttore;
using document::Stile;
using safety::Margine;
using tables::Cella;
namespace unita = project::unita;

namespace {

// A column of one of the meshes.
tables::Colonna testa(const Margine& margine, int volte, const project::Unita& u = unita::nessuna) {
    tables::Colonna c = numeri(u, "%1 segmenti");
    c.titolo = base::riempito(c.titolo, {std::to_string(volte * margine.nSeg)});
    return c;
}

Cella esito(const safety::UsoMaglia& u) {
    const auto fallita = [](const auto& uso) { return uso && uso->fallita; };
    int quante = 0;
    for (const auto& uso : u.maglie) quante += fallita(uso) ? 1 : 0;
    if (quante == 0) return tables::esito(traduttore("verificata"), false);
    const bool tutte = quante == static_cast<int>(u.maglie.size());
    return tables::esito(traduttore(tutte ? "NON verificata" : "cambia con la maglia"), true);
}

}  // namespace

tables::Prospetto prospettoErroreMaglia(const Margine& margine) {
    tables::Prospetto p = tables::prospettoMaglia(margine);
    if (!margine.maglia) return p;
    const safety::ErroreMaglia& e = *margine.maglia;
    p.colonne = {colonna("Massimi"),
                 testa(margine, 1),
                 testa(margine, 2),
                 testa(margine, 4),
                 numeri(unita::percento, "Errore"),
                 numeri("Ordine")};
    p.righe.clear();
    p.note.clear();
    const auto riga = [&](const project::Unita& u, const char* cosa, Cella (*cella)(double),
                          const safety::ErroreGrandezza& g) {
        if (g.fine == 0 && g.valore == 0) return;
        const std::string nome = base::conMaiuscola(traduttore(cosa));
        p.righe.push_back({tables::parola(nome + " " + traParentesi(u)), cella(g.valore),
                           cella(g.doppia), cella(g.fine),
                           g.quota ? tables::cella(*g.quota, 1, unita::percento) : Cella{},
                           g.ordine ? tables::cella(*g.ordine, 1, unita::nessuna) : Cella{}});
        if (!g.ordine)
            p.note.push_back(base::conDuePunti(
                nome, base::conMinuscola(tables::percheSenzaOrdine(g.andamento))));
    };
    riga(unita::momentoAlMetro, "momento positivo", tables::momento, e.momentoPositivo);
    riga(unita::momentoAlMetro, "momento negativo", tables::momento, e.momentoNegativo);
    riga(unita::forzaAlMetro, "Taglio", tables::forza, e.taglio);
    riga(unita::spostamentoFine, "Spostamento", tables::spostamento, e.spostamento);
    riga(unita::forzaAlMetro, "Tiro", tables::forza, e.tiro);
    return p;
}

tables::Prospetto prospettoUsiMaglia(const Margine& margine) {
    tables::Prospetto p{.titolo = traduttore("Sfruttamenti con maglie più fini"),
                        .colonne = {colonna("Verifica"), testa(margine, 1, unita::percento),
                                    testa(margine, 2, unita::percento),
                                    testa(margine, 4, unita::percento), colonna("Esito")}};
    if (!margine.maglia) return p;
    for (const safety::UsoMaglia& u : margine.maglia->usi) {
        auto& riga = p.righe.emplace_back();
        riga.push_back(tables::parola(base::conMaiuscola(traduttore(safety::nome(u.cosa)))));
        for (const auto& uso : u.maglie)
            riga.push_back(uso ? tables::uso(uso->progetto, uso->resistenza) : Cella{});
        riga.push_back(esito(u));
    }
    p.note.push_back(traduttore(
        "Con i numeri della soluzione di equilibrio; il taglio è il massimo di tutte le fasi."));
    return p;
}

void avvisaMaglia(const Margine& margine, Blocchi& blocchi) {
    for (const safety::AvvisoMaglia& avviso : safety::avvisiMaglia(margine))
        paragrafo(avviso.testo, blocchi, avviso.verdetto ? Stile::pericolo : Stile::rilievo);
}

}  // namespace korven::report
