#include "scene/shown_wall.hpp"

#include <algorithm>
#include <cmath>

#include "drawings/log/layer_name.hpp"
#include "live/envelope.hpp"
#include "project/units.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"

namespace korven::scene {

namespace {

constexpr double massimo = 1e6;  // m, t, t/m2

int faseDi(const live::PareteViva& parete, int scelta) {
    const int ultima = std::clamp(parete.dati.nFasi, 0, project::massimoFasi);
    if (scelta > 0) return std::min(scelta, ultima);
    return parete.fasi.empty() || parete.sta() ? ultima : static_cast<int>(parete.fasi.size());
}

std::vector<double> tiriDi(const live::PareteViva& parete, int fase) {
    if (fase == 0) return live::inviluppo(parete).tiri;
    const auto* stato = parete.fase(fase);
    return stato != nullptr ? stato->tiri : std::vector<double>();
}

}  // namespace

bool disegnabile(double valore) { return std::isfinite(valore) && std::fabs(valore) <= massimo; }

int Mostrata::nStrati() const { return std::clamp(dati().nStrati, 0, project::massimoStrati); }
int Mostrata::nTiranti() const { return std::clamp(dati().nTiranti, 0, project::massimoTiranti); }
int Mostrata::nFasi() const { return std::clamp(dati().nFasi, 0, project::massimoFasi); }

int Mostrata::tirantiInOpera() const {
    const double n = fase > 0 ? dati().tirantiFase[fase] : 0;
    return std::isfinite(n) ? static_cast<int>(std::clamp<double>(n, 0, nTiranti())) : 0;
}

const double* Mostrata::tiro(int tirante) const {
    const auto i = static_cast<std::size_t>(tirante) - 1;
    return i < tiri.size() && std::isfinite(tiri[i]) ? &tiri[i] : nullptr;
}

Mostrata mostrata(const live::PareteViva& parete, const live::Vista& vista) {
    Mostrata m{parete, vista};
    m.fase = faseDi(parete, vista.fase);
    const int cade = parete.sta() ? 0 : static_cast<int>(parete.fasi.size());
    m.cade = cade > 0 && m.fase == cade;
    m.dopo = cade > 0 && m.fase > cade;
    const double L = parete.dati.lunghezzaParatia;
    if (disegnabile(L) && L > 0) m.lunghezza = L;
    if (m.fase > 0 && disegnabile(parete.dati.profFase[m.fase]))
        m.scavo = std::max(parete.dati.profFase[m.fase], 0.0);
    m.tiri = tiriDi(parete, vista.fase);
    return m;
}

double lettoMostrato(const Mostrata& m, int strato) {
    const double letto = m.dati().profStrato[strato];
    return strato == m.nStrati() && letto < m.lunghezza ? HUGE_VAL : letto;
}

int stratoMostrato(const Mostrata& m, double z) {
    for (int i = 1; i <= m.nStrati(); ++i)
        if (z <= lettoMostrato(m, i)) return i;
    return 0;
}

int coloreTerreno(const Mostrata& m, double z) {
    const int i = stratoMostrato(m, z);
    return i == 0 ? 0 : drawings::descrizioneMostrata(m.dati().descrStrato[i]).colore;
}

double spessore(const project::Sezione& sezione) {
    double mm = 0;
    switch (structure::tipoSezione(sezione)) {
        case structure::TipoSezione::nessuno:
            break;
        case structure::TipoSezione::diaframma:
            mm = structure::diaframmaMm(sezione).spessore;
            break;
        case structure::TipoSezione::pali:
            mm = structure::paliMm(sezione).diamEst;
            break;
        case structure::TipoSezione::palancola:
            mm = structure::altezza(structure::palancolaMm(sezione));
            break;
        case structure::TipoSezione::paliArmati:
            mm = structure::paliArmatiMm(sezione).diamPalo;
            break;
    }
    const double m = mm / project::millimetriMetro;
    return disegnabile(m) && m > 0 ? m : 0;
}

}  // namespace korven::scene
