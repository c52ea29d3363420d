#include "project/project_data.hpp"

namespace korven::project {

DatiProgetto Progetto;
std::string fileCorrente;
bool modificato = false;
int faseGrafico = 0;

// Only these rows of the layer table are cleared, half of its capacity: what lies beyond is out of
// reach once nStrati is 0, and a file or an editor fills a row before it counts it.
static constexpr int stratiAzzerati = 50;

void azzera(DatiProgetto& dati) {
    DatiProgetto nuovo;
    for (int i = stratiAzzerati + 1; i <= massimoStrati; ++i) {
        nuovo.profStrato[i] = dati.profStrato[i];
        nuovo.gammaN[i] = dati.gammaN[i];
        nuovo.gammaSat[i] = dati.gammaSat[i];
        nuovo.phiStrato[i] = dati.phiStrato[i];
        nuovo.coesione[i] = dati.coesione[i];
        nuovo.suStrato[i] = dati.suStrato[i];
        nuovo.ksStrato[i] = dati.ksStrato[i];
        nuovo.descrStrato[i] = dati.descrStrato[i];
    }
    nuovo.gammaAcqua = 1;
    nuovo.sezione.tipoDiaframma = true;
    dati = nuovo;
}

void azzeraProgetto() {
    azzera(Progetto);
    faseGrafico = 0;
}

}  // namespace korven::project
