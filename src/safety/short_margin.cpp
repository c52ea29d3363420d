#include "safety/short_margin.hpp"

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::safety {

namespace {

using project::DatiProgetto;

constexpr int minimiSegmenti = 3;

// Operations that a run in memory may take: about as many as 250 solves of the finest mesh, which
// no wall comes near that finds its rest in some ten of them a stage.
constexpr double massimoLavoro = 3e10;

// Ends a run that takes too long.
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

bool haMargine(const DatiProgetto& dati, int nSeg) {
    const bool incastro = analysis::vincoli(dati).incastroPiede;
    if (nSeg < minimiSegmenti ||
        nSeg > (incastro ? analysis::massimoSegmentiIncastro : analysis::massimoSegmenti))
        return false;
    for (int k = 1; k <= dati.nFasi; ++k)
        if (dati.tirantiFase[k] >= project::massimoTiranti + 1) return false;
    return analysis::motiviRifiuto(dati).empty() && dati.rigidezzaEJ != 0;
}

std::optional<MargineBreve> margineBreve(const DatiProgetto& scritti, int nSeg) {
    MargineBreve breve{.dati = scritti, .margine = {}};
    DatiProgetto& dati = breve.dati;
    if (structure::troppiFerri(dati.sezione)) return {};
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    if (!haMargine(dati, nSeg)) return {};
    SeguiCorsa corsa(nSeg);
    breve.margine = margine(dati, nSeg, corsa);
    return breve;
}

}  // namespace korven::safety
