#include "report/annex/field_cells.hpp"

#include <cmath>
#include <type_traits>
#include <utility>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/layer_text.hpp"
#include "project/code_words.hpp"
#include "project/codes.hpp"
#include "project/seven_digits.hpp"
#include "project/units_per_metre.hpp"
#include "report/annex/greek_letters.hpp"
#include "tables/field_use.hpp"

namespace korven::report {

using base::traduttore;
using dossier::Fascicolo;
using project::Campo;
using project::DatiProgetto;
using tables::Cella;
namespace unita = project::unita;

namespace {

Cella numero(double mostrato) {
    if (!std::isfinite(mostrato)) return {};
    return {.testo = base::testoNumero(project::conSetteCifre(mostrato)), .numero = mostrato};
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
    return base::conMaiuscola(traduttore(tables::flag(campo) ? campo.didascalia : campo.cosa));
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
    const tables::UsoCampo suo = tables::usoCampo(f.scritti, f.parete, campo);
    if (suo.nota == nullptr) return {};
    std::string nota = conLettereGreche(traduttore(suo.nota));
    if (!suo.letto && !suo.diAltroTipo)
        nota = base::riempito(traduttore("fuori dal calcolo (%1)"), {nota});
    return {.letto = suo.letto, .nota = std::move(nota)};
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
