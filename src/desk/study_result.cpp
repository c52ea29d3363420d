#include "desk/study_result.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
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

}  // namespace

std::shared_ptr<const StudioFatto> esegui(const std::shared_ptr<const StudioPronto>& studio,
                                          int fili,
                                          const std::function<bool(std::uint64_t)>& prosegui) {
    auto fatto = std::make_shared<StudioFatto>(
        StudioFatto{studio, {}, studies::ContoStudio(*studio->righe, studio->conto)});
    Tenute uscita(*fatto, prosegui);
    const studies::Studio corsa{*studio->varianti, studio->dati, studio->domanda, *studio->righe};
    studies::esegui(corsa, {0, studio->varianti->numero()}, fili, uscita);
    return fatto;
}

std::vector<std::string> frasi(const StudioFatto& fatto) {
    std::vector<std::string> valori, criteri;
    for (const auto& uno : studies::valoriMostrati(*fatto.studio->righe))
        valori.push_back(uno.titolo);
    std::ranges::transform(fatto.studio->scritto.fallisce, std::back_inserter(criteri), detto);
    auto dette = fatto.conto.fatti(std::move(valori), studies::causeMostrate(), std::move(criteri));
    if (!fatto.intero())
        dette.insert(dette.begin(),
                     traduttore("Lo studio è stato fermato: i numeri sono delle varianti "
                                "calcolate fin lì."));
    return dette;
}

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

VariantePresa prendi(const StudioFatto& fatto, std::uint64_t i, const project::DatiProgetto& dati) {
    const auto scritte = assegnazioni(fatto, i);
    auto presa = studies::assegna(dati, scritte);
    if (!presa.difetti.empty()) return {dati, soloNomi(presa.difetti)};
    const auto dello = studies::assegna(fatto.studio->dati, scritte);
    if (!dello.difetti.empty() || !(dello.dati == presa.dati))
        return {dati, traduttore("Il progetto è cambiato da quando lo studio è stato calcolato: "
                                 "calcolarlo di nuovo.")};
    return {std::move(presa.dati), {}};
}

}  // namespace korven::desk
