#include "report/annex/run_tables.hpp"

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/margin_words.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::CorsaFase;
using dossier::Fascicolo;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

const CorsaFase* corsa(const Fascicolo& f, int fase) {
    const auto i = static_cast<std::size_t>(fase) - 1;
    return i < f.corsa.size() ? &f.corsa[i] : nullptr;
}

Cella scarto(const std::optional<double>& valore, Cella (*cella)(double)) {
    return valore ? cella(*valore) : Cella{};
}

// Why there is no run, or why it has no report; empty where both are.
std::string sullaCorsa(const Fascicolo& f) {
    if (!f.parete.sta() || !f.margine || f.corsa.empty())
        return traduttore("Il calcolo per fasi, che scrive la relazione, non è stato eseguito.");
    return inFrase(safety::paroleRelazione(*f.margine));
}

}  // namespace

Prospetto prospettoCorse(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Soluzione di equilibrio e calcolo per fasi"),
                .colonne = {numeri("Fase"), numeri("Passi"), numeri("Iterazioni"), colonna("Esito"),
                            numeri(unita::spostamentoFine, "Scarto dello spostamento"),
                            numeri(unita::momentoAlMetro, "Scarto del momento")}};
    for (int k = 1; k <= f.parete.fasiInEquilibrio(); ++k) {
        auto& riga = p.righe.emplace_back(
            std::vector{tables::cella(k), tables::cella(f.parete.fase(k)->passi)});
        riga.resize(p.colonne.size());
        const CorsaFase* c = corsa(f, k);
        if (c == nullptr) continue;
        riga[2] = tables::cella(c->iterazioni);
        riga[3] = tables::esito(traduttore(c->convergente ? "assestata" : "non assestata"),
                                !c->convergente);
        riga[4] = scarto(c->scartoSpostamento, tables::spostamento);
        riga[5] = scarto(c->scartoMomento, tables::momento);
    }
    p.note.push_back(traduttore(
        "Passi: del metodo di Newton, con cui si trova la soluzione di equilibrio. Iterazioni: "
        "del calcolo per fasi, che scrive la relazione. Scarti: le maggiori differenze "
        "fra i due lungo la paratia, in valore assoluto."));
    if (std::string frase = sullaCorsa(f); !frase.empty()) p.note.push_back(std::move(frase));
    return p;
}

std::string frasePassi(const Fascicolo& f, int fase) {
    const std::string passi = std::to_string(f.parete.fase(fase)->passi);
    const CorsaFase* c = corsa(f, fase);
    if (c == nullptr)
        return riempito(traduttore("Equilibrio trovato in %1 passi. Il calcolo per fasi non ha "
                                   "numeri di questa fase."),
                        {passi});
    if (!c->convergente || !c->scartoSpostamento || !c->scartoMomento)
        return riempito(traduttore("Equilibrio trovato in %1 passi. Il calcolo per fasi non si è "
                                   "assestato: iterazioni %2."),
                        {passi, std::to_string(c->iterazioni)});
    return riempito(
        traduttore("Equilibrio trovato in %1 passi. Calcolo per fasi: iterazioni %2; ne differisce "
                   "al più di %3 mm e di %4 kN m/m."),
        {passi, std::to_string(c->iterazioni), tables::spostamento(*c->scartoSpostamento).testo,
         tables::momento(*c->scartoMomento).testo});
}

}  // namespace korven::report
