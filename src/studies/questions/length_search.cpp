#include "studies/questions/length_search.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "analysis/run_arrays.hpp"
#include "project/deepest_excavation.hpp"
#include "project/typed_field.hpp"

namespace korven::studies {

namespace {

// What a product of a step and a whole number has of noise.
constexpr double tolleranzaPassi = 1e-9;

}  // namespace

RicercaLunghezza cercaLunghezza(const project::DatiProgetto& dati, int nSeg, const Criteri& criteri,
                                const Scala& scala, const std::function<bool()>& fermata) {
    assert(scala.passo > 0 && !analysis::vincoli(dati).bloccoPiede);
    RicercaLunghezza ricerca;
    const auto primo =
        std::lround(std::floor(project::scavoMassimo(dati) / scala.passo + tolleranzaPassi)) + 1;
    const auto ultimo = std::lround(std::floor(scala.finoA / scala.passo + tolleranzaPassi));
    const auto tratto =
        static_cast<std::size_t>(std::ceil(trattoSicuro / scala.passo - tolleranzaPassi));
    std::size_t reggono = 0;  // the last lengths, one after the other, that met the criteria
    for (long passi = primo; passi <= ultimo; ++passi) {
        if ((ricerca.fermata = fermata())) return ricerca;
        const double lunghezza = project::comeNelFile(static_cast<double>(passi) * scala.passo);
        ricerca.provate.push_back(prova(dati, lunghezza, nSeg, criteri));
        reggono = ricerca.provate.back().basta() ? reggono + 1 : 0;
        if (reggono > tratto) break;
    }
    if (reggono > 0) ricerca.risposta = ricerca.provate.size() - reggono;
    return ricerca;
}

}  // namespace korven::studies
