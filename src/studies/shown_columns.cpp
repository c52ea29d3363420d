#include "studies/shown_columns.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/code_words.hpp"
#include "project/field_kind.hpp"
#include "project/units_per_metre.hpp"

namespace korven::studies {

namespace {

using base::traduttore;
using project::Unita;

// Columns have their forces in the shown unit already.
constexpr Unita forza{"kN/m", "kN/m"}, momento{"kN m/m", "kN m/m"};
constexpr Unita lunghezza = project::unita::metri, misura = project::unita::spostamentoFine,
                quota = project::unita::percento, nessuna = project::unita::nessuna;

struct Parole {
    const char* nome;
    const char* cosa;  // Italian key
    Unita unita;
};
constexpr Parole parole[] = {
    {"spostamento_massimo_m", "Spostamento massimo", misura},
    {"momento_massimo_kNm", "momento massimo", momento},
    {"momento_minimo_kNm", "momento minimo", momento},
    {"taglio_massimo_kN", "Taglio massimo", forza},
    {"momento_resistente_positivo_kNm", "Momento resistente, positivo", momento},
    {"momento_resistente_negativo_kNm", "Momento resistente, negativo", momento},
    {"uso_momento_positivo", "Uso, momento positivo", quota},
    {"uso_momento_negativo", "Uso, momento negativo", quota},
    {"Vrd2_kN", "Vrd2", forza},
    {"Vrd3_kN", "Vrd3", forza},
    {"uso_bielle", "Uso, bielle", quota},
    {"uso_armatura_taglio", "Uso, armatura a taglio", quota},
    {"passiva_usata", "Passiva usata", quota},
    {"riduzione", "Riduzione della resistenza F", nessuna},
    {"lunghezza_minima_m", "Lunghezza minima", lunghezza},
};

// In the order of `safety::Causa`.
constexpr const char* cause[] = {
    "in equilibrio",   "dati rifiutati", "meccanismo",    "il calcolo per fasi non converge",
    "calcolo fermato", "non definito",   "nessun numero",
};

std::string conUnita(std::string testo, const Unita& unita) {
    if (!unita.mostrata.empty()) testo.append(" ").append(unita.mostrata);
    return testo;
}

}  // namespace

std::string ValoreMostrato::testa() const { return project::etichetta(titolo, unita); }

std::string ValoreMostrato::detto(double valore) const {
    const auto codice = std::ranges::find(codici, valore, &CodiceMostrato::valore);
    if (codice != codici.end()) return codice->nome;
    return conUnita(base::testoNumero(mostrato(valore)), unita);
}

std::string ValoreMostrato::confronto(std::string_view segno, std::string_view limite) const {
    std::string testo = titolo;
    testo.append(" ").append(segno).append(" ").append(limite);
    return conUnita(std::move(testo), unita);
}

ValoreMostrato valoreMostrato(const project::CampoNominato& c) {
    const project::Campo& campo = *c.campo;
    const std::string_view unita = project::unitaAlMetro(campo).mostrata;
    ValoreMostrato valore{.titolo = base::conMaiuscola(project::descrizioneTradotta(campo, c.riga)),
                          .unita = {unita, unita},
                          .intero = !continuo(campo)};
    for (const project::Codice& codice : campo.codici)
        valore.codici.push_back(
            {project::mostrato(campo, codice.valore), project::voceTradotta(campo, codice)});
    return valore;
}

ValoreMostrato valoreMostrato(const std::string& colonna) {
    const auto trovate = std::ranges::find(parole, colonna, &Parole::nome);
    if (trovate != std::end(parole))
        return {.titolo = base::conMaiuscola(traduttore(trovate->cosa)), .unita = trovate->unita};
    constexpr std::string_view tiro = "tiro_", kN = "_kN";
    if (!colonna.starts_with(tiro) || !colonna.ends_with(kN)) return {.titolo = colonna};
    return {.titolo = base::riempito(
                traduttore("Forza del tirante o puntone %1"),
                {colonna.substr(tiro.size(), colonna.size() - tiro.size() - kN.size())}),
            .unita = forza};
}

std::vector<ValoreMostrato> valoriMostrati(const RigheStudio& righe) {
    std::vector<ValoreMostrato> tutti;
    for (const auto& campo : righe.nominati()) tutti.push_back(valoreMostrato(campo));
    for (const Colonna& colonna : righe.colonne()) tutti.push_back(valoreMostrato(colonna.nome));
    return tutti;
}

std::string causaMostrata(safety::Causa causa) {
    return traduttore(cause[static_cast<std::size_t>(causa)]);
}

std::vector<std::string> causeMostrate() {
    std::vector<std::string> tutte;
    std::ranges::transform(cause, std::back_inserter(tutte),
                           [](const char* causa) { return traduttore(causa); });
    return tutte;
}

}  // namespace korven::studies
