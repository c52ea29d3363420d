#include "exchange/import_rows.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/graphic_code.hpp"
#include "exchange/fault_texts.hpp"
#include "exchange/layer_checks.hpp"
#include "exchange/layer_columns.hpp"

namespace korven::exchange {

namespace {

RigheStrati perProfondita(RigheStrati righe) {
    std::stable_sort(righe.begin(), righe.end(), [](const RigaStrato& a, const RigaStrato& b) {
        return numero(a[profondita]) < numero(b[profondita]);
    });
    return righe;
}

bool stessoValore(std::size_t colonna, const std::string& uno, const std::string& altro) {
    const auto a = base::senzaSpaziEsterni(uno), b = base::senzaSpaziEsterni(altro);
    return colonna == descrizione || a.empty() || b.empty() ? a == b : numero(a) == numero(b);
}

// What the table has between two depths in a column; empty where it has several values, or none.
std::string valoreTra(const RigheStrati& presenti, std::size_t colonna, double tetto, double base) {
    const std::string* trovato = nullptr;
    double sopra = 0;
    for (std::size_t i = 0; i < presenti.size(); ++i) {
        const double sotto = numero(presenti[i][profondita]);
        const bool ultimo = i + 1 == presenti.size();
        const bool tocca = tetto < sotto && base > sopra;
        const bool prosegue = ultimo && base > sopra;
        sopra = sotto;
        if (!tocca && !prosegue) continue;
        const std::string& valore = presenti[i][colonna];
        if (trovato && !stessoValore(colonna, *trovato, valore)) return {};
        if (!trovato) trovato = &valore;
    }
    return trovato ? *trovato : std::string();
}

void tieniValori(RigheStrati& righe, const std::bitset<numeroColonne>& assenti,
                 const RigheStrati& presenti) {
    const RigheStrati ordinati = perProfondita(presenti);
    double tetto = 0;
    for (RigaStrato& riga : righe) {
        const double base = numero(riga[profondita]);
        for (std::size_t c = gammaN; c < numeroColonne; ++c)
            if (assenti[c]) riga[c] = valoreTra(ordinati, c, tetto, base);
        tetto = std::max(tetto, base);
    }
}

// How many cells are still to be filled in: the table reads an empty one as 0.
void contaVuote(bool serveKs, RigheImporto& importo) {
    int vuote = 0;
    for (const RigaStrato& riga : importo.righe)
        for (std::size_t c = gammaN; c <= ks; ++c)
            vuote += (c != ks || serveKs) && base::senzaSpaziEsterni(riga[c]).empty();
    if (vuote > 0)
        importo.avvertenze.push_back(frase(
            "celle da compilare: %1. Una cella lasciata vuota vale 0", {std::to_string(vuote)}));
}

}  // namespace

bool mancanoCodici(const RigheStrati& righe) {
    return std::any_of(righe.begin(), righe.end(), [](const RigaStrato& riga) {
        return !base::senzaSpaziEsterni(riga[descrizione]).empty() &&
               !drawings::haCodice(riga[descrizione]);
    });
}

RigheImporto preparaRighe(const StratiLetti& letti, const RigheStrati& presenti,
                          const SceltaImporto& scelta) {
    RigheImporto importo{letti.righe, {}};
    if (scelta.tieniValori) tieniValori(importo.righe, letti.assenti, presenti);
    if (scelta.mettiCodice)
        for (RigaStrato& riga : importo.righe)
            if (!base::senzaSpaziEsterni(riga[descrizione]).empty() &&
                !drawings::haCodice(riga[descrizione]))
                riga[descrizione] = "0 " + riga[descrizione];
    if (mancanoCodici(importo.righe))
        importo.avvertenze.push_back(
            base::traduttore("alcune descrizioni cominciano senza codice di campitura: la loro "
                             "prima parola vale come codice e non viene stampata"));
    contaVuote(scelta.serveKs, importo);
    return importo;
}

}  // namespace korven::exchange
