#include "studies/plan/plan_file.hpp"

#include <algorithm>
#include <cassert>
#include <string>
#include <utility>

#include "base/number_text.hpp"
#include "exchange/delimited_reader.hpp"
#include "exchange/file_text.hpp"
#include "studies/plan/study_fields.hpp"

namespace korven::studies {

namespace {

constexpr std::size_t massimoDifetti = 20;

// Reads one file.
class Lettura {
 public:
    Lettura(const project::DatiProgetto& dati, std::string_view testo)
        : dati_(dati), righe_(testo, separatore(testo)) {}

    PianoLetto leggi() {
        if (const auto testata = righe_.prossimaPiena()) {
            nomi(*testata);
            // Values of columns that are none mean nothing.
            if (difetti_.empty()) varianti();
        }
        if (!righe_.difetto().empty())
            difetti_.push_back({.motivo = MotivoPiano::csv, .testo = righe_.difetto()});
        if (difetti_.empty() && valori_.empty())
            difetti_.push_back({.motivo = MotivoPiano::senzaRighe});
        if (!difetti_.empty()) return {std::nullopt, std::move(difetti_)};
        return {Piano(std::move(campi_), std::move(valori_)), {}};
    }

 private:
    // No name of a field has either sign.
    static char separatore(std::string_view testo) {
        const auto inizio = std::min(testo.find_first_not_of(" \r\n"), testo.size());
        testo.remove_prefix(inizio);
        testo = testo.substr(0, testo.find_first_of("\r\n"));
        return testo.find(';') == std::string_view::npos ? ',' : ';';
    }

    // The unit may follow the name, as in the rows that a study writes.
    static std::string_view senzaUnita(std::string_view nome) {
        const auto spazio = nome.find(" [");
        return nome.ends_with(']') ? nome.substr(0, spazio) : nome;
    }

    void segna(DifettoPiano difetto, long riga, std::size_t colonna) {
        difetto.riga = riga;
        difetto.colonna = colonna;
        difetti_.push_back(std::move(difetto));
    }

    void nomi(const exchange::RigaLetta& testata) {
        for (std::size_t j = 0; j < testata.celle.size(); ++j) {
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
    }

    void varianti() {
        while (const auto riga = righe_.prossimaPiena()) {
            if (riga->celle.size() != campi_.size()) {
                segna({.motivo = MotivoPiano::celle,
                       .testo = std::to_string(riga->celle.size()),
                       .atteso = std::to_string(campi_.size())},
                      riga->riga, 0);
            } else {
                variante(*riga);
            }
            if (difetti_.size() >= massimoDifetti) return;
        }
    }

    void variante(const exchange::RigaLetta& riga) {
        for (std::size_t j = 0; j < campi_.size(); ++j) {
            const auto letto = valoreDiStudio(campi_[j], riga.cella(j));
            if (const auto* difetto = std::get_if<DifettoPiano>(&letto))
                segna(*difetto, riga.riga, j + 1);
            else
                valori_.push_back(std::get<double>(letto));
        }
    }

    const project::DatiProgetto& dati_;
    exchange::LettoreDelimitato righe_;
    std::vector<project::CampoNominato> campi_;
    std::vector<double> valori_;
    std::vector<DifettoPiano> difetti_;
};

}  // namespace

Piano::Piano(std::vector<project::CampoNominato> campi, std::vector<double> valori)
    : campi_(std::move(campi)), valori_(std::move(valori)) {
    assert(!campi_.empty() && valori_.size() % campi_.size() == 0);
}

int Piano::valori(std::uint64_t i, std::span<double> valori) const {
    assert(i < numero() && valori.size() == campi_.size());
    const auto inizio = valori_.begin() + static_cast<std::ptrdiff_t>(i * campi_.size());
    std::copy_n(inizio, campi_.size(), valori.begin());
    return 0;
}

PianoLetto leggiPiano(const project::DatiProgetto& dati, std::string_view byte) {
    const std::string testo = exchange::testoDiFile(byte);
    return Lettura(dati, testo).leggi();
}

}  // namespace korven::studies
