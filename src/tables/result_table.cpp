#include "tables/result_table.hpp"

#include <cmath>
#include <utility>

#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"

namespace korven::tables {

namespace unita = project::unita;

namespace {

constexpr int decimaliMostrati = 2;

}  // namespace

std::string Colonna::testa() const { return unita.empty() ? titolo : titolo + " [" + unita + "]"; }

Colonna colonna(const project::Unita& unita, const char* titolo, const char* spiegazione) {
    return {base::traduttore(titolo), std::string(unita.mostrata), base::traduttore(spiegazione)};
}

Colonna colonnaSimbolo(const project::Unita& unita, const char* simbolo, const char* spiegazione) {
    return {simbolo, std::string(unita.mostrata), base::traduttore(spiegazione)};
}

Colonna colonnaParole(const char* titolo, const char* spiegazione) {
    return {base::traduttore(titolo), {}, base::traduttore(spiegazione), false};
}

Cella cella(double conservato, int decimali, const project::Unita& unita) {
    const double mostrato = project::mostrato(unita, conservato);
    if (!std::isfinite(mostrato)) return senza(base::traduttore("nessun numero"));
    return {.testo = project::numeroMostrato(conservato, decimali, unita),
            .numero = mostrato + 0.0};  // a zero has no sign for its reader
}

Cella cella(int numero) {
    return {.testo = std::to_string(numero), .numero = static_cast<double>(numero)};
}

Cella senza(std::string perche) {
    Cella c;
    c.perche = std::move(perche);
    return c;
}

Cella parola(std::string testo, std::optional<double> ordine) {
    return {.testo = std::move(testo), .ordine = ordine};
}

Cella esito(std::string testo, bool fallito) {
    Cella c = parola(std::move(testo));
    if (fallito) c.peso = review::Peso::pericolo;
    return c;
}

Cella profondita(double z) { return cella(z, decimaliMostrati, unita::metri); }
Cella spostamento(double y) { return cella(y, decimaliMostrati, unita::spostamentoFine); }
Cella momento(double M) { return cella(M, decimaliMostrati, unita::momentoAlMetro); }
Cella forza(double T) { return cella(T, decimaliMostrati, unita::forzaAlMetro); }
Cella pressione(double p) { return cella(p, decimaliMostrati, unita::pressione); }

}  // namespace korven::tables
