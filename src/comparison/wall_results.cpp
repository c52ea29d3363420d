#include "comparison/wall_results.hpp"

#include <algorithm>
#include <optional>

#include "base/translated_texts.hpp"
#include "safety/margin_words.hpp"
#include "tables/check_table.hpp"
#include "tables/node_table.hpp"

namespace korven::comparison {

namespace {

using base::traduttore;
using dossier::Fascicolo;
using equilibrium::Estremi;
using equilibrium::Estremo;
using safety::MargineFase;
using tables::Cella;
namespace unita = project::unita;

Cella senza(const char* perche) { return tables::senza(traduttore(perche)); }

// Why a stage, or with 0 the wall, has no results.
Cella senzaFase(const Fascicolo& f, int fase) {
    if (fase > nFasi(f)) return senza("Il progetto non ha questa fase.");
    return tables::senza(
        tables::perche(f.parete, fase > 0 ? fase : f.parete.fasiInEquilibrio() + 1));
}

// The report's run comes to its end without a verdict on equilibrium.
Cella fasiInEquilibrio(const Fascicolo& f, int, int) {
    if (f.controlli.dellaRelazione) return {};
    return tables::cella(f.parete.fasiInEquilibrio());
}

Cella rigidezza(const Fascicolo& f, int, int) {
    const double EJ = f.parete.dati.rigidezzaEJ;
    return EJ == 0 ? senza("Manca la rigidezza EJ.")
                   : tables::cella(EJ, 0, unita::rigidezzaFlessionaleAlMetro);
}

template <Estremo Estremi::*quale, Cella (*cella)(double)>
Cella estremo(const Fascicolo& f, int fase, int) {
    const auto estremi = f.parete.estremiDi(fase);
    return estremi ? cella(((*estremi).*quale).valore) : senzaFase(f, fase);
}

Cella tiro(const Fascicolo& f, int fase, int tirante) {
    if (fase > 0 ? f.parete.fase(fase) == nullptr : !f.parete.sta()) return senzaFase(f, fase);
    if (tirante > static_cast<int>(f.tiranti.size()))
        return senza("Il progetto non ha questo tirante.");
    const auto& storia = f.tiranti[static_cast<std::size_t>(tirante) - 1];
    if (fase == 0)
        return storia.faseMassimo > 0 ? tables::forza(storia.massimo)
                                      : senza("Non è in opera in nessuna fase in equilibrio.");
    const auto& suo = storia.tiri[static_cast<std::size_t>(fase) - 1];
    return suo ? tables::forza(*suo) : senza("Non è in opera in questa fase.");
}

const MargineFase* margineFase(const Fascicolo& f, int fase) {
    if (!f.margine || fase > static_cast<int>(f.margine->fasi.size())) return nullptr;
    return &f.margine->fasi[static_cast<std::size_t>(fase) - 1];
}

Cella riduzione(const safety::Riduzione& r) {
    return {.testo = safety::testoRiduzione(r), .numero = r.F};
}

// Where all factors are beyond the range, that of any stage says so.
Cella riduzione(const Fascicolo& f, int fase, int) {
    const MargineFase* sua =
        fase > 0 ? margineFase(f, fase) : (f.margine ? f.margine->decisiva() : nullptr);
    if (sua == nullptr && fase == 0) sua = margineFase(f, 1);
    return sua == nullptr ? senzaFase(f, fase) : riduzione(sua->riduzione);
}

Cella quota(const std::optional<double>& quota) {
    return quota ? tables::cella(*quota, 1, unita::percento)
                 : senza("Davanti alla paratia non c'è resistenza passiva.");
}

Cella passiva(const Fascicolo& f, int fase, int) {
    if (fase > 0 ? f.parete.fase(fase) == nullptr : !f.parete.sta()) return senzaFase(f, fase);
    if (!f.margine) return {};
    if (fase > 0) return quota(margineFase(f, fase)->passiva.quota);
    std::optional<double> massima;
    for (const MargineFase& una : f.margine->fasi) massima = std::max(massima, una.passiva.quota);
    return quota(massima);
}

Cella lunghezza(const Fascicolo& f, int, int) {
    if (!f.margine) return senzaFase(f, 0);
    const auto& minima = f.margine->lunghezza.lunghezza;
    return minima ? tables::profondita(*minima)
                  : tables::senza(safety::paroleLunghezza(*f.margine));
}

// @param R  resistance against the action
Cella sfruttamento(const Fascicolo& f, bool noto, double azione, double R) {
    if (!f.parete.sta()) return senzaFase(f, 0);
    return noto ? tables::uso(azione, R) : Cella{};
}

Cella flessionePositiva(const Fascicolo& f, int, int) {
    const auto& c = f.controlli.flessione;
    if (!c) return senza("La sezione non è definita.");
    return sfruttamento(f, true, c->mdMax, c->mrPos);
}

Cella flessioneNegativa(const Fascicolo& f, int, int) {
    const auto& c = f.controlli.flessione;
    if (!c) return senza("La sezione non è definita.");
    return c->negativo ? sfruttamento(f, true, c->mdMin, c->mrNeg)
                       : senza("Nessun momento negativo agisce.");
}

template <double structure::ConfrontoTaglio::*resistenza>
Cella taglio(const Fascicolo& f, int, int) {
    const auto& c = f.controlli.taglio;
    return c ? sfruttamento(f, true, c->Vsd, (*c).*resistenza)
             : senza("Il taglio si verifica solo per pali armati con le staffe scritte.");
}

constexpr VoceRisultato voci[] = {
    {"fasi_in_equilibrio", "Fasi in equilibrio", fasiInEquilibrio, unita::nessuna, true},
    {"rigidezza", "Rigidezza EJ usata", rigidezza, unita::rigidezzaFlessionaleAlMetro, true},
    {"spostamento_massimo", "Spostamento massimo",
     estremo<&Estremi::spostamento, tables::spostamento>, unita::spostamentoFine},
    {"momento_massimo", "Momento positivo massimo",
     estremo<&Estremi::momentoMassimo, tables::momento>, unita::momentoAlMetro},
    {"momento_minimo", "Momento negativo massimo",
     estremo<&Estremi::momentoMinimo, tables::momento>, unita::momentoAlMetro},
    {"taglio_massimo", "Taglio massimo", estremo<&Estremi::taglio, tables::forza>,
     unita::forzaAlMetro},
    {"tiro", "Tiro del tirante %1", tiro, unita::forzaAlMetro, false, true, "Forza del puntone %1",
     "Forza del tirante o puntone %1"},
    {"riduzione", "Riduzione della resistenza F", riduzione, unita::nessuna},
    {"passiva_usata", "Passiva mobilitata", passiva, unita::percento},
    {"lunghezza_minima", "Lunghezza minima", lunghezza, unita::metri, true},
    {"uso_flessione_positiva", "Sfruttamento a flessione, momento positivo", flessionePositiva,
     unita::percento, true},
    {"uso_flessione_negativa", "Sfruttamento a flessione, momento negativo", flessioneNegativa,
     unita::percento, true},
    {"uso_bielle", "Sfruttamento a taglio, bielle di calcestruzzo",
     taglio<&structure::ConfrontoTaglio::Vrd2>, unita::percento, true},
    {"uso_armatura_anima", "Sfruttamento a taglio, armatura d'anima",
     taglio<&structure::ConfrontoTaglio::Vrd3>, unita::percento, true},
};

}  // namespace

std::span<const VoceRisultato> vociRisultati() { return voci; }

int nFasi(const Fascicolo& f) { return std::clamp(f.parete.dati.nFasi, 0, project::massimoFasi); }

}  // namespace korven::comparison
