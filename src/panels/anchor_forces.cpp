#include "panels/anchor_forces.hpp"

#include <algorithm>
#include <cmath>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "panels/grid_rows.hpp"
#include "project/units.hpp"
#include "safety/words.hpp"

namespace korven::panels {

namespace {

using base::traduttore;
using live::PareteViva;

// In short why a stage has no forces; the sentence stands below.
std::string manca(const PareteViva& parete, int fase) {
    const bool cede = fase == parete.fasiInEquilibrio() + 1 && parete.perche.has_value();
    if (!cede) return traduttore("non calcolata");
    return traduttore(parete.perche->causa == safety::Causa::meccanismo ? "non in equilibrio"
                                                                        : "equilibrio non certo");
}

TiroInFase inFase(const PareteViva& parete, int fase, int tirante) {
    TiroInFase qui;
    qui.scavo = parete.dati.profFase[fase];
    const auto* calcolata = parete.fase(fase);
    if (calcolata == nullptr)
        qui.nota = manca(parete, fase);
    else if (tirante < 1 || tirante > static_cast<int>(calcolata->tiri.size()))
        qui.nota = traduttore("non in opera");
    else
        qui.tiro = project::inKilonewton(calcolata->tiri[static_cast<std::size_t>(tirante) - 1]);
    return qui;
}

double grandezza(const TiroInFase& qui) { return std::fabs(qui.tiro.value_or(0)); }

void segnaMassimo(std::vector<TiroInFase>& fasi) {
    const auto massimo =
        std::max_element(fasi.begin(), fasi.end(),
                         [](const auto& a, const auto& b) { return grandezza(a) < grandezza(b); });
    if (massimo == fasi.end() || grandezza(*massimo) == 0) return;
    massimo->massimo = true;
    massimo->nota = traduttore("massimo");
}

}  // namespace

TiriTirante tiriDelTirante(const PareteViva& parete, int tirante) {
    TiriTirante tiri;
    const int fasi = std::clamp(parete.dati.nFasi, 0, project::massimoFasi);
    for (int k = 1; k <= fasi; ++k) tiri.fasi.push_back(inFase(parete, k, tirante));
    segnaMassimo(tiri.fasi);
    tiri.perche = parete.perche ? safety::inBreve(*parete.perche) : parete.rifiuto;
    return tiri;
}

TiriTirante tiriDellaRiga(const live::ProgettoVivo& vivo, const masks::ModelloGriglia& griglia,
                          int riga) {
    if (!vivo.aperto()) return {};
    if (!vivo.impedimento().empty())
        return {{},
                base::conDuePunti(traduttore("i tiri tornano quando la tabella è completa"),
                                  vivo.impedimento())};
    const auto tirante = tiranteDellaRiga(griglia, riga);
    if (!tirante) return {{}, traduttore("la riga è vuota")};
    return tiriDelTirante(vivo.parete(), *tirante);
}

}  // namespace korven::panels
