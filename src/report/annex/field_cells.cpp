#include "report/annex/field_cells.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <type_traits>
#include <utility>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/layer_text.hpp"
#include "live/section_checks.hpp"
#include "project/anchor_names.hpp"
#include "project/code_words.hpp"
#include "project/codes.hpp"
#include "project/seven_digits.hpp"
#include "project/units_per_metre.hpp"
#include "report/annex/greek_letters.hpp"

namespace korven::report {

using base::traduttore;
using dossier::Fascicolo;
using project::Campo;
using project::DatiProgetto;
using project::MetodoKs;
using project::MetodoSpinte;
using tables::Cella;
namespace unita = project::unita;

namespace {

Cella numero(double mostrato) {
    if (!std::isfinite(mostrato)) return {};
    return {.testo = base::testoNumero(project::conSetteCifre(mostrato)), .numero = mostrato};
}

struct Regola {
    project::Membro membro;
    bool (*vale)(const Fascicolo&);
    bool letto;
    const char* nota;  ///< Italian key
};

using F = const Fascicolo&;

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
bool altroTipo(const Fascicolo& f, const Campo& campo) {
    using enum project::Parte;
    if (campo.parte < diaframma || campo.parte == materiali) return false;
    return project::parteInVigore(f.parete.dati.sezione) != campo.parte;
}

bool flag(const Campo& campo) {
    return std::holds_alternative<bool project::Sezione::*>(campo.membro);
}

struct NomeProprio {
    project::Membro membro;
    const char* nome;  // Italian key
};

constexpr NomeProprio nomiPropri[] = {
    {&DatiProgetto::nTiranti, "Numero di tiranti e puntoni"},
    {&DatiProgetto::tirantiFase, "Tiranti e puntoni in opera"},
    {&DatiProgetto::profTirante, "profondità"},
    {&DatiProgetto::tipoTirante, "Tipo"},
    {&DatiProgetto::rigTirante, "Rigidezza"},
    {&DatiProgetto::pretTirante, "Pretensione"},
};

}  // namespace

std::string nomeDetto(const Campo& campo) {
    for (const auto& [membro, nome] : nomiPropri)
        if (campo.membro == membro) return base::conMaiuscola(traduttore(nome));
    return base::conMaiuscola(traduttore(flag(campo) ? campo.didascalia : campo.cosa));
}

std::string unitaDetta(const Campo& campo) {
    if (campo.membro == project::Membro(&DatiProgetto::coeffM)) return unitaCoefficienteM;
    return std::string(unitaAlMetro(campo).mostrata);
}

Cella scritto(const DatiProgetto& dati, const Campo& campo, int riga) {
    Cella fatta;
    project::conValore(dati, campo, riga, [&](const auto& valore) {
        using Valore = std::remove_cvref_t<decltype(valore)>;
        if constexpr (std::is_same_v<Valore, std::string>) {
            if (!valore.empty())
                fatta = tables::parola(campo.membro == project::Membro(&DatiProgetto::descrStrato)
                                           ? drawings::testoStrato(valore)
                                           : valore);
        } else if constexpr (std::is_same_v<Valore, bool>) {
            fatta = tables::parola(traduttore(valore ? "sì" : "no"));
        } else if constexpr (std::is_same_v<Valore, int>) {
            fatta = tables::cella(valore);
        } else {
            const project::Codice* codice = project::codice(campo, valore);
            fatta = codice != nullptr ? tables::parola(project::voceTradotta(campo, *codice))
                                      : numero(project::mostrato(campo, valore));
        }
    });
    return fatta;
}

Uso uso(const Fascicolo& f, const Campo& campo) {
    if (!flag(campo) && altroTipo(f, campo))
        return {.letto = false, .nota = traduttore("di un altro tipo di sezione")};
    const auto* regola = std::find_if(std::begin(regole), std::end(regole), [&](const Regola& r) {
        return r.membro == campo.membro && r.vale(f);
    });
    if (regola == std::end(regole)) return {};
    std::string nota = conLettereGreche(traduttore(regola->nota));
    if (!regola->letto) nota = base::riempito(traduttore("fuori dal calcolo (%1)"), {nota});
    return {.letto = regola->letto, .nota = std::move(nota)};
}

Cella usato(const Fascicolo& f, const Campo& campo, int riga) {
    const Uso suo = uso(f, campo);
    if (!suo.letto) return {};
    if (campo.membro == project::Membro(&project::Sezione::armNumLong))
        return numero(f.parete.dati.sezione.armNumLong);
    if (campo.membro == project::Membro(&DatiProgetto::gammaAcqua))
        return tables::parola(base::testoNumero(project::conSetteCifre(
                                  mostrato(unita::peso, f.parete.dati.gammaAcqua))) +
                              " " + std::string(unita::peso.mostrata));
    return scritto(f.parete.dati, campo, riga);
}

}  // namespace korven::report
