#include "studies/assignments.hpp"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/depth_order.hpp"
#include "project/project_file.hpp"
#include "project/typed_field.hpp"
#include "studies/field_words.hpp"

namespace korven::studies {

namespace {

using base::traduttore;
using project::CampoNominato;
using project::MotivoRifiuto;
using project::Rifiuto;

struct Coppia {
    std::string nome, valore;
};

class Assegnazione {
 public:
    explicit Assegnazione(const project::DatiProgetto& prima) : prima_(prima), esito_{prima, {}} {}

    void leggi(const std::string& scritta) {
        const auto uguale = scritta.find('=');
        if (uguale == std::string::npos) {
            difetto(base::conDuePunti(scritta, traduttore("manca il valore: campo=valore")));
            return;
        }
        Coppia coppia{scritta.substr(0, uguale), scritta.substr(uguale + 1)};
        if (!nomi_.insert(coppia.nome).second)
            difetto(base::conDuePunti(coppia.nome, traduttore("assegnato più di una volta")));
        coppie_.push_back(std::move(coppia));
    }

    // A row may be one that another assignment adds.
    void assegna() {
        std::stable_partition(coppie_.begin(), coppie_.end(), conteggio);
        for (const Coppia& coppia : coppie_) assegna(coppia);
    }

    // What only all fields together tell; of use where each is good.
    void giudicaInsieme() {
        if (!esito_.difetti.empty()) return;
        esito_.dati = project::comeRiletto(esito_.dati);
        for (const project::Disordine& d : project::nuoviDisordini(prima_, esito_.dati))
            difetto(parole(d, esito_.dati));
        giudicaTipi();
    }

    [[nodiscard]] Assegnato esito() && { return std::move(esito_); }

 private:
    static bool conteggio(const Coppia& coppia) {
        const auto campo = project::campoNominato(coppia.nome);
        return campo && std::holds_alternative<int project::DatiProgetto::*>(campo->campo->membro);
    }

    void difetto(std::string parole) { esito_.difetti.push_back(std::move(parole)); }

    void assegna(const Coppia& coppia) {
        const auto campo = project::campoScritto(esito_.dati, coppia.nome);
        if (const auto* rifiuto = std::get_if<Rifiuto>(&campo)) {
            difetto(parole(*rifiuto));
            return;
        }
        const auto& nominato = std::get<CampoNominato>(campo);
        const auto valore = project::valoreScritto(nominato, coppia.valore);
        if (const auto* rifiuto = std::get_if<Rifiuto>(&valore)) {
            difetto(parole(*rifiuto));
            return;
        }
        const auto& suo = std::get<project::ValoreCampo>(valore);
        const auto* numero = std::get_if<double>(&suo);
        if (numero != nullptr && !project::tornaDalFile(*nominato.campo, *numero))
            difetto(parole(Rifiuto{.motivo = MotivoRifiuto::nonConservato,
                                   .nome = coppia.nome,
                                   .scritto = coppia.valore,
                                   .campo = nominato.campo}));
        project::metti(esito_.dati, nominato, suo);
    }

    void giudicaTipi() {
        const auto assegnato = [this](bool project::Sezione::*tipo) {
            return nomi_.contains(std::string(project::campo(tipo).nome));
        };
        const auto& tipi = project::tipiSezione;
        const auto scelti = std::count_if(std::begin(tipi), std::end(tipi),
                                          [this](auto tipo) { return esito_.dati.sezione.*tipo; });
        if (scelti == 1 || std::none_of(std::begin(tipi), std::end(tipi), assegnato)) return;
        std::string nomi;
        for (const auto tipo : tipi)
            nomi.append(nomi.empty() ? "" : ", ").append(project::campo(tipo).nome);
        difetto(base::riempito(traduttore("uno solo di questi deve essere 1, gli altri 0: %1"),
                               {nomi}));
    }

    const project::DatiProgetto& prima_;
    Assegnato esito_;
    std::vector<Coppia> coppie_;
    std::set<std::string> nomi_;
};

}  // namespace

Assegnato assegna(const project::DatiProgetto& prima, std::span<const std::string> scritte) {
    Assegnazione assegnazione(prima);
    for (const std::string& scritta : scritte) assegnazione.leggi(scritta);
    assegnazione.assegna();
    assegnazione.giudicaInsieme();
    return std::move(assegnazione).esito();
}

}  // namespace korven::studies
