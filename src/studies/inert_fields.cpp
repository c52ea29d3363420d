#include "studies/inert_fields.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>
#include <set>

#include "structure/offered_stiffness.hpp"
#include "studies/columns.hpp"

namespace korven::studies {

namespace {

using Valori = std::vector<double>;

// Evenly spread over all.
std::vector<Valori> variantiProvate(const Varianti& varianti) {
    constexpr std::uint64_t massime = 8;
    const std::uint64_t n = varianti.numero(), quante = std::min(n, massime);
    std::vector<Valori> provate;
    for (std::uint64_t k = 0; k < quante; ++k) {
        const std::uint64_t i = quante < 2 ? 0 : k * (n - 1) / (quante - 1);
        varianti.valori(i, provate.emplace_back(varianti.campi().size()));
    }
    return provate;
}

class Prova {
 public:
    Prova(const Varianti& varianti, const project::DatiProgetto& dati, const Domanda& domanda)
        : calcolo_(dati, varianti.campi(), domanda),
          colonne_(colonne(tirantiPossibili(dati, varianti.campi()), false)),
          provate_(variantiProvate(varianti)) {}

    std::optional<CampoSenzaEffetto> senzaEffetto(std::size_t j) {
        bool confrontate = false;
        CampoSenzaEffetto campo{j, provate_.front()[j], provate_.front()[j]};
        for (const Valori& valori : provate_) {
            campo.da = std::min(campo.da, valori[j]);
            campo.a = std::max(campo.a, valori[j]);
            const auto suoi = risultati(valori);
            if (!sta_) continue;
            for (const Valori& altra : provate_) {
                if (altra[j] == valori[j]) continue;
                Valori cambiata = valori;
                cambiata[j] = altra[j];
                if (risultati(cambiata) != suoi) return {};
                confrontate = true;
            }
        }
        return confrontate ? std::optional(campo) : std::nullopt;
    }

 private:
    // All that is told of a variant, to the last bit.
    std::vector<std::uint64_t> risultati(const Valori& valori) {
        const RisultatoVariante& r = calcolo_.calcola(valori, osservatore_);
        sta_ = r.sta();
        std::vector<std::uint64_t> bit;
        for (const Colonna& c : colonne_)
            bit.push_back(std::bit_cast<std::uint64_t>(c.valore(r, c.tirante)));
        return bit;
    }

    analysis::OsservatoreCorsa osservatore_;
    CalcoloVariante calcolo_;
    std::vector<Colonna> colonne_;
    std::vector<Valori> provate_;
    bool sta_ = false;
};

// Strength reductions take many times as long, and are of the same wall.
Domanda senzaMargine(Domanda domanda) {
    domanda.riduzione = domanda.lunghezza = false;
    return domanda;
}

}  // namespace

std::vector<CampoSenzaEffetto> campiSenzaEffetto(const Varianti& varianti,
                                                 const project::DatiProgetto& dati,
                                                 const Domanda& domanda) {
    if (varianti.numero() < 2) return {};
    Prova prova(varianti, dati, senzaMargine(domanda));
    std::vector<CampoSenzaEffetto> trovati;
    for (std::size_t j = 0; j < varianti.campi().size(); ++j)
        if (const auto campo = prova.senzaEffetto(j)) trovati.push_back(*campo);
    return trovati;
}

bool rigidezzaScrittaResta(const Varianti& varianti, const project::DatiProgetto& dati,
                           const Domanda& domanda) {
    if (domanda.ricalcolaEJ) return false;
    CalcoloVariante calcolo(dati, varianti.campi(), senzaMargine(domanda));
    analysis::OsservatoreCorsa osservatore;
    std::set<double> scritte, offerte;
    for (const Valori& valori : variantiProvate(varianti)) {
        calcolo.calcola(valori, osservatore);
        if (!calcolo.seguita()) continue;
        scritte.insert(calcolo.dati().rigidezzaEJ);
        offerte.insert(structure::rigidezzaOfferta(calcolo.dati().sezione).value_or(0));
    }
    return scritte.size() == 1 && offerte.size() > 1;
}

}  // namespace korven::studies
