#include "studies/plan/plan_rows.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "studies/plan/study_fields.hpp"

namespace korven::studies {

namespace {

constexpr std::size_t massimoDifetti = 20;

// No name of a field has either sign.
char separatore(std::string_view testo) {
    const auto inizio = std::min(testo.find_first_not_of(" \r\n"), testo.size());
    testo.remove_prefix(inizio);
    testo = testo.substr(0, testo.find_first_of("\r\n"));
    return testo.find(';') == std::string_view::npos ? ',' : ';';
}

// The unit may follow the name, as in the rows that a study writes.
std::string_view senzaUnita(std::string_view nome) {
    const auto spazio = nome.find(" [");
    return nome.ends_with(']') ? nome.substr(0, spazio) : nome;
}

}  // namespace

void RighePiano::leggi(std::string_view testo, long primaRiga, std::vector<double>& valori) {
    if (!testata_) separatore_ = separatore(testo);
    exchange::LettoreDelimitato righe(testo, separatore_, primaRiga);
    while (!finita_) {
        const auto riga = righe.prossimaPiena();
        if (!riga) break;
        if (testata_)
            variante(*riga, valori);
        else
            nomi(*riga);
        // Values of columns that are none mean nothing.
        finita_ = difetti_.size() >= massimoDifetti || (campi_.empty() && !difetti_.empty());
    }
    if (righe.difetto().empty() || difetti_.size() >= massimoDifetti) return;
    difetti_.push_back({.motivo = MotivoPiano::csv, .testo = righe.difetto()});
    finita_ = true;
}

void RighePiano::segna(DifettoPiano difetto, long riga, std::size_t colonna) {
    difetto.riga = riga;
    difetto.colonna = colonna;
    difetti_.push_back(std::move(difetto));
}

void RighePiano::nomi(const exchange::RigaLetta& testata) {
    testata_ = true;
    // A file of another kind has faults without end.
    for (std::size_t j = 0; j < testata.celle.size() && difetti_.size() < massimoDifetti; ++j) {
        const auto letto = campoDiStudio(dati_, senzaUnita(testata.cella(j)));
        if (const auto* difetto = std::get_if<DifettoPiano>(&letto)) {
            segna(*difetto, testata.riga, j + 1);
            continue;
        }
        campi_.push_back(std::get<project::CampoNominato>(letto));
        if (const auto nome = campoRipetuto(campi_)) {
            segna({.motivo = MotivoPiano::campoRipetuto, .testo = *nome}, testata.riga, j + 1);
            campi_.pop_back();
        }
    }
    if (!difetti_.empty()) campi_.clear();
}

void RighePiano::variante(const exchange::RigaLetta& riga, std::vector<double>& valori) {
    if (riga.celle.size() != campi_.size()) {
        segna({.motivo = MotivoPiano::celle,
               .testo = std::to_string(riga.celle.size()),
               .atteso = std::to_string(campi_.size())},
              riga.riga, 0);
        return;
    }
    for (std::size_t j = 0; j < campi_.size() && difetti_.size() < massimoDifetti; ++j) {
        const auto letto = valoreDiStudio(campi_[j], riga.cella(j));
        if (const auto* difetto = std::get_if<DifettoPiano>(&letto))
            segna(*difetto, riga.riga, j + 1);
        else
            valori.push_back(std::get<double>(letto));
    }
}

}  // namespace korven::studies
