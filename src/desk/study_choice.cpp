#include "desk/study_choice.hpp"

#include <algorithm>
#include <utility>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/typed_field.hpp"
#include "studies/plan/fault_words.hpp"
#include "studies/plan/study_fields.hpp"
#include "studies/plan/typed_grid.hpp"
#include "studies/plan/typed_samples.hpp"
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

// The names of the results that tell something by themselves, in the order of the columns.
struct Parole {
    const char* nome;
    const char* cosa;  // Italian key
    const char* unita;
};
constexpr Parole parole[] = {
    {"spostamento_massimo_m", "Spostamento massimo", "m"},
    {"momento_massimo_kNm", "momento massimo", "kN m/m"},
    {"momento_minimo_kNm", "momento minimo", "kN m/m"},
    {"taglio_massimo_kN", "Taglio massimo", "kN/m"},
    {"momento_resistente_positivo_kNm", "Momento resistente, positivo", "kN m/m"},
    {"momento_resistente_negativo_kNm", "Momento resistente, negativo", "kN m/m"},
    {"uso_momento_positivo", "Uso, momento positivo", ""},
    {"uso_momento_negativo", "Uso, momento negativo", ""},
    {"Vrd2_kN", "Vrd2", "kN/m"},
    {"Vrd3_kN", "Vrd3", "kN/m"},
    {"uso_bielle", "Uso, bielle", ""},
    {"uso_armatura_taglio", "Uso, armatura a taglio", ""},
    {"passiva_usata", "Passiva usata", ""},
    {"riduzione", "Riduzione della resistenza F", ""},
    {"lunghezza_minima_m", "Lunghezza minima", "m"},
};

std::string conUnita(const std::string& cosa, const std::string& unita) {
    return unita.empty() ? cosa : cosa + " [" + unita + "]";
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
    if (const auto lette = studies::leggiCondizioni(scritto.fallisce, *pronto.righe); lette.difetto)
        return {nullptr, lette.difetto->first + ": " + studies::parole(lette.difetto->second)};
    pronto.varianti = std::move(varianti);
    pronto.domanda = {.nSeg = nSeg, .riduzione = scritto.sicurezza, .lunghezza = scritto.sicurezza};
    pronto.conto = {.seme = scritto.seme,
                    .campioni = scritto.campioni,
                    .indipendenti = scritto.campioni && !scritto.ipercubo,
                    .condizioni = scritto.fallisce};
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
        if (campioni && !studies::continuo(*c.campo)) return;
        const std::string unita = project::traParentesi(c.campo->unita);
        offerti.push_back({nome,
                           base::conMaiuscola(traduttore(c.campo->cosa)) + " (" + nome + ")" +
                               (unita.empty() ? "" : " " + unita),
                           project::testoDaScrivere(dati, c)});
    });
    return offerti;
}

std::string titoloRisultato(const std::string& nome) {
    for (const Parole& p : parole)
        if (nome == p.nome) return conUnita(base::conMaiuscola(traduttore(p.cosa)), p.unita);
    constexpr std::string_view tiro = "tiro_", kN = "_kN";
    if (nome.starts_with(tiro) && nome.ends_with(kN))
        return conUnita(riempito(traduttore("Tiro del tirante %1"),
                                 {nome.substr(tiro.size(), nome.size() - tiro.size() - kN.size())}),
                        "kN/m");
    return nome;
}

std::vector<RisultatoOfferto> risultatiOfferti(const DatiProgetto& dati, bool sicurezza) {
    std::vector<RisultatoOfferto> offerti;
    for (const studies::Colonna& c : studies::colonne(dati.nTiranti, sicurezza))
        if (c.specie == studies::Specie::numero || c.specie == studies::Specie::uso)
            offerti.push_back({c.nome, titoloRisultato(c.nome)});
    return offerti;
}

}  // namespace korven::desk
