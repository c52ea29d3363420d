#include "project/project_data.hpp"

#include <type_traits>

#include "project/field_table.hpp"

namespace korven::project {

DatiProgetto Progetto;
std::string fileCorrente;
bool modificato = false;
int faseGrafico = 0;

// Only these rows of the layer table are cleared, half of its capacity: what lies beyond is out of
// reach once nStrati is 0, and a file or an editor fills a row before it counts it.
static constexpr int stratiAzzerati = 50;

// The rows of the stage table that are ever used, all that the anchors and more than the headings
// have; two of its columns are longer.
static constexpr int fasiAzzerate = 20;

void azzera(DatiProgetto& dati) {
    DatiProgetto nuovo;
    const auto tieniOltre = [&](auto colonna, int ultima) {
        constexpr int capacita = std::remove_reference_t<decltype(nuovo.*colonna)>::capacita;
        for (int i = ultima + 1; i <= capacita; ++i) (nuovo.*colonna)[i] = (dati.*colonna)[i];
    };
    for (const Campo& campo : campi())
        std::visit(
            [&]<class Record, class T>(T Record::*membro) {
                if constexpr (eTabella<T>)
                    tieniOltre(membro,
                               campo.parte == Parte::strati ? stratiAzzerati : fasiAzzerate);
            },
            campo.membro);
    nuovo.gammaAcqua = 1;
    nuovo.sezione.tipoDiaframma = true;
    dati = nuovo;
}

void azzeraProgetto() {
    azzera(Progetto);
    faseGrafico = 0;
}

}  // namespace korven::project
