#include "report/annex/stage_tables.hpp"

#include <algorithm>
#include <cmath>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/field_table.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::BilancioFase;
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
    p.colonne.push_back(
        {.titolo = base::conMaiuscola(traduttore(c.cosa)), .unita = std::string(c.unita.mostrata)});
    p.righe.back().push_back(c.unita.mostrata.empty()
                                 ? Cella{.testo = base::testoNumero(valore), .numero = valore}
                                 : tables::cella(valore, 2, c.unita));
}

// Where a resultant acts; none where it is but what rounding leaves of the forces.
Cella puntoDi(const Risultante& parte, const Risultante& massima) {
    constexpr double arrotondamento = 1e-9;
    if (std::fabs(parte.forza) <= arrotondamento * massima.forza) return {};
    return tables::profondita(parte.momento / parte.forza);
}

void riga(std::string nome, const Risultante& parte, const Cella& punto, Prospetto& p) {
    p.righe.push_back({tables::parola(std::move(nome)), tables::forza(parte.forza),
                       tables::momento(parte.momento), punto});
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

Prospetto prospettoBilancio(const BilancioFase& b) {
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
        aggiungi(riempito(traduttore("Tirante %1"), {std::to_string(j + 1)}), b.tiranti[j]);
    if (b.vincoli.forza != 0 || b.vincoli.momento != 0)
        riga(traduttore("Vincoli"), b.vincoli, {}, p);
    p.righe.push_back({tables::parola(traduttore("Somma di tutte")),
                       ordineDiGrandezza(mostrato(unita::forzaAlMetro, b.resto.forza)),
                       ordineDiGrandezza(mostrato(unita::momentoAlMetro, b.resto.momento)),
                       {}});
    return p;
}

}  // namespace korven::report
