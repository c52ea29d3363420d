#include "safety/statics_beside_report.hpp"

#include <cmath>

#include "analysis/run_closing.hpp"
#include "analysis/staged_run.hpp"
#include "base/value_error.hpp"
#include "structure/bending_resistance.hpp"

namespace korven::safety {

namespace {

// Ends a stage that does not come to rest.
class FinoAlLimite : public analysis::OsservatoreCorsa {
 public:
    explicit FinoAlLimite(analysis::OsservatoreCorsa& altro) : altro_(altro) {}
    void inizio(int fase) override { altro_.inizio(fase); }
    void iterazione(const analysis::StatoIterazione& stato) override {
        altro_.iterazione(stato);
        oltre_ = !stato.convergente && stato.iterazione >= massimeIterazioni;
    }
    [[nodiscard]] bool fermata() override { return altro_.fermata() || oltre_; }
    void fine(const analysis::FaseCalcolata& fase) override { altro_.fine(fase); }
    void caduta(const analysis::FaseCalcolata& fase) override { altro_.caduta(fase); }

    [[nodiscard]] bool oltre() const { return oltre_; }

 private:
    analysis::OsservatoreCorsa& altro_;
    bool oltre_ = false;
};

std::vector<std::vector<double>> spostamenti(const analysis::EsitoCorsa& corsa, int nSeg) {
    std::vector<std::vector<double>> tutti;
    tutti.reserve(corsa.fasi.size());
    for (const analysis::FaseCalcolata& fase : corsa.fasi) {
        auto& y = tutti.emplace_back();
        y.reserve(static_cast<std::size_t>(nSeg) + 1);
        for (int i = 1; i <= nSeg + 1; ++i) y.push_back(fase.risultati.yNodo[i]);
    }
    return tutti;
}

}  // namespace

RelazioneInMemoria relazioneInMemoria(const project::DatiProgetto& dati, int nSeg,
                                      analysis::OsservatoreCorsa& osservatore) {
    FinoAlLimite seguito(osservatore);
    const analysis::EsitoCorsa corsa = analysis::calcolaFasi(dati, nSeg, seguito);
    RelazioneInMemoria relazione;
    if (!corsa.finita()) {
        relazione.fine = analysis::fineCorsa(corsa.fasi.back(), seguito.oltre());
        return relazione;
    }
    try {
        relazione.numeri = results::numeriRelazione(results::risultatiInMemoria(
            dati, nSeg, corsa,
            analysis::chiusura(structure::resistenze(dati.sezione, dati.sforzoNormale), corsa)));
        relazione.spostamenti = spostamenti(corsa, nSeg);
    } catch (const base::ErroreValore&) {
        relazione.fine.modo = analysis::ModoFine::nonMostrabile;
    }
    return relazione;
}

std::optional<double> Confronto::scarto() const {
    if (!relazione || statica.valore == 0) return std::nullopt;
    const double vera = std::fabs(statica.valore);
    return std::fabs(std::fabs(relazione->valore) - vera) / vera;
}

ConfrontoFase statica(const equilibrium::FaseEquilibrio& fase, double h) {
    const equilibrium::Estremi e = equilibrium::estremi(fase, h);
    const auto alPiede = [&](const std::vector<double>& valori) {
        const auto ultimo = static_cast<double>(valori.size() - 1);
        return Confronto{{valori.back(), ultimo * h, fase.fase}, std::nullopt};
    };
    ConfrontoFase confronto{.fase = fase.fase,
                            .momento = {e.momento(), std::nullopt},
                            .taglio = {e.taglio, std::nullopt},
                            .momentoPiede = alPiede(fase.momento),
                            .taglioPiede = alPiede(fase.taglio),
                            .tiri = {}};
    for (const double tiro : fase.tiri)
        confronto.tiri.push_back({static_cast<int>(confronto.tiri.size()) + 1, tiro, std::nullopt});
    return confronto;
}

void affianca(const results::NumeriFase& relazione, ConfrontoFase& confronto) {
    confronto.momento.relazione = relazione.momento();
    confronto.taglio.relazione = relazione.taglio;
    const double z = confronto.momentoPiede.statica.z;
    confronto.momentoPiede.relazione = {relazione.momentoPiede, z, confronto.fase};
    confronto.taglioPiede.relazione = {relazione.taglioPiede, z, confronto.fase};
    for (std::size_t j = 0; j < confronto.tiri.size(); ++j)
        confronto.tiri[j].relazione = relazione.tiri.at(j);
}

}  // namespace korven::safety
