#include "example_run.hpp"

#include <stdexcept>

#include "analysis/plastic_iteration.hpp"
#include "analysis/stage_sequence.hpp"
#include "project/project_file.hpp"

namespace korven::bench {

project::DatiProgetto esempio(const std::string& nome) {
    auto file = base::LettoreRighe::apri(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd");
    project::DatiProgetto dati;
    project::leggiDati(file, dati);
    return dati;
}

project::DatiProgetto scavatoIn(int fasi) {
    auto dati = esempio("diaframma_due_ordini");
    const double fondo = dati.profFase[dati.nFasi], falda = dati.faldaFase[dati.nFasi];
    dati.nFasi = fasi;
    for (int k = 1; k <= fasi; ++k) {
        dati.profFase[k] = fondo * k / fasi;
        dati.faldaFase[k] = falda;
        dati.sovraccFase[k] = 0;
        dati.tirantiFase[k] = 0;
        for (int a = 1; a <= dati.nTiranti; ++a)
            if (dati.profTirante[a] + 0.5 <= dati.profFase[k]) ++dati.tirantiFase[k];
    }
    return dati;
}

std::unique_ptr<analysis::ArraysCorsa> corsaConvergente(project::DatiProgetto dati, int nSeg) {
    auto corsa = std::make_unique<analysis::ArraysCorsa>();
    analysis::preparaCorsa(dati, nSeg, *corsa);
    analysis::OsservatoreCorsa nessuno;
    for (int k = 1; k <= dati.nFasi; ++k)
        if (analysis::risolviFase(k, dati, *corsa, nessuno).esito !=
            analysis::EsitoFase::convergente)
            throw std::runtime_error("no rest in stage " + std::to_string(k));
    analysis::classificaNodi(dati, *corsa);
    analysis::applicaTiranti(dati, *corsa);
    return corsa;
}

}  // namespace korven::bench
