#include "studies/plan/option_reading.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "studies/plan/study_fields.hpp"

namespace korven::studies {

void LetturaOpzione::segna(DifettoPiano difetto, std::string_view dove) {
    if (difetto_) return;
    difetto.opzione = opzione_;
    difetto.carattere = carattere(dove);
    difetto_ = std::move(difetto);
}

void LetturaOpzione::malformata(std::string_view atteso, std::string_view dove) {
    segna({.motivo = MotivoPiano::forma,
           .testo = std::string(base::senzaSpaziEsterni(dove)),
           .atteso = std::string(atteso)},
          dove);
}

std::pair<std::string_view, std::string_view> LetturaOpzione::parti(std::string_view atteso) {
    const auto uguale = std::min(opzione_.find('='), opzione_.size());
    if (uguale == opzione_.size()) malformata(atteso, opzione_);
    return {opzione_.substr(0, uguale), opzione_.substr(std::min(uguale + 1, opzione_.size()))};
}

template <class T>
T LetturaOpzione::valore(Letto<T> letto, std::string_view dove) {
    if (std::holds_alternative<T>(letto)) return std::get<T>(std::move(letto));
    segna(std::get<DifettoPiano>(std::move(letto)), dove);
    return {};
}

project::CampoNominato LetturaOpzione::campo(std::string_view nome) {
    return valore(campoDiStudio(dati_, base::senzaSpaziEsterni(nome)), nome);
}

double LetturaOpzione::numero(std::string_view testo) {
    return valore(numeroScritto(testo), testo);
}

// Of the first that is no blank, from 1.
std::size_t LetturaOpzione::carattere(std::string_view dove) const {
    const auto vuoti = std::min(dove.find_first_not_of(' '), dove.size());
    const auto inizio = static_cast<std::size_t>(dove.data() - opzione_.data()) + vuoti;
    return base::numeroCaratteri(opzione_.substr(0, inizio)) + 1;
}

std::vector<std::string_view> divisi(std::string_view testo, char segno) {
    std::vector<std::string_view> parti;
    while (true) {
        const auto fine = std::min(testo.find(segno), testo.size());
        parti.push_back(testo.substr(0, fine));
        if (fine == testo.size()) return parti;
        testo.remove_prefix(fine + 1);
    }
}

}  // namespace korven::studies
