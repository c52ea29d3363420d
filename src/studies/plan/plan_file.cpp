#include "studies/plan/plan_file.hpp"

#include <algorithm>
#include <cassert>
#include <string>
#include <utility>

#include "exchange/file_text.hpp"
#include "studies/plan/plan_rows.hpp"

namespace korven::studies {

Piano::Piano(std::vector<project::CampoNominato> campi, std::vector<double> valori)
    : campi_(std::move(campi)), valori_(std::move(valori)) {
    assert(!campi_.empty() && valori_.size() % campi_.size() == 0);
}

std::vector<Estremita> Piano::valori(std::uint64_t i, std::span<double> valori) const {
    assert(i < numero() && valori.size() == campi_.size());
    const auto inizio = valori_.begin() + static_cast<std::ptrdiff_t>(i * campi_.size());
    std::copy_n(inizio, campi_.size(), valori.begin());
    return {};
}

PianoLetto leggiPiano(const project::DatiProgetto& dati, std::string_view byte) {
    const std::string testo = exchange::testoDiFile(byte);
    RighePiano righe(dati);
    std::vector<double> valori;
    righe.leggi(testo, 1, valori);
    if (!righe.difetti().empty()) return {std::nullopt, righe.difetti()};
    if (valori.empty()) return {std::nullopt, {{.motivo = MotivoPiano::senzaRighe}}};
    return {Piano(righe.campi(), std::move(valori)), {}};
}

}  // namespace korven::studies
