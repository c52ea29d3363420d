#include <string>
#include <string_view>
#include <vector>

#include "fuzz_target.hpp"
#include "studies/plan/fault_words.hpp"
#include "studies/plan/study_fields.hpp"
#include "studies/plan/typed_grid.hpp"
#include "studies/plan/typed_samples.hpp"
#include "study_wall.hpp"

// Any bytes as what is typed for a study, an option a line: axes of a grid, laws, and correlations
// where the first sign is "~". What can be read gives variants of finite numbers.

namespace {

using namespace korven;

struct Scritte {
    std::vector<std::string> opzioni, rho;
};

Scritte opzioni(std::string_view tutto) {
    Scritte scritte;
    constexpr std::size_t massimo = 12;  // more than a study has, few enough to be drawn quickly
    while (!tutto.empty() && scritte.opzioni.size() + scritte.rho.size() < massimo) {
        const auto fine = std::min(tutto.find('\n'), tutto.size());
        std::string_view riga = tutto.substr(0, fine);
        tutto.remove_prefix(std::min(fine + 1, tutto.size()));
        const bool correlazione = riga.starts_with('~');
        if (correlazione) riga.remove_prefix(1);
        (correlazione ? scritte.rho : scritte.opzioni).emplace_back(riga);
    }
    return scritte;
}

void inParole(const studies::DifettoPiano& difetto) {
    test::pretendi(!studies::parole(difetto).empty(), "a fault is told in words");
}

// The first variants and the last.
void varianti(const studies::Varianti& tutte) {
    const auto campi = tutte.campi();
    test::pretendi(!campi.empty() && tutte.numero() > 0, "there are variants of fields");
    std::vector<double> valori(campi.size());
    const std::uint64_t ultima = tutte.numero() - 1;
    for (const std::uint64_t i : {std::uint64_t{0}, std::uint64_t{1}, ultima / 2, ultima}) {
        if (i > ultima) continue;
        tutte.valori(i, valori);
        for (std::size_t j = 0; j < campi.size(); ++j)
            test::pretendi(!studies::difettoValore(campi[j], valori[j]),
                           "a value is within the range of its field");
    }
}

template <class T>
void prova(const studies::Letto<T>& letto) {
    if (const auto* difetto = std::get_if<studies::DifettoPiano>(&letto))
        inParole(*difetto);
    else
        varianti(std::get<T>(letto));
}

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    const auto& dati = test::muroDiStudio();
    const Scritte scritte = opzioni(test::contenutoFile(byte, quanti));
    if (scritte.opzioni.empty()) return 0;
    prova(studies::leggiGriglia(dati, scritte.opzioni));
    for (const auto disegno : {studies::Disegno::casuale, studies::Disegno::ipercubo})
        prova(studies::leggiCampioni(
            dati,
            {.leggi = scritte.opzioni, .rho = scritte.rho, .numero = 100, .disegno = disegno}));
    return 0;
}
