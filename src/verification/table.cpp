#include "verification/table.hpp"

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "verification/words.hpp"

namespace korven::verification {

namespace {

using base::traduttore;
using tables::Cella;
using tables::parola;

Cella numero(std::string testo, const std::optional<double>& valore) {
    return {.testo = std::move(testo), .numero = valore};
}

// Of a known miss the rows that are met are good ones, unless all are: then it is a miss no longer.
std::string esito(const EsitoCaso& caso, const Confronto& c) {
    if (caso.rientrato()) return traduttore("noto, ma rientra");
    if (c.buono) return parole(Verdetto::buono);
    return parole(caso.verdetto == Verdetto::noto ? Verdetto::noto : Verdetto::fallito);
}

// Why it differs, or that it does so no longer.
std::string nota(const EsitoCaso& caso) {
    const std::string perche = traduttore(caso.caso->noto);
    return caso.caso->nome + base::duePunti() +
           (caso.rientrato()
                ? base::riempito(traduttore("la differenza nota non c'è più, tutti i valori "
                                            "rientrano: il caso può contare come gli altri (%1)"),
                                 {perche})
                : perche);
}

std::vector<Cella> riga(const EsitoCaso& caso, const Confronto& c) {
    const bool numeri = !aParole(*c.attesa->grandezza);
    const auto senza = std::optional<double>();
    std::string unita(c.attesa->grandezza->unita.mostrata);
    return {parola(caso.caso->nome),
            parola(parole(*caso.caso, *c.attesa)),
            parola(parole(c.metodo)),
            numero(atteso(c), numeri ? c.atteso : senza),
            numero(ottenuto(c), numeri ? c.ottenuto : senza),
            parola(std::move(unita)),
            numero(differenza(c), c.differenza),
            parola(c.attesa->tolleranza.testo),
            parola(esito(caso, c))};
}

}  // namespace

tables::Prospetto prospetto(const EsitoGruppo& gruppo) {
    using tables::colonnaParole;
    tables::Prospetto p;
    p.titolo = traduttore(gruppo.gruppo->titolo);
    p.colonne = {
        colonnaParole("Caso", "Il nome del file che descrive il caso"),
        colonnaParole("Quantità", "Che cosa si confronta e dove"),
        colonnaParole("Calcolo",
                      "Chi ha calcolato il valore: la relazione, la soluzione di equilibrio o "
                      "la sola sezione"),
        colonnaParole("Atteso", "Il valore della fonte"),
        colonnaParole("Ottenuto", "Il valore del programma"),
        colonnaParole("Unità", "L'unità dei due valori"),
        colonnaParole("Differenza", "Ottenuto meno atteso, in % dell'atteso o nella sua unità"),
        colonnaParole("Tolleranza", "La differenza ammessa"),
        colonnaParole("Esito", "Buono se la differenza è ammessa; noto se se ne conosce il motivo"),
    };
    for (const std::size_t quale : {3U, 4U, 6U, 7U}) p.colonne[quale].numerica = true;
    for (const EsitoCaso& caso : gruppo.casi) {
        for (const Confronto& c : caso.confronti) p.righe.push_back(riga(caso, c));
        if (caso.verdetto == Verdetto::noto) p.note.push_back(nota(caso));
    }
    return p;
}

}  // namespace korven::verification
