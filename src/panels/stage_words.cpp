#include "panels/stage_words.hpp"

#include <algorithm>
#include <cassert>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "equilibrium/extremes.hpp"
#include "panels/grid_rows.hpp"
#include "project/anchor_names.hpp"
#include "project/units.hpp"
#include "safety/words.hpp"

namespace korven::panels {

namespace {

using base::riempito;
using base::traduttore;

std::string conUnita(double conservato, const project::Unita& unita) {
    return base::testoDecimali(project::mostrato(unita, conservato), 1) + " " +
           std::string(unita.mostrata);
}

std::string con(const char* chiave, const equilibrium::Estremo& e, const project::Unita& unita) {
    return riempito(traduttore(chiave), {conUnita(e.valore, unita), safety::metri(e.z)});
}

std::string tiri(const project::DatiProgetto& dati, const equilibrium::FaseEquilibrio& fase) {
    std::string testo;
    for (std::size_t i = 0; i < fase.tiri.size(); ++i) {
        testo += testo.empty() ? base::puntoEVirgola() + base::conDuePunti(traduttore("tiri"), {})
                               : ", ";
        testo += project::siglaTirante(dati, static_cast<int>(i) + 1) + " " +
                 conUnita(fase.tiri[i], project::unita::forzaAlMetro);
    }
    return testo;
}

std::string cheSta(const live::PareteViva& parete, const equilibrium::FaseEquilibrio& fase) {
    const auto e = equilibrium::estremi(fase, parete.h);
    return base::conDuePunti(
        riempito(traduttore("fase %1 in equilibrio"), {std::to_string(fase.fase)}),
        con("spostamento massimo %1 a %2 m", e.spostamento, project::unita::spostamentoFine) +
            ", " + con("momento %1 a %2 m", e.momento(), project::unita::momentoAlMetro) + ", " +
            con("taglio %1 a %2 m", e.taglio, project::unita::forzaAlMetro) +
            tiri(parete.dati, fase));
}

}  // namespace

std::string paroleFase(const live::PareteViva& parete, int fase) {
    assert(fase >= 1 && fase <= parete.dati.nFasi);
    if (const auto* calcolata = parete.fase(fase)) return cheSta(parete, *calcolata);
    const std::string perche = parete.perche ? safety::inBreve(*parete.perche) : parete.rifiuto;
    const int cede = parete.fasiInEquilibrio() + 1;
    if (parete.fasi.empty() || fase == cede) return perche;
    return base::conDuePunti(
        riempito(traduttore("la fase %1 non è calcolata"), {std::to_string(fase)}), perche);
}

std::string comEra(const live::ProgettoVivo& vivo, const std::string& parole) {
    if (vivo.impedimento().empty()) return parole;
    return traduttore("com'era prima delle modifiche in corso") + " (" + vivo.impedimento() + ")" +
           base::duePunti() + parole;
}

namespace {

// What is shown of another stage than that of the row: the sketch stays while a row is begun.
FaseDellaRiga invece(const live::ProgettoVivo& vivo, std::optional<int> fase, std::string perche) {
    fase = std::min(fase.value_or(0), vivo.parete().dati.nFasi);
    if (*fase < 1) return {{}, std::move(perche)};
    return {fase, std::move(perche) + base::puntoEVirgola() + paroleFase(vivo.parete(), *fase)};
}

FaseDellaRiga trovata(const live::ProgettoVivo& vivo, const masks::ModelloGriglia& griglia,
                      int riga) {
    if (!vivo.aperto()) return {};
    const auto fase = rigaConDati(griglia, riga);
    if (!fase) return invece(vivo, ultimaSopra(griglia, riga), traduttore("la riga è vuota"));
    const bool mostrata = *fase <= vivo.parete().dati.nFasi;
    if (!mostrata)
        return vivo.impedimento().empty() ? FaseDellaRiga{}
                                          : invece(vivo, fase, vivo.impedimento());
    return {fase, comEra(vivo, paroleFase(vivo.parete(), *fase))};
}

}  // namespace

FaseDellaRiga faseDellaRiga(const live::ProgettoVivo& vivo, const masks::ModelloGriglia& griglia,
                            int riga) {
    FaseDellaRiga fase = trovata(vivo, griglia, riga);
    fase.parole = base::conMaiuscola(fase.parole);
    return fase;
}

}  // namespace korven::panels
