#include "studies/row_text.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "project/units_per_metre.hpp"

namespace korven::studies {

namespace {

constexpr std::string_view numero = "variante";
constexpr std::string_view fineCsv = "\r\n";

void aggiungi(double valore, std::string& testo) {
    char cifre[32];
    testo.append(cifre, std::to_chars(cifre, cifre + sizeof cifre, valore + 0.0).ptr);
}

void aggiungi(std::uint64_t valore, std::string& testo) {
    char cifre[24];
    testo.append(cifre, std::to_chars(cifre, cifre + sizeof cifre, valore).ptr);
}

template <class T>
bool leggiNumero(std::string_view testo, T& valore) {
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    return errore == std::errc() && fine == testo.data() + testo.size();
}

// "phiStrato[1] [°]"
std::string testa(const project::CampoNominato& c) {
    std::string testo = project::nomeStabile(*c.campo, c.riga);
    const std::string unita = project::traParentesi(project::unitaAlMetro(*c.campo));
    return unita.empty() ? testo : testo + ' ' + unita;
}

}  // namespace

RigheStudio::RigheStudio(std::span<const project::CampoNominato> campi,
                         std::vector<Colonna> colonne, Formato formato)
    : campi_(campi.begin(), campi.end()), colonne_(std::move(colonne)), formato_(formato) {
    const bool csv = formato == Formato::csv;
    if (csv)
        testata_ = numero;
    else
        inizio_.append("{\"").append(numero).append("\":");
    const auto aggiungi = [&](const std::string& nome, const std::string& testa, bool scritta) {
        nomi_.push_back(nome);
        if (!scritta) return void(chiavi_.emplace_back());
        chiavi_.push_back(csv ? "," : ",\"" + nome + "\":");
        if (csv) testata_ += ',' + testa;
    };
    for (const auto& c : campi) aggiungi(project::nomeStabile(*c.campo, c.riga), testa(c), true);
    for (const Colonna& c : colonne_) aggiungi(c.nome, c.nome, c.scritta);
    if (csv) testata_ += fineCsv;
}

bool RigheStudio::tutteScritte() const { return std::ranges::all_of(colonne_, &Colonna::scritta); }

const std::vector<std::string_view>* RigheStudio::parole(std::size_t j) const {
    return j < campi() ? nullptr : colonne_[j - campi()].parole;
}

void RigheStudio::cella(std::size_t j, double valore, std::string& testo) const {
    const bool csv = formato_ == Formato::csv;
    if (!std::isfinite(valore)) {
        if (!csv) testo += "null";
        return;
    }
    const auto* sue = parole(j);
    if (sue == nullptr) return aggiungi(valore, testo);
    if (!csv) testo += '"';
    testo += sue->at(static_cast<std::size_t>(valore));
    if (!csv) testo += '"';
}

std::string_view RigheStudio::fineRiga() const { return formato_ == Formato::csv ? fineCsv : "\n"; }

void RigheStudio::scrivi(std::uint64_t i, std::span<const double> valori,
                         std::string& testo) const {
    testo += inizio_;
    aggiungi(i + 1, testo);
    for (std::size_t j = 0; j < valori.size(); ++j) {
        if (chiavi_[j].empty()) continue;
        testo += chiavi_[j];
        cella(j, valori[j], testo);
    }
    if (formato_ == Formato::json) testo += '}';
    testo += fineRiga();
}

bool RigheStudio::leggiCella(std::size_t j, std::string_view testo, double& valore) const {
    valore = vuoto;
    const bool csv = formato_ == Formato::csv;
    if (testo == (csv ? "" : "null")) return true;
    const auto* sue = parole(j);
    // "inf" and "nan" are numbers to the library; a study writes neither.
    if (sue == nullptr) return leggiNumero(testo, valore) && std::isfinite(valore);
    if (!csv) {
        if (testo.size() < 2 || testo.front() != '"' || testo.back() != '"') return false;
        testo = testo.substr(1, testo.size() - 2);
    }
    const auto trovata = std::find(sue->begin(), sue->end(), testo);
    if (trovata == sue->end()) return false;
    valore = static_cast<double>(trovata - sue->begin());
    return true;
}

std::optional<std::uint64_t> RigheStudio::leggi(std::string_view riga,
                                                std::span<double> valori) const {
    if (formato_ == Formato::json) {
        if (!riga.starts_with(inizio_) || !riga.ends_with('}')) return {};
        riga = riga.substr(inizio_.size(), riga.size() - inizio_.size() - 1);
    }
    const auto fino = [&riga] { return std::min(riga.find(','), riga.size()); };
    std::uint64_t i = 0;
    if (!leggiNumero(riga.substr(0, fino()), i) || i == 0) return {};
    riga.remove_prefix(fino());
    for (std::size_t j = 0; j < valori.size(); ++j) {
        valori[j] = vuoto;
        if (chiavi_[j].empty()) continue;
        if (!riga.starts_with(chiavi_[j])) return {};
        riga.remove_prefix(chiavi_[j].size());
        if (!leggiCella(j, riga.substr(0, fino()), valori[j])) return {};
        riga.remove_prefix(fino());
    }
    return riga.empty() ? std::optional(i - 1) : std::nullopt;
}

}  // namespace korven::studies
