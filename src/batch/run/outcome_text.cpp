#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/outcome.hpp"
#include "project/shown_number.hpp"

namespace korven::batch {

namespace {

using base::traduttore;

// Right aligned, counted in characters.
std::string colonna(const std::string& testo, std::size_t larghezza) {
    const std::size_t lunghezza = base::numeroCaratteri(testo);
    return std::string(larghezza > lunghezza ? larghezza - lunghezza : 0, ' ') + testo;
}

struct Colonna {
    std::string_view cosa;  // with the unit an Italian key
    project::Unita unita;
    double results::EstremiFase::*valore;
    int decimali;

    [[nodiscard]] std::string titolo() const { return traduttore(etichetta(cosa, unita)); }
    [[nodiscard]] std::string cella(const results::EstremiFase& fase) const {
        return project::numeroMostrato(fase.*valore, decimali, unita);
    }
};

namespace unita = project::unita;
using results::EstremiFase;

constexpr Colonna colonne[] = {
    {"Scavo", unita::metri, &EstremiFase::profFase, 2},
    {"Spostamento max.", unita::spostamentoFine, &EstremiFase::spostamentoMax, 3},
    {"Momento max.", unita::momentoAlMetro, &EstremiFase::momentoMax, 2},
    {"Momento min.", unita::momentoAlMetro, &EstremiFase::momentoMin, 2},
};

std::string iterazioni(const Esito& esito, int fase) {
    for (const auto& corsa : esito.fasi)
        if (corsa.fase == fase) return std::to_string(corsa.iterazioni);
    return "-";  // computed by an earlier run
}

}  // namespace

std::string tabella(const Esito& esito, bool traccia) {
    const std::string fase = traduttore("Fase");
    const std::string numeroIterazioni = traduttore("Iterazioni");
    std::string testo = fase + "  " + numeroIterazioni;
    for (const auto& c : colonne) testo += "  " + c.titolo();
    testo += '\n';
    for (const auto& riga : esito.calcolo->fasi) {
        testo += colonna(std::to_string(riga.fase), base::numeroCaratteri(fase)) + "  " +
                 colonna(iterazioni(esito, riga.fase), base::numeroCaratteri(numeroIterazioni));
        for (const auto& c : colonne)
            testo += "  " + colonna(c.cella(riga), base::numeroCaratteri(c.titolo()));
        testo += '\n';
    }
    testo += (esito.giaAggiornato
                  ? traduttore("Il file dei risultati era già aggiornato: nessun calcolo eseguito.")
                  : traduttore("Calcolo eseguito.")) +
             '\n';
    for (const auto fallita : esito.calcolo->fallite) testo += traduttore(fallita) + '\n';
    if (!traccia) return testo;
    for (const auto& corsa : esito.fasi) {
        if (corsa.traccia.empty()) continue;
        testo += fase + " " + std::to_string(corsa.fase) + ", " + std::to_string(corsa.iterazioni) +
                 " " + traduttore("iterazioni") + ":\n";
        for (const auto& riga : corsa.traccia) testo += "  " + riga + '\n';
    }
    return testo;
}

std::string riga(const review::Osservazione& osservazione) {
    return traduttore(parolaMostrata(osservazione.peso)) + base::duePunti() + osservazione.testo;
}

std::string elenco(const Esito& esito) {
    std::string testo;
    for (const auto& osservazione : esito.osservazioni) testo += riga(osservazione) + '\n';
    return testo +
           (review::calcolabile(esito.osservazioni)
                ? traduttore("Il progetto può essere calcolato.")
                : traduttore("Il progetto non può essere calcolato.")) +
           '\n';
}

}  // namespace korven::batch
