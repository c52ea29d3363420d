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
