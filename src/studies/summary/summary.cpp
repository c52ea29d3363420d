#include "studies/summary/summary.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numeric>

#include "studies/summary/ranks.hpp"

namespace korven::studies {

namespace {

std::vector<std::size_t> postiTenuti(const FormaRiga& forma) {
    std::vector<std::size_t> posti(forma.campi);
    std::iota(posti.begin(), posti.end(), std::size_t{0});
    posti.insert(posti.end(), forma.risultati.begin(), forma.risultati.end());
    return posti;
}

// Ranks of the fields among the variants that have a result. Most results are there, or not,
// together: their ranks are worked out once.
class RanghiCampi {
 public:
    explicit RanghiCampi(std::vector<std::vector<double>> campi) : campi_(std::move(campi)) {}

    const std::vector<std::vector<double>>& di(const std::vector<double>& risultato) {
        std::vector<bool> presenti;
        presenti.reserve(risultato.size());
        for (const double v : risultato) presenti.push_back(!std::isnan(v));
        if (fatti_ && presenti == presenti_) return ranghi_;
        ranghi_.clear();
        for (const auto& campo : campi_) {
            std::vector<double> valori;
            for (std::size_t i = 0; i < campo.size(); ++i)
                if (presenti[i]) valori.push_back(campo[i]);
            ranghi_.push_back(ranghi(valori));
        }
        presenti_ = std::move(presenti);
        fatti_ = true;
        return ranghi_;
    }

 private:
    std::vector<std::vector<double>> campi_, ranghi_;
    std::vector<bool> presenti_;
    bool fatti_ = false;
};

}  // namespace

Riassunto::Riassunto(FormaRiga forma, std::uint64_t seme, std::size_t capienza)
    : forma_(std::move(forma)),
      posti_(postiTenuti(forma_)),
      oltre_(forma_.condizioni.size()),
      governano_(forma_.usi.size()),
      momenti_(posti_.size()),
      scelte_(seme, posti_.size() + 1, capienza),
      riga_(posti_.size() + 1) {}

bool Riassunto::fallisce(std::span<const double> riga, const EsitoRiga& esito) {
    if (esito.sorte == Sorte::rifiutata) return false;
    if (esito.sorte == Sorte::cade) {
        ++cadute_[{esito.motivo, esito.fase}];
        return true;
    }
    bool una = false;
    for (std::size_t k = 0; k < oltre_.size(); ++k) {
        if (!forma_.condizioni[k].vale(riga)) continue;
        ++oltre_[k];
        una = true;
    }
    return una;
}

void Riassunto::prendi(std::uint64_t i, std::span<const double> riga, const EsitoRiga& esito) {
    assert(riga.size() == forma_.valori);
    ++numero_;
    stanno_ += inEquilibrio(esito.sorte) ? 1 : 0;
    rifiutate_ += esito.sorte == Sorte::rifiutata ? 1 : 0;
    piediScavati_ += esito.sorte == Sorte::senzaPiede ? 1 : 0;
    fallite_ += fallisce(riga, esito) ? 1 : 0;

    std::size_t maggiore = forma_.usi.size();
    for (std::size_t k = 0; k < forma_.usi.size(); ++k) {
        const double uso = riga[forma_.usi[k]];
        if (std::isnan(uso)) continue;
        if (maggiore == forma_.usi.size() || uso > riga[forma_.usi[maggiore]]) maggiore = k;
    }
    if (maggiore < forma_.usi.size()) {
        ++governano_[maggiore];
        superano_ += riga[forma_.usi[maggiore]] > 1 ? 1 : 0;
    }

    for (std::size_t k = 0; k < posti_.size(); ++k) {
        riga_[k] = riga[posti_[k]];
        if (!std::isnan(riga_[k])) momenti_[k].prendi(riga_[k]);
    }
    riga_.back() = static_cast<double>(esito.sorte);
    scelte_.prendi(i, riga_);
}

double Riassunto::probabilita() const {
    return calcolate() == 0 ? 0 : static_cast<double>(fallite_) / static_cast<double>(calcolate());
}

std::vector<double> Riassunto::tenuti(std::size_t posto) const {
    return scelte_.colonna(tenuto(posto));
}

std::vector<Sorte> Riassunto::sorti() const {
    std::vector<Sorte> sorti;
    for (const double numero : scelte_.colonna(posti_.size()))
        sorti.push_back(static_cast<Sorte>(static_cast<int>(numero)));
    return sorti;
}

std::size_t Riassunto::tenuto(std::size_t posto) const {
    const auto trovato = std::ranges::find(posti_, posto);
    assert(trovato != posti_.end());
    return static_cast<std::size_t>(trovato - posti_.begin());
}

std::vector<Statistica> Riassunto::statistiche() const {
    std::vector<std::vector<double>> campi;
    for (std::size_t k = 0; k < forma_.campi; ++k) campi.push_back(scelte_.colonna(k));
    RanghiCampi ranghiCampi(std::move(campi));

    std::vector<Statistica> tutte;
    for (std::size_t k = 0; k < posti_.size(); ++k) {
        Statistica s{posti_[k], momenti_[k], {}, {}};
        auto valori = scelte_.colonna(k);
        const auto& diCampi = ranghiCampi.di(valori);
        std::erase_if(valori, [](double v) { return std::isnan(v); });
        const auto propri = ranghi(valori);
        for (const auto& campo : diCampi) s.ranghi.push_back(spearman(campo, propri));
        if (!valori.empty()) {
            std::ranges::sort(valori);
            s.quantili.emplace();
            std::ranges::transform(quoteQuantili, s.quantili->begin(),
                                   [&valori](double p) { return quantileCampionario(valori, p); });
        }
        tutte.push_back(std::move(s));
    }
    return tutte;
}

}  // namespace korven::studies
