#include "review/remark_counts.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::review {

namespace {

// How one and several are counted, Italian keys with %1 for the number.
struct Parole {
    Peso peso;
    std::string_view una, molte;
};

constexpr Parole parole[] = {
    {Peso::impedisce, "%1 impedisce il calcolo", "%1 impediscono il calcolo"},
    {Peso::pericolo, "%1 pericolo", "%1 pericoli"},
    {Peso::daVedere, "%1 da vedere", "%1 da vedere"},
};

}  // namespace

std::string conteggio(int quante, Peso peso) {
    const auto* riga = std::find_if(std::begin(parole), std::end(parole),
                                    [peso](const Parole& p) { return p.peso == peso; });
    return base::riempito(base::traduttore(quante == 1 ? riga->una : riga->molte),
                          std::vector{std::to_string(quante)});
}

std::string conteggio(const Osservazioni& osservazioni) {
    std::string testo;
    for (const Parole& riga : parole) {
        const int numero = quante(osservazioni, riga.peso);
        if (numero == 0) continue;
        if (!testo.empty()) testo += ", ";
        testo += conteggio(numero, riga.peso);
    }
    return testo.empty() ? base::traduttore("nessuna osservazione") : testo;
}

}  // namespace korven::review
