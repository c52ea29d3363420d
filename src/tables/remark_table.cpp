#include "tables/remark_table.hpp"

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"

namespace korven::tables {

namespace {

using base::traduttore;

Cella peso(review::Peso peso) {
    Cella c = parola(base::conMaiuscola(traduttore(review::parolaMostrata(peso))),
                     static_cast<int>(peso));
    c.peso = peso;
    return c;
}

std::string elencati(const std::vector<std::string>& campi) {
    std::string testo;
    for (const std::string& campo : campi) testo += (testo.empty() ? "" : ", ") + campo;
    return testo;
}

}  // namespace

Prospetto prospettoOsservazioni(const review::Osservazioni& osservazioni) {
    Prospetto p{.titolo = traduttore("Osservazioni"),
                .colonne = {colonnaParole("Peso", "Quanto l'osservazione pesa"),
                            colonnaParole("Osservazione", "Che cosa è stato notato"),
                            colonnaParole("Dati", "Nomi dei dati a cui si riferisce"),
                            colonnaParole("Codice",
                                          "Codice dell'osservazione, uguale in ogni "
                                          "lingua")}};
    for (const review::Osservazione& o : osservazioni)
        p.righe.push_back({peso(o.peso), parola(base::conMaiuscola(o.testo)),
                           o.campi.empty() ? Cella{} : parola(elencati(o.campi)),
                           parola(std::string(o.codice))});
    if (p.righe.empty()) p.note.push_back(traduttore("Nessuna osservazione."));
    return p;
}

}  // namespace korven::tables
