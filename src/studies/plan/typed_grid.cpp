#include "studies/plan/typed_grid.hpp"

#include <algorithm>
#include <utility>

#include "project/field_kind.hpp"
#include "studies/plan/option_reading.hpp"
#include "studies/plan/study_fields.hpp"

namespace korven::studies {

namespace {

using project::CampoNominato;
using project::DatiProgetto;

// A value beyond the range is found at an end; one that is no code, or not whole, is among the
// first of the axis that leaves the codes.
std::optional<DifettoPiano> difettoAsse(const Asse& asse) {
    const std::uint64_t ultimo = asse.numero() - 1;
    if (auto difetto = difettoValore(asse.campo(), asse.valore(ultimo))) return difetto;
    for (std::uint64_t k = 0; k <= ultimo; ++k) {
        if (auto difetto = difettoValore(asse.campo(), asse.valore(k))) return difetto;
        if (continuo(*asse.campo().campo)) return {};
    }
    return {};
}

std::optional<MotivoPiano> motivoPassi(double da, double a, double passo) {
    if (passo == 0) return MotivoPiano::passoNullo;
    const double quanti = Asse::quanti(da, a, passo);
    if (!(quanti >= 1)) return MotivoPiano::passoContrario;
    if (!(quanti <= massimoVarianti)) return MotivoPiano::troppeVarianti;
    return {};
}

}  // namespace

Letto<Asse> leggiAsse(const DatiProgetto& dati, std::string_view testo) {
    constexpr std::string_view forma = "lunghezzaParatia=8:12:0.5";
    LetturaOpzione lettura(dati, testo);
    const auto [nome, valori] = lettura.parti(forma);
    const CampoNominato campo = lettura.campo(nome);
    const auto numeri = divisi(valori, ':');
    if (numeri.size() != 3) lettura.malformata(forma, valori);
    double letti[3] = {};
    for (std::size_t i = 0; i < std::min<std::size_t>(numeri.size(), 3); ++i)
        letti[i] = lettura.numero(numeri[i]);
    if (!lettura.difettosa())
        if (const auto motivo = motivoPassi(letti[0], letti[1], letti[2]))
            lettura.segna({.motivo = *motivo, .testo = std::string(numeri[2])}, numeri[2]);
    if (lettura.difettosa()) return lettura.difetto();
    const Asse asse(campo, letti[0], letti[1], letti[2]);
    if (auto difetto = difettoAsse(asse)) lettura.segna(*std::move(difetto), valori);
    if (lettura.difettosa()) return lettura.difetto();
    return asse;
}

Letto<Griglia> leggiGriglia(const DatiProgetto& dati, std::span<const std::string> assi) {
    auto letti = tutti(dati, assi, leggiAsse);
    if (auto* difetto = std::get_if<DifettoPiano>(&letti)) return std::move(*difetto);
    return Griglia::di(std::get<std::vector<Asse>>(std::move(letti)));
}

}  // namespace korven::studies
