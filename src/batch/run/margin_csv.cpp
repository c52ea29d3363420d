#include <algorithm>
#include <cmath>

#include "answers/margin_json.hpp"
#include "base/number_text.hpp"
#include "batch/run/csv.hpp"
#include "batch/run/margin_outcome.hpp"
#include "project/units.hpp"

namespace korven::batch {

namespace {

using safety::Confronto;
using safety::MargineFase;

constexpr std::string_view nomi[] = {
    "fase",
    "esito",
    "scavo_m",
    "riduzione",
    "riduzione_oltre_10",
    "riduzione_limite_pendio",
    "meccanismo_z_m",
    "meccanismo_verso",
    "passiva_usata",
    "z_passiva_m",
    "spostamento_massimo_m",
    "momento_statica_kNm",
    "z_momento_statica_m",
    "momento_relazione_kNm",
    "z_momento_relazione_m",
    "taglio_statica_kN",
    "z_taglio_statica_m",
    "taglio_relazione_kN",
    "z_taglio_relazione_m",
    "tiri_statica_kN",
    "tiri_relazione_kN",
};

std::string_view siNo(bool si) { return si ? "1" : "0"; }

// Several numbers in one field, parted by blanks.
template <class Righe, class Numero>
std::string insieme(const Righe& righe, Numero numero) {
    std::string testo;
    for (const auto& riga : righe) {
        if (!testo.empty()) testo += ' ';
        testo += numero(riga);
    }
    return testo;
}

std::string tratti(const safety::UsoPassiva& uso) {
    return insieme(uso.alLimite, [](const equilibrium::Tratto& t) {
        return base::tutteLeCifre(t.da) + ' ' + base::tutteLeCifre(t.a);
    });
}

// A report has the forces of all anchors in place, or there is none.
std::string tiriRelazione(const std::vector<safety::ConfrontoTiro>& tiri) {
    if (std::any_of(tiri.begin(), tiri.end(), [](const auto& t) { return !t.relazione; }))
        return {};
    return insieme(tiri, [](const safety::ConfrontoTiro& t) {
        return base::tutteLeCifre(project::inKilonewton(t.relazione->valore));
    });
}

// A curve that is 0 all along has its largest number nowhere.
void campi(const Confronto& c, bool numeri, RigheCsv& righe) {
    using Numero = std::optional<double>;
    righe.campo(numeri ? Numero(project::inKilonewton(c.statica.valore)) : Numero());
    righe.campo(numeri && c.statica.fase > 0 ? Numero(c.statica.z) : Numero());
    righe.campo(c.relazione ? Numero(project::inKilonewton(c.relazione->valore)) : Numero());
    righe.campo(c.relazione ? Numero(c.relazione->z) : Numero());
}

void riga(const MargineFase& fase, RigheCsv& righe) {
    const safety::Riduzione& r = fase.riduzione;
    const bool ruota = r.moto && !r.moto->traslazione;
    righe.campo(fase.fase).campo(answers::parolaEsito(fase)).campo(fase.scavo).campo(r.F);
    righe.campo(siNo(r.oltre)).campo(siNo(r.limitePendio));
    righe.campo(ruota ? std::optional(r.moto->profondita) : std::nullopt);
    righe.campo(r.moto ? std::to_string(r.moto->verso) : std::string());
    righe.campo(fase.passiva.quota).campo(tratti(fase.passiva));
    const bool numeri = fase.inEquilibrio();
    righe.campo(numeri ? std::optional(std::fabs(fase.estremi.spostamento.valore)) : std::nullopt);
    campi(fase.confronto.momento, numeri, righe);
    campi(fase.confronto.taglio, numeri, righe);
    righe.campo(insieme(fase.confronto.tiri, [](const safety::ConfrontoTiro& t) {
        return base::tutteLeCifre(project::inKilonewton(t.statica));
    }));
    righe.campo(tiriRelazione(fase.confronto.tiri));
    righe.fineRiga();
}

}  // namespace

std::string csvMargine(const safety::Margine& margine) {
    RigheCsv righe(nomi);
    for (const MargineFase& fase : margine.fasi) riga(fase, righe);
    return righe.testo();
}

}  // namespace korven::batch
