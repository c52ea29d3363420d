#include "safety/told_stages.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/layer_soil.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "equilibrium/stage_setup.hpp"
#include "equilibrium/verdict.hpp"
#include "project/units.hpp"
#include "safety/words.hpp"

namespace korven::safety {

namespace {

using equilibrium::EsitoFase;
using equilibrium::FaseEquilibrio;
using project::DatiProgetto;

// Nothing of what is set in a stage without equilibrium means anything.
FaseEquilibrio senzaNumeri(const FaseEquilibrio& f) {
    FaseEquilibrio fase;
    fase.fase = f.fase;
    fase.esito = f.esito;
    fase.rifiuto = f.rifiuto;
    fase.newton = f.newton;
    fase.passi = f.passi;
    return fase;
}

FaseRaccontata racconta(const DatiProgetto& dati, int nSeg,
                        const equilibrium::EquilibrioParete& parete, const FaseEquilibrio& f) {
    FaseRaccontata r{.scavo = dati.profFase[f.fase], .fase = f};
    if (r.sta() && !mostrabile(f)) {
        r.fase.esito = EsitoFase::nessunNumero;
        r.fase.newton = equilibrium::EsitoNewton::nessunNumero;
    }
    if (r.sta()) return r;
    if (!f.rifiuto) r.perche = diagnosi(dati, nSeg, parete, r.fase);
    r.fase = senzaNumeri(r.fase);
    return r;
}

// The verdict on a mechanism asks for no displacements; nothing else is known of the stage. The
// length that would help is that of the whole wall, found with the stage that fell.
FaseRaccontata dopo(const DatiProgetto& dati, int nSeg, int k, const FaseRaccontata& caduta) {
    FaseRaccontata r{.scavo = dati.profFase[k], .dopo = caduta.fase.fase};
    r.fase.fase = k;
    r.fase.esito = EsitoFase::nonDefinito;
    equilibrium::ImpostazioneFasi fasi(dati, nSeg, analysis::suoloStrati(dati));
    const equilibrium::ProblemaFase& problema = fasi.problema();
    if (fasi.prepara(k, std::vector<double>(problema.nodi.size()))) return r;
    if (datoInstabile(problema).che != equilibrium::Instabile::no) return r;
    r.fase.moto = meccanismo(problema);
    if (!r.fase.moto || !std::isfinite(r.fase.moto->mancante)) return r;
    r.fase.esito = EsitoFase::meccanismo;
    r.perche = diagnosiSenzaLunghezza(dati, problema, r.fase);
    r.perche->lunghezza = caduta.perche->lunghezza;
    return r;
}

}  // namespace

bool mostrabile(const FaseEquilibrio& fase) {
    const auto numero = [](double x) { return std::isfinite(project::inKilonewton(x)); };
    for (const auto* v :
         {&fase.momento, &fase.taglio, &fase.monte, &fase.valle, &fase.acqua, &fase.tiri})
        if (!std::all_of(v->begin(), v->end(), numero)) return false;
    return numero(fase.costante);
}

std::string FaseRaccontata::frase() const {
    if (perche) return safety::frase(*perche);
    if (dopo == 0) return {};
    using base::traduttore;
    return traduttore("fase") + " " + std::to_string(fase.fase) + base::duePunti() +
           traduttore("non ha spostamenti da cui partire: nessun equilibrio nella fase") + " " +
           std::to_string(dopo);
}

const FaseRaccontata* EquilibrioRaccontato::caduta() const {
    const auto f = std::find_if(fasi.begin(), fasi.end(), [](const auto& r) { return !r.sta(); });
    return f == fasi.end() ? nullptr : &*f;
}

EquilibrioRaccontato raccontaFasi(const DatiProgetto& dati, int nSeg) {
    equilibrium::EquilibrioParete parete(dati, nSeg);
    EquilibrioRaccontato tutto{.nSeg = nSeg, .h = dati.lunghezzaParatia / nSeg};
    for (int k = 1; k <= dati.nFasi; ++k) {
        if (const FaseRaccontata* caduta = tutto.caduta()) {
            tutto.fasi.push_back(dopo(dati, nSeg, k, *caduta));
            continue;
        }
        const FaseRaccontata& r =
            tutto.fasi.emplace_back(racconta(dati, nSeg, parete, parete.calcola(k)));
        if (r.fase.rifiuto) break;
    }
    return tutto;
}

}  // namespace korven::safety
