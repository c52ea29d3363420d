#include "factors/factor_rows.hpp"
#include "fuzz_target.hpp"

// Any bytes as sets of partial factors. Without a fault every factor of every combination is within
// its limits and has a source; with one it is told with its line.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    factors::Catalogo letto;
    factors::leggiCombinazioni(test::contenutoFile(byte, quanti), "prova.txt", letto);
    for (const auto& guasta : letto.guaste)
        test::pretendi(guasta.riga > 0 && !guasta.motivo.empty() && !guasta.frase().empty(),
                       "a fault is told with its line");
    if (!letto.guaste.empty()) return 0;
    const auto voci = factors::vociFattori();
    for (const auto& norma : letto.norme) {
        test::pretendi(letto.norma(norma.nome) == &norma, "a code is found by its name");
        test::pretendi(!norma.combinazioni.empty(), "a code has combinations");
        for (const auto& combinazione : norma.combinazioni)
            for (std::size_t i = 0; i < voci.size(); ++i) {
                const double valore = combinazione.fattori.*(voci[i].membro);
                test::pretendi(!voci[i].obbligatoria || !combinazione.fonti[i].empty(),
                               "a factor that is needed is there");
                test::pretendi(combinazione.fonti[i].empty() ||
                                   (valore >= voci[i].minimo && valore <= voci[i].massimo),
                               "a factor is within its limits");
            }
    }
    return 0;
}
