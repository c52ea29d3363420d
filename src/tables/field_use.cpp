#include "tables/field_use.hpp"

#include <algorithm>
#include <iterator>

#include "live/section_checks.hpp"
#include "project/anchor_names.hpp"
#include "project/codes.hpp"

namespace korven::tables {

namespace {

using live::PareteViva;
using project::Campo;
using project::DatiProgetto;
using project::MetodoKs;
using project::MetodoSpinte;

// What the rules look at.
struct Dati {
    const DatiProgetto& scritti;
    const PareteViva& parete;
};
using F = const Dati&;

struct Regola {
    project::Membro membro;
    bool (*vale)(F);
    bool letto;
    const char* nota;  ///< Italian key
};

bool sempre(F) { return true; }

bool diPalancola(F f) {
    return project::parteInVigore(f.parete.dati.sezione) == project::Parte::palancola;
}

bool soloPuntoni(F f) {
    const DatiProgetto& dati = f.parete.dati;
    const int n = std::clamp(dati.nTiranti, 0, project::massimoTiranti);
    for (int j = 1; j <= n; ++j)
        if (!project::puntone(dati, j)) return false;
    return n > 0;
}

// The first that holds counts.
constexpr Regola regole[] = {
    {&DatiProgetto::suStrato, sempre, false,
     "il terreno resiste con phi e c; Su sta solo nella stratigrafia"},
    {&DatiProgetto::opzioneRiservata, sempre, false, "il file lo conserva soltanto"},
    {&DatiProgetto::faldaValle, sempre, false, "valore di lavoro: vale la falda di ogni fase"},
    {&DatiProgetto::ksStrato,
     [](F f) {
         return f.parete.dati.metodoKs == MetodoKs::bowles ||
                f.parete.dati.metodoKs == MetodoKs::lancellotta;
     },
     false, "il metodo scelto calcola ks da sé"},
    {&DatiProgetto::coeffM, [](F f) { return f.parete.dati.metodoKs != MetodoKs::lancellotta; },
     false, "lo legge solo il metodo di Lancellotta per ks"},
    {&DatiProgetto::coesione,
     [](F f) {
         return f.parete.dati.metodoSpinte == MetodoSpinte::bell &&
                f.parete.dati.metodoKs != MetodoKs::bowles;
     },
     false, "con Bell la coesione non entra nei limiti"},
    {&DatiProgetto::coesione, [](F f) { return f.parete.dati.metodoSpinte == MetodoSpinte::bell; },
     true, "con Bell entra solo in ks, non nei limiti"},
    {&DatiProgetto::inclinazioneMonte,
     [](F f) { return f.parete.dati.metodoSpinte == MetodoSpinte::bell; }, true,
     "con Bell entra solo nella spinta a riposo"},
    {&DatiProgetto::sovraccFase,
     [](F f) { return f.parete.dati.modoSpinte == project::ModoSpinte::comeMonte; }, false,
     "con le spinte uguali al lato monte il carico sul fondo dello scavo non agisce"},
    {&DatiProgetto::sforzoNormale,
     [](F f) { return !live::sezioneCalcolabile(f.parete.dati.sezione); }, false,
     "conta solo nella verifica della sezione, che non è definita"},
    {&DatiProgetto::sforzoNormale, sempre, true, "solo nella verifica a flessione"},
    {&DatiProgetto::sovraccMonte, sempre, true, "sul terreno dietro la paratia, a monte"},
    {&DatiProgetto::sovraccFase, sempre, true,
     "sul fondo dello scavo davanti alla paratia, a valle"},
    {&DatiProgetto::faldaMonte,
     [](F f) { return f.parete.dati.faldaMonte >= f.parete.dati.lunghezzaParatia; }, true,
     "sotto il piede: a monte non c'è acqua sulla paratia"},
    {&DatiProgetto::rigidezzaEJ, [](F f) { return f.parete.ejDellaSezione; }, true,
     "calcolata dalla sezione: il progetto non ne ha una"},
    {&DatiProgetto::rigidezzaEJ,
     [](F f) { return f.scritti.rigidezzaEJ != f.parete.dati.rigidezzaEJ; }, true,
     "ricalcolata dalla sezione"},
    {&DatiProgetto::metodoSpinte,
     [](F f) { return f.scritti.metodoSpinte != f.parete.dati.metodoSpinte; }, true,
     "scelto con un'opzione al posto di quello scritto"},
    {&DatiProgetto::gammaAcqua, sempre, true, "in t/m³, diversamente dagli altri pesi"},
    {&project::Sezione::modEcls, diPalancola, false, "la palancola non ha calcestruzzo"},
    {&project::Sezione::fck, diPalancola, false, "la palancola non ha calcestruzzo"},
    {&project::Sezione::armNumLong, sempre, true,
     "le barre del palo sono quelle usate; la scheda e la relazione ne mostrano dieci volte "
     "tante"},
    {&DatiProgetto::rigTirante, soloPuntoni, true, "orizzontale e per metro di paratia"},
    {&DatiProgetto::pretTirante, soloPuntoni, true, "orizzontale e per metro di paratia"},
    {&DatiProgetto::rigTirante, sempre, true,
     "orizzontale e per metro di paratia; il valore scritto è già moltiplicato per cos² alfa"},
    {&DatiProgetto::pretTirante, sempre, true,
     "orizzontale e per metro di paratia; il valore scritto è già moltiplicato per cos alfa"},
};

// A section has the parameters of all types; one is in force.
bool altroTipo(F f, const Campo& campo) {
    using enum project::Parte;
    if (campo.parte < diaframma || campo.parte == materiali) return false;
    return project::parteInVigore(f.parete.dati.sezione) != campo.parte;
}

}  // namespace

bool flag(const Campo& campo) {
    return std::holds_alternative<bool project::Sezione::*>(campo.membro);
}

UsoCampo usoCampo(const DatiProgetto& scritti, const PareteViva& parete, const Campo& campo) {
    const Dati f{scritti, parete};
    if (!flag(campo) && altroTipo(f, campo))
        return {.letto = false, .diAltroTipo = true, .nota = "di un altro tipo di sezione"};
    const auto* regola = std::find_if(std::begin(regole), std::end(regole), [&](const Regola& r) {
        return r.membro == campo.membro && r.vale(f);
    });
    if (regola == std::end(regole)) return {};
    return {.letto = regola->letto, .diAltroTipo = false, .nota = regola->nota};
}

}  // namespace korven::tables
