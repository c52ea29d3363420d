#pragma once

#include "commands/rescue/rescue_offer.hpp"
#include "support/sample_projects.hpp"

namespace korven::test {

/// The small wall as its file holds it, and the same after an hour of work that was never saved.
class OffertaDiProva {
 public:
    OffertaDiProva() {
        recuperato_.lunghezzaParatia = 14.5;
        recuperato_.nTiranti += 1;
        recuperato_.profTirante[recuperato_.nTiranti] = 4;
        recuperato_.rigTirante[recuperato_.nTiranti] = 250;
        recuperato_.pretTirante[recuperato_.nTiranti] = 20;
        recuperato_.titoli[1] = "Lotto 2, variante con un tirante in più e paratia allungata";
        recuperato_.metodoSpinte = 3;
        differenze_ = project::differenze(aperto_, recuperato_);
    }
    [[nodiscard]] commands::OffertaRecupero offerta() const {
        return {"/home/anna/Lavori/Autorimessa di via Verdi/muro.kvd",
                salvato,
                aperto_,
                "/home/anna/Lavori/Autorimessa di via Verdi/muro_recuperato.kvd",
                1790000000,
                recuperato_,
                differenze_,
                altri};
    }

    std::optional<std::time_t> salvato = 1789996400;  ///< an hour before
    std::size_t altri = 0;

 private:
    project::DatiProgetto aperto_ = progettoSemplice(), recuperato_ = progettoSemplice();
    std::vector<project::Differenza> differenze_;
};

}  // namespace korven::test
