#include "comparison/compared_results.hpp"

#include <algorithm>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "comparison/wall_results.hpp"
#include "project/anchor_names.hpp"

namespace korven::comparison {

namespace {

using base::traduttore;
using dossier::Fascicolo;

// Other numbers than 0, as they are shown.
bool mostraQualcosa(const tables::Cella& cella) {
    return cella.testo.find_first_of("123456789") != std::string::npos;
}

class Raccolta {
 public:
    Raccolta(const Fascicolo& prima, const Fascicolo& dopo) : prima_(prima), dopo_(dopo) {}

    void aggiungi(const VoceRisultato& voce, int fase, int tirante) {
        RisultatoConfrontato r{
            .codice = voce.codice,
            .cosa = base::riempito(traduttore(nome(voce, tirante)), {std::to_string(tirante)}),
            .unita = voce.unita,
            .fase = fase,
            .tirante = tirante,
            .prima = voce.cella(prima_, fase, tirante),
            .dopo = voce.cella(dopo_, fase, tirante)};
        if (r.prima.testo != tables::nessuno || r.dopo.testo != tables::nessuno)
            trovati.push_back(std::move(r));
    }

    std::vector<RisultatoConfrontato> trovati;

 private:
    [[nodiscard]] const char* nome(const VoceRisultato& voce, int tirante) const {
        if (!voce.delTirante) return voce.cosa;
        int puntoni = 0, tutti = 0;
        for (const Fascicolo* f : {&prima_, &dopo_}) {
            if (tirante > static_cast<int>(f->tiranti.size())) continue;
            ++tutti;
            if (project::puntone(f->parete.dati, tirante)) ++puntoni;
        }
        if (puntoni == 0) return voce.cosa;
        return puntoni == tutti ? voce.delPuntone : voce.diAmbedue;
    }

    const Fascicolo &prima_, &dopo_;
};

}  // namespace

std::optional<double> RisultatoConfrontato::differenza() const {
    if (!prima.numero || !dopo.numero) return {};
    return *dopo.numero - *prima.numero;
}

std::optional<double> RisultatoConfrontato::quota() const {
    const auto quanto = differenza();
    if (!quanto || !mostraQualcosa(prima)) return {};
    if (*prima.numero * *dopo.numero < 0) return {};
    return *quanto / *prima.numero;
}

std::vector<RisultatoConfrontato> risultati(const Muro& prima, const Muro& dopo) {
    const Fascicolo &a = prima.fascicolo, &b = dopo.fascicolo;
    const int fasi = std::max(nFasi(a), nFasi(b));
    const int tiranti = static_cast<int>(std::max(a.tiranti.size(), b.tiranti.size()));
    Raccolta raccolta(a, b);
    for (int k = 0; k <= fasi; ++k)
        for (const VoceRisultato& voce : vociRisultati()) {
            if (k > 0 && voce.soloParete) continue;
            for (int j = voce.delTirante ? 1 : 0; j <= (voce.delTirante ? tiranti : 0); ++j)
                raccolta.aggiungi(voce, k, j);
        }
    return std::move(raccolta.trovati);
}

}  // namespace korven::comparison
