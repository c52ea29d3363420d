#include <algorithm>

#include "base/number_text.hpp"
#include "batch/run/combinations_outcome.hpp"
#include "batch/run/csv.hpp"
#include "factors/words.hpp"
#include "project/units.hpp"

namespace korven::batch {

namespace {

using factors::Combinazioni;
using factors::EsitoCombinazione;
using factors::Massimo;
using factors::Oggetto;
using Numero = std::optional<double>;

constexpr std::string_view nomi[] = {
    "norma",
    "combinazione",
    "sta",
    "verificata",
    "spostamento_m",
    "momento_massimo_kNm",
    "momento_minimo_kNm",
    "taglio_kN",
    "uso_momento_positivo",
    "uso_momento_negativo",
    "uso_bielle",
    "uso_armatura",
    "uso_terra",
    "tiri_kN",
};

constexpr std::string_view inviluppo = "inviluppo";
constexpr Oggetto oggetti[] = {Oggetto::momentoPositivo, Oggetto::momentoNegativo, Oggetto::bielle,
                               Oggetto::armatura, Oggetto::terra};

std::string_view siNo(bool si) { return si ? "1" : "0"; }

std::string cifreKN(double t) { return base::tutteLeCifre(project::inKilonewton(t)); }

// A number for each anchor, parted by blanks; "-" for one that is never in place.
template <class Tiri, class Valore>
std::string elenco(const Tiri& tiri, Valore valore) {
    std::string testo;
    for (const auto& tiro : tiri) {
        if (!testo.empty()) testo += ' ';
        const Numero numero = valore(tiro);
        testo += numero ? cifreKN(*numero) : std::string("-");
    }
    return testo;
}

Numero uso(const EsitoCombinazione& e, Oggetto oggetto) {
    const auto v = std::find_if(e.verifiche.begin(), e.verifiche.end(),
                                [&](const auto& una) { return una.oggetto == oggetto; });
    return v == e.verifiche.end() ? std::nullopt : v->uso();
}

// Empty where nothing is checked.
std::string_view giudizio(const std::optional<bool>& detto) {
    return detto ? siNo(*detto) : std::string_view();
}

void riga(const Combinazioni& tutte, const EsitoCombinazione& e, RigheCsv& righe) {
    const double gamma = e.effetti();
    const auto seSta = [&](double t) {
        return e.sta() ? Numero(project::inKilonewton(t) * gamma) : Numero();
    };
    righe.campo(tutte.norma.nome).campo(e.combinazione.nome);
    righe.campo(siNo(e.sta())).campo(giudizio(e.giudizio()));
    righe.campo(e.sta() ? Numero(e.estremi.spostamento.valore) : Numero());
    righe.campo(seSta(e.estremi.momentoMassimo.valore));
    righe.campo(seSta(e.estremi.momentoMinimo.valore));
    righe.campo(seSta(e.estremi.taglio.valore));
    for (const Oggetto oggetto : oggetti) righe.campo(uso(e, oggetto));
    righe.campo(e.sta() ? elenco(e.tiri,
                                 [&](const factors::TiroMassimo& t) {
                                     return t.fase > 0 ? Numero(t.tiro * gamma) : Numero();
                                 })
                        : std::string());
    righe.fineRiga();
}

Numero numero(const Massimo& m) { return m.combinazione < 0 ? Numero() : Numero(m.valore); }

void rigaInviluppo(const Combinazioni& tutte, RigheCsv& righe) {
    const factors::Inviluppo& i = tutte.inviluppo;
    const auto kN = [](const Massimo& m) {
        const Numero t = numero(m);
        return t ? Numero(project::inKilonewton(*t)) : Numero();
    };
    righe.campo(tutte.norma.nome).campo(inviluppo);
    righe.campo(siNo(tutte.sta())).campo(giudizio(tutte.giudizio()));
    righe.campo(numero(i.spostamento));
    righe.campo(kN(i.momentoMassimo)).campo(kN(i.momentoMinimo)).campo(kN(i.taglio));
    for (const Oggetto oggetto : oggetti) {
        const auto peggiore = tutte.peggiore(oggetto);
        righe.campo(peggiore ? peggiore->second.uso() : Numero());
    }
    righe.campo(elenco(i.tiri, numero));
    righe.fineRiga();
}

}  // namespace

std::string csvCombinazioni(const Combinazioni& tutte) {
    RigheCsv righe(nomi);
    for (const EsitoCombinazione& e : tutte.esiti) riga(tutte, e, righe);
    rigaInviluppo(tutte, righe);
    return righe.testo();
}

}  // namespace korven::batch
