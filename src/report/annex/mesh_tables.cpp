#include "report/annex/mesh_tables.hpp"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/name_in_sentence.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "review/limits.hpp"
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

// "Taglio, tiro: ...": the rows without an order, by the reason.
class SenzaOrdine {
 public:
    void aggiungi(const std::string& nome, safety::Andamento perche) {
        std::string& nomi = righe_[perche];
        nomi += nomi.empty() ? nome : ", " + base::nellaFrase(nome);
    }
    [[nodiscard]] std::vector<std::string> note() const {
        std::vector<std::string> note;
        for (const auto& [perche, nomi] : righe_)
            note.push_back(
                base::conDuePunti(nomi, base::conMinuscola(tables::percheSenzaOrdine(perche))));
        return note;
    }

 private:
    std::map<safety::Andamento, std::string> righe_;
};

std::string percento(double quota) { return base::testoDecimali(quota, 0, 2); }

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
    SenzaOrdine senzaOrdine;
    const auto riga = [&](const project::Unita& u, const char* cosa, Cella (*cella)(double),
                          const safety::ErroreGrandezza& g) {
        if (g.fine == 0 && g.valore == 0) return;
        const std::string nome = base::conMaiuscola(traduttore(cosa));
        p.righe.push_back({tables::parola(nome + " " + traParentesi(u)), cella(g.valore),
                           cella(g.doppia), cella(g.fine),
                           g.quota ? tables::cella(*g.quota, 1, unita::percento) : Cella{},
                           g.ordine ? tables::cella(*g.ordine, 1, unita::nessuna) : Cella{}});
        if (!g.ordine) senzaOrdine.aggiungi(nome, g.andamento);
    };
    riga(unita::momentoAlMetro, "momento positivo", tables::momento, e.momentoPositivo);
    riga(unita::momentoAlMetro, "momento negativo", tables::momento, e.momentoNegativo);
    riga(unita::forzaAlMetro, "Taglio", tables::forza, e.taglio);
    riga(unita::spostamentoFine, "Spostamento", tables::spostamento, e.spostamento);
    riga(unita::forzaAlMetro, "Tiranti e puntoni", tables::forza, e.tiro);
    p.note = senzaOrdine.note();
    return p;
}

tables::Prospetto prospettoUsiMaglia(const Margine& margine) {
    tables::Prospetto p{
        .titolo = traduttore("Sfruttamenti con maglie più fini"),
        .colonne = {colonna("Verifica"), testa(margine, 1, unita::percento),
                    testa(margine, 2, unita::percento), testa(margine, 4, unita::percento),
                    numeri(unita::percento, "Tendenza"), colonna("Esito")}};
    if (!margine.maglia) return p;
    for (const safety::UsoMaglia& u : margine.maglia->usi) {
        auto& riga = p.righe.emplace_back();
        riga.push_back(tables::parola(base::conMaiuscola(traduttore(safety::nome(u.cosa)))));
        for (const auto& uso : u.maglie)
            riga.push_back(uso ? tables::uso(uso->progetto, uso->resistenza) : Cella{});
        const auto limite = u.limite();
        riga.push_back(limite ? tables::cella(*limite, 1, unita::percento) : Cella{});
        riga.push_back(tables::esito(giudizio(margine, u.cosa)));
    }
    p.note.push_back(traduttore(
        "Con i numeri della soluzione di equilibrio; il taglio è il massimo di tutte le fasi."));
    return p;
}

std::string soglieErroreMaglia() {
    return base::riempito(
        traduttore("Errore: un trattino dove nessuna maglia dà almeno %1 nell'unità della riga. "
                   "Ordine: un trattino dove b e c differiscono di meno di %2; le cifre scritte "
                   "non bastano per darlo. La copertina avvisa di un errore oltre %3 %; non conta "
                   "quello di un momento che non arriva a %4 % di quello dell'altro segno."),
        {base::testoDecimali(safety::minimoConErrore, 2),
         base::testoDecimali(safety::minimaConOrdine, 2), percento(review::erroreMagliaDetto),
         percento(safety::ErroreMaglia::momentoMinore)});
}

std::string soglieUsiMaglia() {
    return base::riempito(
        traduttore(
            "Tendenza: lo sfruttamento a cui tendono maglie sempre più fini, c + (c - b) / (r - 1) "
            "con r = (b - a) / (c - b), limitato fra 2 e 4: l'errore diminuisce almeno con la "
            "prima potenza del passo, al più con la seconda. Un trattino dove le tre maglie non "
            "vanno da una parte sola. Il documento avvisa dove il verdetto cambia con la maglia, "
            "dove la tendenza passa il 100 % e dove lo sfruttamento cresce di oltre %1 % di sé "
            "stesso e di oltre %2 % della resistenza."),
        {percento(safety::crescitaUsoDetta), percento(safety::crescitaUsoMinima)});
}

void avvisaMaglia(const Margine& margine, Blocchi& blocchi) {
    for (const safety::AvvisoMaglia& avviso : safety::avvisiMaglia(margine))
        paragrafo(avviso.testo, blocchi, avviso.verdetto ? Stile::pericolo : Stile::rilievo);
}

}  // namespace korven::report
