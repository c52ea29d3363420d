#include "project/project_data.hpp"

namespace korven::project {

DatiProgetto Progetto;
std::string fileCorrente;
bool modificato = false;
int faseGrafico = 0;

// Only these rows of the layer table are cleared, half of its capacity: what lies beyond is out of
// reach once nStrati is 0, and a file or an editor fills a row before it counts it.
static constexpr int stratiAzzerati = 50;

// The rows of the stage table that are ever used; two of its columns are longer.
static constexpr int fasiAzzerate = 20;

template <class T, std::size_t n>
static void tieniOltre(int ultima, const base::Tabella<T, n>& da, base::Tabella<T, n>& a) {
    for (long i = ultima + 1; i <= static_cast<long>(n); ++i) a[i] = da[i];
}

void azzera(DatiProgetto& dati) {
    DatiProgetto nuovo;
    tieniOltre(stratiAzzerati, dati.profStrato, nuovo.profStrato);
    tieniOltre(stratiAzzerati, dati.gammaN, nuovo.gammaN);
    tieniOltre(stratiAzzerati, dati.gammaSat, nuovo.gammaSat);
    tieniOltre(stratiAzzerati, dati.phiStrato, nuovo.phiStrato);
    tieniOltre(stratiAzzerati, dati.coesione, nuovo.coesione);
    tieniOltre(stratiAzzerati, dati.suStrato, nuovo.suStrato);
    tieniOltre(stratiAzzerati, dati.ksStrato, nuovo.ksStrato);
    tieniOltre(stratiAzzerati, dati.descrStrato, nuovo.descrStrato);
    tieniOltre(fasiAzzerate, dati.sovraccFase, nuovo.sovraccFase);
    tieniOltre(fasiAzzerate, dati.faldaFase, nuovo.faldaFase);
    nuovo.gammaAcqua = 1;
    nuovo.sezione.tipoDiaframma = true;
    dati = nuovo;
}

void azzeraProgetto() {
    azzera(Progetto);
    faseGrafico = 0;
}

}  // namespace korven::project
