#include <cmath>

#include "analysis/result_file.hpp"
#include "base/file_error.hpp"
#include "base/value_error.hpp"
#include "fuzz_target.hpp"
#include "report/calculation_report.hpp"

// Any bytes as a result file of a wall in 4 segments. What can be read holds numbers alone and
// gives a report, unless a stage asks for more anchors than the table holds or a value is too large
// to be shown.

namespace {

using namespace korven;

constexpr int nNodi = 5;

void finiti(const analysis::RisultatiFase& fase) {
    for (const auto* colonna :
         {&fase.sigmaVv, &fase.Ehv, &fase.k0v, &fase.kav, &fase.kpv, &fase.sigmaVm, &fase.Ehm,
          &fase.k0m, &fase.kam, &fase.kpm, &fase.yNodo, &fase.momentoNodo, &fase.taglioNodo})
        for (int i = 1; i <= nNodi; ++i)
            test::pretendi(std::isfinite((*colonna)[i]), "a stage holds finite numbers alone");
}

results::DatiRelazione leggi(std::string contenuto) {
    analysis::LettoreRisultati file(base::LettoreRighe("prova.OUT", std::move(contenuto)), nNodi);
    results::DatiRelazione dati;
    dati.nNodi = nNodi;
    file.leggiTesta(dati.progetto);
    dati.passo = dati.progetto.lunghezzaParatia / (nNodi - 1);
    for (int k = 1; k <= dati.progetto.nFasi; ++k) {
        file.leggiFase(dati.fasi.emplace_back());
        finiti(dati.fasi.back());
    }
    dati.chiusura = file.leggiChiusura();
    return dati;
}

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    try {
        const std::string relazione =
            report::testoRelazione(leggi(test::contenutoFile(byte, quanti)), "muro.kvd");
        test::pretendi(relazione.ends_with("#ENDDOCUMENT\r\n"), "a report has its end");
    } catch (const base::ErroreFile&) {
    } catch (const base::ErroreIndice&) {
    } catch (const base::ErroreValore&) {  // too large to be shown
    }
    return 0;
}
