#include "document/table_columns.hpp"

#include <algorithm>
#include <array>
#include <numeric>

#include "document/line_breaking.hpp"

namespace korven::document {

namespace {

constexpr std::array corpi = {8.5, 8.0, 7.5, 7.0};
constexpr double corpoInParti = 7.5;

// What a column needs, the room at its sides left out.
struct Bisogno {
    double minima = 0;    // the widest word or number
    double comoda = 0;    // below it words stand in too many lines
    double naturale = 0;  // no cell is broken
    double decimali = 0;
};

class Misurate {
 public:
    Misurate(const tables::Prospetto& prospetto, double corpo, const MisuraCaratteri& misura)
        : misura_(misura), corpo_(corpo), testa_{corpo, true} {
        for (std::size_t j = 0; j < prospetto.colonne.size(); ++j)
            colonne_.push_back(misurata(prospetto, j));
    }
    [[nodiscard]] const std::vector<Bisogno>& colonne() const { return colonne_; }

 private:
    [[nodiscard]] Bisogno misurata(const tables::Prospetto& prospetto, std::size_t j) const {
        constexpr double comoda = 11;  // of words, in sizes of the font
        Bisogno b = testa(prospetto.colonne[j]);
        double interi = 0;
        for (const auto& riga : prospetto.righe) {
            const tables::Cella& cella = riga[j];
            const Carattere scelto = carattere(cella, corpo_);
            if (prospetto.colonne[j].numerica && eNumero(cella)) {
                const NumeroPartito numero = partito(cella.testo);
                interi = std::max(interi, misura_.larghezza(numero.intero, scelto));
                b.decimali = std::max(b.decimali, misura_.larghezza(numero.decimali, scelto));
                continue;
            }
            b.minima = std::max(b.minima, parolaPiuLarga(cella.testo, scelto, misura_));
            const double intera = misura_.larghezza(cella.testo, scelto);
            b.naturale = std::max(b.naturale, intera);
            b.comoda = std::max(b.comoda, std::min(intera, comoda * corpo_));
        }
        b.minima = std::max(b.minima, interi + b.decimali);
        b.comoda = std::max(b.comoda, b.minima);
        b.naturale = std::max(b.naturale, b.comoda);
        return b;
    }

    // A head may stand in two lines or three.
    [[nodiscard]] Bisogno testa(const tables::Colonna& colonna) const {
        const double parola = parolaPiuLarga(colonna.titolo, testa_, misura_);
        const double unita =
            colonna.unita.empty() ? 0 : misura_.larghezza("[" + colonna.unita + "]", testa_);
        const double intera = misura_.larghezza(colonna.titolo, testa_);
        const double minima = std::max(parola, unita);
        return {minima, minima, std::max(minima, std::min(intera, intera / 3 + parola)), 0};
    }

    const MisuraCaratteri& misura_;
    double corpo_;
    Carattere testa_;
    std::vector<Bisogno> colonne_;
};

using Scelte = std::vector<std::size_t>;

template <class Membro>
double somma(const std::vector<Bisogno>& b, const Scelte& scelte, Membro membro) {
    return std::accumulate(scelte.begin(), scelte.end(), 0.0, [&](double s, std::size_t j) {
        return s + b[j].*membro + 2 * margineCella;
    });
}

// Widths between what is needed and what is wished for; what is left goes to all alike, up to a
// measure beyond which numbers of one row are far from each other.
std::vector<ColonnaDisposta> larghezze(const std::vector<Bisogno>& b, const Scelte& scelte,
                                       double larghezza) {
    constexpr double massimoInPiu = 26;  // [pt]
    const double minima = somma(b, scelte, &Bisogno::minima);
    const double comoda = somma(b, scelte, &Bisogno::comoda);
    const double naturale = somma(b, scelte, &Bisogno::naturale);
    const auto tra = [](double da, double a, double quota) { return da + (a - da) * quota; };
    const auto quota = [&](double da, double a) {
        return a > da ? std::clamp((larghezza - da) / (a - da), 0.0, 1.0) : 1.0;
    };
    const double troppo = minima > larghezza ? larghezza / minima : 1;
    const double inPiu =
        std::clamp((larghezza - naturale) / static_cast<double>(scelte.size()), 0.0, massimoInPiu);
    std::vector<ColonnaDisposta> disposte;
    double x = 0;
    for (const std::size_t j : scelte) {
        const double larga = tra(tra(b[j].minima, b[j].comoda, quota(minima, comoda)),
                                 b[j].naturale, comoda < larghezza ? quota(comoda, naturale) : 0);
        disposte.push_back({j, x, (larga + 2 * margineCella) * troppo + inPiu, b[j].decimali});
        x += disposte.back().larghezza;
    }
    return disposte;
}

Scelte tutte(std::size_t quante) {
    Scelte scelte(quante);
    std::iota(scelte.begin(), scelte.end(), std::size_t{0});
    return scelte;
}

// The first column and as many others as fit, at least one.
std::vector<Scelte> inParti(const std::vector<Bisogno>& b, double larghezza) {
    std::vector<Scelte> parti;
    for (std::size_t j = 1; j < b.size(); ++j) {
        Scelte conQuesta = parti.empty() ? Scelte{0} : parti.back();
        conQuesta.push_back(j);
        if (!parti.empty() && somma(b, conQuesta, &Bisogno::minima) > larghezza)
            parti.push_back({0, j});
        else if (parti.empty())
            parti.push_back(conQuesta);
        else
            parti.back() = conQuesta;
    }
    return parti;
}

}  // namespace

bool grave(const tables::Cella& cella) {
    return cella.peso == review::Peso::impedisce || cella.peso == review::Peso::pericolo;
}

Carattere carattere(const tables::Cella& cella, double corpo) { return {corpo, grave(cella)}; }

bool eNumero(const tables::Cella& cella) {
    return cella.numero && !cella.testo.empty() &&
           cella.testo.find_first_not_of("0123456789+-.") == std::string::npos &&
           cella.testo != tables::nessuno;
}

NumeroPartito partito(const std::string& testo) {
    const auto punto = std::min(testo.find('.'), testo.size());
    return {testo.substr(0, punto), testo.substr(punto)};
}

TavolaDisposta disponi(const tables::Prospetto& prospetto, double larghezza,
                       const MisuraCaratteri& misura) {
    const Scelte intera = tutte(prospetto.colonne.size());
    if (intera.empty()) return {corpi.front(), {}};
    // Comfortable in a smaller font rather than crowded in a larger one.
    for (const auto quanto : {&Bisogno::comoda, &Bisogno::minima})
        for (const double corpo : corpi) {
            const Misurate misurate(prospetto, corpo, misura);
            const auto& colonne = misurate.colonne();
            if (somma(colonne, intera, quanto) <= larghezza)
                return {corpo, {larghezze(colonne, intera, larghezza)}};
        }
    const Misurate misurate(prospetto, corpoInParti, misura);
    const auto& colonne = misurate.colonne();
    TavolaDisposta disposta{corpoInParti, {}};
    if (intera.size() == 1) disposta.parti.push_back(larghezze(colonne, intera, larghezza));
    for (const Scelte& parte : inParti(colonne, larghezza))
        disposta.parti.push_back(larghezze(colonne, parte, larghezza));
    return disposta;
}

}  // namespace korven::document
