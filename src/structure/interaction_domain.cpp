#include "structure/interaction_domain.hpp"

#include <algorithm>
#include <cmath>
#include <optional>

#include "structure/axial_resistance.hpp"
#include "structure/bending_resistance.hpp"
#include "structure/partial_factors.hpp"
#include "structure/section_validity.hpp"

namespace korven::structure {

namespace {

using Punti = std::vector<PuntoDominio>;

constexpr int intervalliIniziali = 8;
constexpr double entroLaForza = 1 - 1e-5;
constexpr double sporgenzaAmmessa = 0.01;  // of the largest resistance

PuntoDominio punto(const project::Sezione& sezione, double Nd) {
    PuntoDominio p;
    p.sforzoNormale = Nd / (fsAzioniSezione * project::newton);
    p.Nd = Nd;
    MomentiResistenti MRd;
    momentiResistenti(sezione, p.sforzoNormale, MRd);
    p.MRd1 = MRd[1];
    p.MRd2 = MRd[2];
    return p;
}

Punti iniziali(const project::Sezione& sezione, const ResistenzeAssiali& forze) {
    const double minima = -entroLaForza * forze.trazione;
    const double massima = entroLaForza * forze.compressione;
    std::vector<double> Nd{0};
    for (int i = 0; i <= intervalliIniziali; ++i)
        Nd.push_back(minima + (massima - minima) * i / intervalliIniziali);
    std::sort(Nd.begin(), Nd.end());
    Nd.erase(std::unique(Nd.begin(), Nd.end()), Nd.end());
    Punti punti;
    for (const double forza : Nd) punti.push_back(punto(sezione, forza));
    return punti;
}

double massimo(const Punti& punti) {
    double M = 0;
    for (const auto& p : punti) M = std::max({M, std::abs(p.MRd1), std::abs(p.MRd2)});
    return M;
}

// How far a point stands out from the line between its neighbours.
double sporgenza(const Punti& punti, std::size_t i) {
    const PuntoDominio &a = punti[i - 1], &p = punti[i], &b = punti[i + 1];
    const double quota = (p.Nd - a.Nd) / (b.Nd - a.Nd);
    const auto oltre = [&](double PuntoDominio::*M) {
        return std::abs(p.*M - (a.*M + quota * (b.*M - a.*M)));
    };
    return std::max(oltre(&PuntoDominio::MRd1), oltre(&PuntoDominio::MRd2));
}

// The first point of the stretch to be halved: the longer one beside the sharpest bend.
std::optional<std::size_t> daDimezzare(const Punti& punti) {
    double massima = sporgenzaAmmessa * massimo(punti);
    std::optional<std::size_t> prima;
    for (std::size_t i = 1; i + 1 < punti.size(); ++i) {
        const double sporge = sporgenza(punti, i);
        if (sporge <= massima) continue;
        massima = sporge;
        const bool dopo = punti[i + 1].Nd - punti[i].Nd > punti[i].Nd - punti[i - 1].Nd;
        prima = dopo ? i : i - 1;
    }
    return prima;
}

bool finito(const PuntoDominio& p) {
    return std::isfinite(p.Nd) && std::isfinite(p.MRd1) && std::isfinite(p.MRd2);
}

}  // namespace

Punti dominioNM(const project::Sezione& sezione) {
    if (!sezioneValida(sezione)) return {};
    const ResistenzeAssiali forze = resistenzeAssiali(sezione);
    if (!std::isfinite(forze.compressione) || !std::isfinite(forze.trazione)) return {};
    Punti punti = iniziali(sezione, forze);
    while (punti.size() < massimoPuntiDominio) {
        const auto i = daDimezzare(punti);
        if (!i) break;
        const double Nd = (punti[*i].Nd + punti[*i + 1].Nd) / 2;
        punti.insert(punti.begin() + static_cast<std::ptrdiff_t>(*i) + 1, punto(sezione, Nd));
    }
    const bool tutti = punti.size() > 1 && std::all_of(punti.begin(), punti.end(), finito);
    return tutti ? punti : Punti{};
}

}  // namespace korven::structure
