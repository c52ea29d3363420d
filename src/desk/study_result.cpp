#include "desk/study_result.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "live/wall.hpp"
#include "project/deepest_excavation.hpp"
#include "safety/words.hpp"
#include "studies/assignments.hpp"
#include "studies/shown_columns.hpp"

namespace korven::desk {

namespace {

using base::traduttore;

// Keeps the rows of a study and counts them.
class Tenute : public studies::UscitaStudio {
 public:
    Tenute(StudioFatto& fatto, const std::function<bool(std::uint64_t)>& prosegui)
        : fatto_(fatto), prosegui_(prosegui) {}

    void prendi(const studies::Righe& righe) override {
        const std::uint64_t primo = fatto_.numero();
        fatto_.valori.insert(fatto_.valori.end(), righe.valori.begin(), righe.valori.end());
        for (std::uint64_t i = primo; i < fatto_.numero(); ++i)
            fatto_.conto.riga(i, fatto_.riga(i));
        fatto_.conto.limitati(righe.limitati);
    }
    bool prosegui(std::uint64_t fatte) override { return prosegui_(fatte); }

 private:
    StudioFatto& fatto_;
    const std::function<bool(std::uint64_t)>& prosegui_;
};

std::string soloNomi(const std::vector<std::string>& assegnate) {
    std::string testo;
    for (const std::string& una : assegnate) testo += (testo.empty() ? "" : "\n") + una;
    return testo;
}

// The project of the study with these fields.
bool stessoMuro(const StudioFatto& fatto, const std::vector<std::string>& campi,
                const project::DatiProgetto& dati) {
    const auto dello = studies::assegna(fatto.studio->dati, campi);
    return dello.difetti.empty() && dello.dati == dati;
}

// The wall is computed once more: a row has no sentences.
std::string avviso(const StudioFatto& fatto, std::uint64_t i, const project::DatiProgetto& dati) {
    const auto parete = live::calcola(dati, fatto.studio->domanda.nSeg);
    if (!parete.rifiuto.empty())
        return base::conDuePunti(traduttore("Nessun calcolo accetta i dati di questa variante"),
                                 parete.rifiuto);
    if (parete.perche)
        return base::conDuePunti(traduttore("Questa variante non è in equilibrio"),
                                 safety::inBreve(*parete.perche));
    if (project::piedeScavato(dati))
        return traduttore(
            "In questa variante lo scavo raggiunge o supera il piede della paratia: "
            "non è una parete da costruire.");
    std::string criteri;
    const auto& condizioni = fatto.conto.forma().condizioni;
    for (std::size_t k = 0; k < condizioni.size(); ++k)
        if (condizioni[k].vale(fatto.riga(i)))
            criteri.append(criteri.empty() ? "" : ", ")
                .append(detto(fatto.studio->scritto.fallisce[k]));
    return criteri.empty() ? criteri
                           : base::conDuePunti(traduttore("Questa variante fallisce"), criteri);
}

}  // namespace

std::shared_ptr<const StudioFatto> esegui(const std::shared_ptr<const StudioPronto>& studio,
                                          int fili,
                                          const std::function<bool(std::uint64_t)>& prosegui) {
    auto fatto = std::make_shared<StudioFatto>(
        StudioFatto{studio, {}, studies::ContoStudio(studio->dati, *studio->righe, studio->conto)});
    Tenute uscita(*fatto, prosegui);
    const studies::Studio corsa{*studio->varianti, studio->dati, studio->domanda, *studio->righe};
    studies::esegui(corsa, {0, studio->varianti->numero()}, fili, uscita);
    return fatto;
}

std::vector<std::string> frasi(const StudioFatto& fatto) {
    auto dette = fatto.conto.fatti();
    if (!fatto.intero())
        dette.insert(dette.begin(),
                     traduttore("Lo studio è stato fermato: i numeri sono delle varianti "
                                "calcolate fin lì."));
    return dette;
}

std::vector<std::string> avvisi(const StudioFatto& fatto) { return fatto.conto.avvisi(); }

std::string csv(const StudioFatto& fatto) {
    std::string testo = fatto.studio->righe->testata();
    for (std::uint64_t i = 0; i < fatto.numero(); ++i)
        fatto.studio->righe->scrivi(i, fatto.riga(i), testo);
    return testo;
}

std::vector<std::string> assegnazioni(const StudioFatto& fatto, std::uint64_t i) {
    std::vector<std::string> tutte;
    const auto riga = fatto.riga(i);
    for (std::size_t j = 0; j < fatto.studio->righe->campi(); ++j)
        tutte.push_back(fatto.studio->righe->nomi()[j] + "=" + base::tutteLeCifre(riga[j]));
    return tutte;
}

std::vector<std::string> valoriDetti(const StudioFatto& fatto, std::uint64_t i) {
    std::vector<std::string> detti;
    const auto riga = fatto.riga(i);
    std::size_t j = 0;
    for (const project::CampoNominato& campo : fatto.studio->righe->nominati()) {
        const auto valore = studies::valoreMostrato(campo);
        detti.push_back(base::conDuePunti(valore.titolo, valore.detto(riga[j++])));
    }
    return detti;
}

VariantePresa prendi(const StudioFatto& fatto, std::uint64_t i, const project::DatiProgetto& dati) {
    const auto scritte = assegnazioni(fatto, i);
    auto presa = studies::assegna(dati, scritte);
    if (!presa.difetti.empty()) return {dati, soloNomi(presa.difetti), {}};
    if (!stessoMuro(fatto, scritte, presa.dati))
        return {dati,
                traduttore("Il progetto è cambiato da quando lo studio è stato calcolato: "
                           "calcolarlo di nuovo."),
                {}};
    std::string detto = avviso(fatto, i, presa.dati);
    return {std::move(presa.dati), {}, std::move(detto)};
}

bool attuale(const StudioFatto& fatto, const StudioScritto& scritto,
             const project::DatiProgetto& dati) {
    if (!(fatto.studio->scritto == scritto)) return false;
    if (fatto.studio->dati == dati) return true;
    if (fatto.numero() == 0) return false;
    const auto scritte = assegnazioni(fatto, 0);
    const auto presa = studies::assegna(dati, scritte);
    return presa.difetti.empty() && stessoMuro(fatto, scritte, presa.dati);
}

}  // namespace korven::desk
