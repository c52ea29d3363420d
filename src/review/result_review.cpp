#include "review/result_review.hpp"

#include <algorithm>

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "review/result_checks.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;

constexpr int minimiSegmenti = 3;

bool calcolabile(const DatiProgetto& dati, int nSeg) {
    const bool incastro = analysis::vincoli(dati).incastroPiede;
    if (nSeg < minimiSegmenti ||
        nSeg > (incastro ? analysis::massimoSegmentiIncastro : analysis::massimoSegmenti))
        return false;
    for (int k = 1; k <= dati.nFasi; ++k)
        if (dati.tirantiFase[k] >= project::massimoTiranti + 1) return false;
    return analysis::motiviRifiuto(dati).empty() && dati.rigidezzaEJ != 0;
}

// Operations that a run in memory may take: about as many as 250 solves of the finest mesh, which
// no wall comes near that finds its rest in some ten of them a stage.
constexpr double massimoLavoro = 3e10;

// Ends a run that takes too long: of that it is not known whether it would come to rest.
class SeguiCorsa : public analysis::OsservatoreCorsa {
 public:
    explicit SeguiCorsa(int nSeg) : perIterazione_(8.0 * (nSeg + 1) * (nSeg + 1) * (nSeg + 1)) {}

    void iterazione(const analysis::StatoIterazione&) override { lavoro_ += perIterazione_; }
    [[nodiscard]] bool fermata() override { return lavoro_ > massimoLavoro; }

 private:
    double perIterazione_;
    double lavoro_ = 0;
};

}  // namespace

Soggetto scavo(const DatiProgetto& dati, int fase) {
    Soggetto soggetto = rigaConValore(dati, &DatiProgetto::profFase, fase);
    soggetto.campi.push_back(project::nomeStabile(project::campo(&DatiProgetto::lunghezzaParatia)));
    return soggetto;
}

Osservazioni esaminaRisultati(const DatiProgetto& scritti, int nSeg) {
    DatiProgetto dati = scritti;
    if (structure::troppiFerri(dati.sezione)) return {};
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    if (!calcolabile(dati, nSeg)) return {};
    SeguiCorsa corsa(nSeg);
    return esaminaRisultati(dati, safety::margine(dati, nSeg, corsa));
}

Osservazioni esaminaRisultati(const DatiProgetto& dati, const safety::Margine& margine) {
    ElencoOsservazioni elenco;
    controlloEquilibrio(dati, margine, elenco);
    controlloMargine(dati, margine, elenco);
    controlloVerifiche(dati, margine, elenco);
    controlloTiri(dati, margine, elenco);
    controlloStatica(dati, margine, elenco);
    controlloIncastro(dati, margine, elenco);
    controlloMaglia(dati, margine, elenco);
    return elenco.ordinate();
}

}  // namespace korven::review
