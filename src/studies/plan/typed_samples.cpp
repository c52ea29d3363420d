#include "studies/plan/typed_samples.hpp"

#include <algorithm>
#include <cassert>
#include <utility>

#include "base/code_page.hpp"
#include "project/field_kind.hpp"
#include "studies/plan/option_reading.hpp"
#include "studies/plan/study_fields.hpp"

namespace korven::studies {

namespace {

using project::CampoNominato;
using project::DatiProgetto;

const NomeLegge* leggeDiNome(std::string_view nome) {
    for (const NomeLegge& legge : nomiLeggi())
        if (legge.nome.comprende(nome)) return &legge;
    return nullptr;
}

// All names of laws with their parameters.
std::string forme() {
    std::string tutte;
    for (const NomeLegge& legge : nomiLeggi())
        tutte.append(tutte.empty() ? "" : ", ").append(legge.forma());
    return tutte;
}

MotivoPiano motivo(DifettoLegge difetto) {
    switch (difetto) {
        case DifettoLegge::scarto:
            return MotivoPiano::scarto;
        case DifettoLegge::media:
            return MotivoPiano::media;
        case DifettoLegge::estremi:
            return MotivoPiano::estremi;
        case DifettoLegge::oltreNumeri:
            break;
    }
    return MotivoPiano::oltreNumeri;
}

// "normale(32,2)"
Legge legge(LetturaOpzione& lettura, std::string_view testo) {
    Legge letta{};
    const auto aperta = testo.find('(');
    const auto chiusa = testo.find_last_not_of(' ');
    if (aperta == std::string_view::npos || testo[chiusa] != ')') {
        lettura.malformata(forme(), testo);
        return letta;
    }
    const std::string_view nome = base::senzaSpaziEsterni(testo.substr(0, aperta));
    const NomeLegge* riga = leggeDiNome(nome);
    if (riga == nullptr) {
        lettura.segna(
            {.motivo = MotivoPiano::leggeIgnota, .testo = std::string(nome), .atteso = forme()},
            testo);
        return letta;
    }
    letta.tipo = riga->tipo;
    const std::string_view interno = testo.substr(aperta + 1, chiusa - aperta - 1);
    const auto parametri = divisi(interno, ',');
    if (parametri.size() != riga->parametri) {
        lettura.segna({.motivo = MotivoPiano::parametri,
                       .testo = std::string(interno),
                       .atteso = riga->forma()},
                      interno);
        return letta;
    }
    for (std::size_t i = 0; i < parametri.size(); ++i)
        letta.parametri[i] = lettura.numero(parametri[i]);
    return letta;
}

std::string nome(const CampoNominato& campo) {
    return project::nomeStabile(*campo.campo, campo.riga);
}

// The place of a field among those that have a law.
std::optional<std::size_t> posto(const std::vector<CampoCasuale>& campi,
                                 const CampoNominato& cercato) {
    for (std::size_t i = 0; i < campi.size(); ++i)
        if (nome(campi[i].campo) == nome(cercato)) return i;
    return {};
}

Letto<Correlazione> correlazione(const std::vector<CampoCasuale>& campi,
                                 const std::vector<RhoScritto>& scritti) {
    std::vector<Coppia> coppie;
    for (const auto& [prima, seconda, rho] : scritti) {
        const auto i = posto(campi, prima), j = posto(campi, seconda);
        if (!i || !j)
            return DifettoPiano{.motivo = MotivoPiano::senzaLegge,
                                .testo = nome(i ? seconda : prima)};
        const std::size_t meno = std::min(*i, *j), piu = std::max(*i, *j);
        const bool ripetuta = std::ranges::any_of(
            coppie, [&](const Coppia& c) { return c.prima == meno && c.seconda == piu; });
        if (ripetuta)
            return DifettoPiano{.motivo = MotivoPiano::coppiaRipetuta,
                                .testo = nome(prima) + ',' + nome(seconda)};
        coppie.push_back({meno, piu, rho});
    }
    if (auto trovata = Correlazione::di(campi.size(), coppie)) return *std::move(trovata);
    return DifettoPiano{.motivo = MotivoPiano::nonDefinita};
}

}  // namespace

Letto<CampoCasuale> leggiLegge(const DatiProgetto& dati, std::string_view testo) {
    LetturaOpzione lettura(dati, testo);
    const auto [prima, dopo] = lettura.parti("phiStrato[1]=normale(32,2)");
    const CampoNominato campo = lettura.campo(prima);
    if (!lettura.difettosa() && !continuo(*campo.campo))
        lettura.segna({.motivo = MotivoPiano::nonContinuo, .testo = nome(campo)}, prima);
    const Legge letta = legge(lettura, dopo);
    if (lettura.difettosa()) return lettura.difetto();
    if (const auto male = difetto(letta)) {
        lettura.segna(
            {.motivo = motivo(*male), .testo = std::string(base::senzaSpaziEsterni(dopo))}, dopo);
        return lettura.difetto();
    }
    // Half of the samples of such a law, or all, would be at the end of the range.
    if (auto fuori = difettoValore(campo, media(letta))) {
        fuori->motivo = MotivoPiano::mediaFuori;
        lettura.segna(*std::move(fuori), dopo);
        return lettura.difetto();
    }
    return CampoCasuale{campo, letta};
}

Letto<RhoScritto> leggiRho(const DatiProgetto& dati, std::string_view testo) {
    constexpr std::string_view forma = "phiStrato[1],coesione[1]=-0.5";
    LetturaOpzione lettura(dati, testo);
    const auto [prima, dopo] = lettura.parti(forma);
    const auto nomi = divisi(prima, ',');
    if (nomi.size() != 2) lettura.malformata(forma, prima);
    if (lettura.difettosa()) return lettura.difetto();
    const RhoScritto letto{lettura.campo(nomi[0]), lettura.campo(nomi[1]), lettura.numero(dopo)};
    if (lettura.difettosa()) return lettura.difetto();
    if (nome(letto.prima) == nome(letto.seconda))
        lettura.segna({.motivo = MotivoPiano::stessoCampo, .testo = nome(letto.prima)}, nomi[1]);
    if (!(letto.rho > -1 && letto.rho < 1))
        lettura.segna({.motivo = MotivoPiano::rho, .testo = std::string(dopo)}, dopo);
    if (lettura.difettosa()) return lettura.difetto();
    return letto;
}

Letto<Campioni> leggiCampioni(const DatiProgetto& dati, const CampioniScritti& scritti) {
    assert(!scritti.leggi.empty());
    auto leggi = tutti(dati, scritti.leggi, leggiLegge);
    if (auto* difetto = std::get_if<DifettoPiano>(&leggi)) return std::move(*difetto);
    auto campi = std::get<std::vector<CampoCasuale>>(std::move(leggi));

    std::vector<CampoNominato> nomi;
    for (const CampoCasuale& campo : campi) nomi.push_back(campo.campo);
    if (const auto ripetuto = campoRipetuto(nomi))
        return DifettoPiano{.motivo = MotivoPiano::campoRipetuto, .testo = *ripetuto};
    if (static_cast<double>(scritti.numero) > massimoVarianti)
        return DifettoPiano{.motivo = MotivoPiano::troppeVarianti};
    if (scritti.disegno == Disegno::ipercubo && !scritti.rho.empty())
        return DifettoPiano{.motivo = MotivoPiano::rhoConIpercubo};

    const auto rho = tutti(dati, scritti.rho, leggiRho);
    if (const auto* difetto = std::get_if<DifettoPiano>(&rho)) return *difetto;
    auto copula = correlazione(campi, std::get<std::vector<RhoScritto>>(rho));
    if (auto* difetto = std::get_if<DifettoPiano>(&copula)) return std::move(*difetto);
    return Campioni(campi, scritti.numero, scritti.seme, scritti.disegno,
                    std::get<Correlazione>(std::move(copula)));
}

}  // namespace korven::studies
