#include <algorithm>
#include <utility>
#include <vector>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/comparison_outcome.hpp"
#include "batch/run/text_table.hpp"
#include "comparison/tables.hpp"

namespace korven::batch {

namespace {

// A field's text that is longer would push the other column away: its row stands below the table.
constexpr std::size_t massimaParola = 36;

bool lunga(const std::vector<std::string>& celle) {
    return std::any_of(celle.begin() + 1, celle.end(), [](const std::string& cella) {
        return base::numeroCaratteri(cella) > massimaParola;
    });
}

std::string righeLunghe(const std::vector<std::string>& celle,
                        const std::vector<std::string>& titoli) {
    std::string testo = celle.front() + '\n';
    for (std::size_t i = 1; i < celle.size(); ++i)
        testo.append("  ").append(titoli[i]).append(base::duePunti()).append(celle[i]).append("\n");
    return testo;
}

std::string testo(const tables::Prospetto& prospetto) {
    std::string tutto = '\n' + prospetto.titolo + '\n';
    if (!prospetto.righe.empty()) {
        std::vector<std::string> titoli;
        std::vector<bool> aParole;
        for (const auto& colonna : prospetto.colonne) {
            titoli.push_back(colonna.testa());
            aParole.push_back(!colonna.numerica);
        }
        TabellaTesto tabella(titoli, std::move(aParole));
        std::string lunghe;
        const bool soloParole = !prospetto.colonne.back().numerica;
        for (const auto& riga : prospetto.righe) {
            std::vector<std::string> celle;
            for (const auto& cella : riga) celle.push_back(cella.testo);
            if (soloParole && lunga(celle))
                lunghe += righeLunghe(celle, titoli);
            else
                tabella.riga(std::move(celle));
        }
        tutto += tabella.testo() + lunghe;
    }
    for (const auto& nota : prospetto.note) tutto += nota + '\n';
    return tutto;
}

}  // namespace

std::string testoConfronto(const comparison::Confronto& confronto) {
    std::string tutto;
    for (const auto& frase : frasiMuri(confronto)) tutto += frase + '\n';
    for (const auto& frase : frasi(confronto)) tutto += frase + '\n';
    if (confronto.uguali()) return tutto;
    tutto += testo(prospettoCampi(confronto)) + testo(prospettoRisultati(confronto));
    if (const auto fasi = prospettoFasi(confronto); !fasi.righe.empty()) tutto += testo(fasi);
    const auto righe = righeOsservazioni(confronto);
    if (!righe.empty()) tutto += '\n' + base::traduttore("Osservazioni che cambiano") + '\n';
    for (const auto& riga : righe) tutto += riga + '\n';
    return tutto;
}

}  // namespace korven::batch
