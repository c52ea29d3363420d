#include "desk/study_choice.hpp"

#include <algorithm>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/field_kind.hpp"
#include "project/typed_field.hpp"
#include "studies/plan/fault_words.hpp"
#include "studies/plan/study_fields.hpp"
#include "studies/plan/typed_grid.hpp"
#include "studies/plan/typed_samples.hpp"
#include "studies/shown_columns.hpp"
#include "studies/summary/row_conditions.hpp"

namespace korven::desk {

namespace {

using base::riempito;
using base::traduttore;
using project::DatiProgetto;
using studies::DifettoPiano;

using Varianti = std::shared_ptr<const studies::Varianti>;

// "lunghezzaParatia=8:12:0.5", "phiStrato[1]=normale(32,2)"
std::string testo(const VariazioneScritta& v, bool campioni) {
    if (!campioni) return v.campo + "=" + v.numeri[0] + ":" + v.numeri[1] + ":" + v.numeri[2];
    const auto& legge = studies::nomiLeggi()[static_cast<std::size_t>(v.legge)];
    std::string tra;
    for (std::size_t i = 0; i < legge.parametri; ++i) tra += (i > 0 ? "," : "") + v.numeri[i];
    return v.campo + "=" + legge.nome.mostrato() + "(" + tra + ")";
}

template <class T>
std::pair<Varianti, std::string> varianti(studies::Letto<T> letto) {
    if (const auto* difetto = std::get_if<DifettoPiano>(&letto))
        return {nullptr, studies::parole(*difetto)};
    return {std::make_shared<const T>(std::get<T>(std::move(letto))), {}};
}

std::pair<Varianti, std::string> varianti(const DatiProgetto& dati, const StudioScritto& s,
                                          const std::vector<std::string>& varia) {
    if (!s.campioni) return varianti(studies::leggiGriglia(dati, varia));
    return varianti(studies::leggiCampioni(
        dati, {.leggi = varia,
               .rho = {},
               .numero = s.numero,
               .seme = s.seme,
               .disegno = s.ipercubo ? studies::Disegno::ipercubo : studies::Disegno::casuale}));
}

// A number of the shown unit as the condition has it; what is none stays, to be told of.
std::string limite(const CriterioScritto& c) {
    const double fattore = studies::valoreMostrato(c.risultato).unita.fattore;
    const auto numero = base::leggiNumero(c.limite);
    if (!numero || !base::soloUnNumero(c.limite)) return c.limite;
    return base::testoNumero(*numero / fattore);
}

std::vector<std::string> condizioni(const StudioScritto& scritto) {
    std::vector<std::string> tutte;
    for (const CriterioScritto& c : scritto.fallisce)
        tutte.push_back(c.risultato + c.segno + limite(c));
    return tutte;
}

// Why the first criterion that is none is none.
std::string difetto(const StudioScritto& scritto, const std::vector<std::string>& condizioni,
                    const studies::RigheStudio& righe) {
    const auto lette = studies::leggiCondizioni(condizioni, righe);
    if (!lette.difetto) return {};
    const auto quale = std::ranges::find(condizioni, lette.difetto->first) - condizioni.begin();
    return base::conDuePunti(detto(scritto.fallisce[static_cast<std::size_t>(quale)]),
                             studies::parole(lette.difetto->second));
}

// A number that no editor shows is kept by the file, and no run reads it.
bool soloConservato(const project::Campo& campo) {
    return campo.didascalia.empty() && !project::tiene<int>(campo);
}

}  // namespace

StudioLetto leggi(const DatiProgetto& dati, int nSeg, const StudioScritto& scritto) {
    StudioPronto pronto;
    pronto.scritto = scritto;
    pronto.dati = dati;
    for (const VariazioneScritta& v : scritto.variazioni)
        if (!v.campo.empty()) pronto.varia.push_back(testo(v, scritto.campioni));
    if (pronto.varia.empty()) return {nullptr, traduttore("Scegliere almeno un campo che varia.")};
    auto [varianti, perche] = desk::varianti(dati, scritto, pronto.varia);
    if (varianti == nullptr) return {nullptr, perche};
    if (varianti->numero() > massimoVarianti)
        return {nullptr,
                riempito(traduttore("%1 varianti sono troppe per questa finestra, che ne tiene %2: "
                                    "korven32c serie le scrive in un file."),
                         {std::to_string(varianti->numero()), std::to_string(massimoVarianti)})};
    auto colonne =
        studies::colonne(studies::tirantiPossibili(dati, varianti->campi()), scritto.sicurezza);
    pronto.righe = std::make_shared<const studies::RigheStudio>(varianti->campi(), colonne,
                                                                studies::Formato::csv);
    const auto scritte = condizioni(scritto);
    if (auto sbagliata = difetto(scritto, scritte, *pronto.righe); !sbagliata.empty())
        return {nullptr, std::move(sbagliata)};
    pronto.varianti = std::move(varianti);
    pronto.domanda = {.nSeg = nSeg, .riduzione = scritto.sicurezza, .lunghezza = scritto.sicurezza};
    pronto.conto = {.seme = scritto.seme,
                    .campioni = scritto.campioni,
                    .indipendenti = scritto.campioni && !scritto.ipercubo,
                    .condizioni = scritte};
    return {std::make_shared<const StudioPronto>(std::move(pronto)), {}};
}

std::array<std::string, 3> nomiNumeri(bool campioni, int legge) {
    using studies::TipoLegge;
    std::array<const char*, 3> chiavi{"da", "a", "passo"};
    if (campioni) switch (studies::nomiLeggi()[static_cast<std::size_t>(legge)].tipo) {
            case TipoLegge::normale:
            case TipoLegge::lognormale:
                chiavi = {"media", "scarto tipo", ""};
                break;
            case TipoLegge::uniforme:
                chiavi = {"minimo", "massimo", ""};
                break;
            case TipoLegge::triangolare:
                chiavi = {"minimo", "più probabile", "massimo"};
                break;
        }
    std::array<std::string, 3> nomi;
    for (std::size_t i = 0; i < nomi.size(); ++i)
        if (*chiavi[i] != 0) nomi[i] = traduttore(chiavi[i]);
    return nomi;
}

std::vector<CampoOfferto> campiOfferti(const DatiProgetto& dati, bool campioni) {
    std::vector<CampoOfferto> offerti;
    project::perOgniValore(dati, [&](const project::CampoNominato& c) {
        const std::string nome = project::nomeStabile(*c.campo, c.riga);
        const auto letto = studies::campoDiStudio(dati, nome);
        if (!std::holds_alternative<project::CampoNominato>(letto)) return;
        if (campioni && !project::continuo(*c.campo)) return;
        if (soloConservato(*c.campo)) return;
        auto mostrato = studies::valoreMostrato(c);
        mostrato.titolo += " (" + nome + ")";
        std::string ora = mostrato.codici.empty()
                              ? project::testoDaScrivere(dati, c)
                              : mostrato.detto(project::mostrato(dati, *c.campo, c.riga));
        offerti.push_back({nome, mostrato.testa(), std::move(ora)});
    });
    return offerti;
}

std::string detto(const CriterioScritto& criterio) {
    return studies::valoreMostrato(criterio.risultato).confronto(criterio.segno, criterio.limite);
}

std::vector<RisultatoOfferto> risultatiOfferti(const DatiProgetto& dati, bool sicurezza) {
    std::vector<RisultatoOfferto> offerti;
    for (const studies::Colonna& c : studies::colonne(dati.nTiranti, sicurezza))
        if (c.specie == studies::Specie::numero || c.specie == studies::Specie::uso)
            offerti.push_back({c.nome, studies::valoreMostrato(c.nome).testa()});
    return offerti;
}

}  // namespace korven::desk
