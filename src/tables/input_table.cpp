#include "tables/input_table.hpp"

#include <type_traits>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/code_words.hpp"
#include "project/field_table.hpp"
#include "project/units_per_metre.hpp"
#include "tables/field_use.hpp"

namespace korven::tables {

namespace {

using base::traduttore;
using live::PareteViva;
using project::Campo;
using project::DatiProgetto;
namespace unita = project::unita;

Cella numero(double mostrato) {
    return {.testo = base::testoNumero(mostrato), .numero = mostrato + 0.0};
}

// Counted, and not measured: no unit is behind the factor by which it is typed.
bool contato(const Campo& campo) {
    return campo.unita.conservata == unita::numeroBarre.conservata &&
           campo.unita.fattore == unita::numeroBarre.fattore;
}

Cella valore(const DatiProgetto& dati, const Campo& campo, int riga, bool usato) {
    Cella cella;
    project::conValore(dati, campo, riga, [&](const auto& v) {
        using Valore = std::remove_cvref_t<decltype(v)>;
        if constexpr (std::is_same_v<Valore, std::string>)
            cella = v.empty() ? Cella{} : parola(v);
        else if constexpr (std::is_same_v<Valore, bool>)
            cella = parola(traduttore(v ? "sì" : "no"), v);
        else if constexpr (std::is_same_v<Valore, int>)
            cella = tables::cella(v);
        else if (const auto* codice = project::codice(campo, v))
            cella = parola(project::voceTradotta(campo, *codice), v);
        else
            cella = numero(usato && contato(campo) ? v : mostrato(campo, v));
    });
    return cella;
}

Cella usato(const DatiProgetto& scritti, const PareteViva& parete, const Campo& campo, int k) {
    const UsoCampo uso = usoCampo(scritti, parete, campo);
    if (uso.letto) return valore(parete.dati, campo, k, true);
    if (uso.diAltroTipo) return senza(traduttore("La sezione in vigore non usa questo dato."));
    return senza(base::conMaiuscola(
                     base::riempito(traduttore("fuori dal calcolo (%1)"), {traduttore(uso.nota)})) +
                 '.');
}

std::vector<Cella> riga(const DatiProgetto& scritti, const PareteViva& parete, const Campo& campo,
                        int k) {
    return {parola(base::conMaiuscola(traduttore(campo.cosa))),
            project::colonna(campo) ? cella(k) : senza(traduttore("Il dato non è di una tabella.")),
            valore(scritti, campo, k, false),
            usato(scritti, parete, campo, k),
            parola(std::string(project::unitaScritta(campo))),
            parola(project::nomeStabile(campo, k))};
}

}  // namespace

Prospetto prospettoDati(const DatiProgetto& scritti, const PareteViva& parete) {
    Prospetto p{.titolo = traduttore("Dati di ingresso"),
                .colonne = {colonnaParole("Dato", "Grandezza del progetto"),
                            colonna(unita::nessuna, "Riga", "Riga della sua tabella"),
                            colonna(unita::nessuna, "Scritto",
                                    "Valore come si legge e si scrive nel programma"),
                            colonna(unita::nessuna, "Usato", "Valore con cui il calcolo lavora"),
                            colonnaParole("Unità", "Unità di misura dei due valori"),
                            colonnaParole("Nome", "Nome del dato per altri programmi")}};
    for (const Campo& campo : project::campi())
        for (int k = 1; k <= (project::colonna(campo) ? project::righe(scritti, campo.parte) : 1);
             ++k)
            p.righe.push_back(riga(scritti, parete, campo, k));
    return p;
}

}  // namespace korven::tables
