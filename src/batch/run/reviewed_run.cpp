#include "batch/run/reviewed_run.hpp"

#include <algorithm>
#include <iostream>

#include "analysis/segment_count.hpp"
#include "base/files.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "commands/project_opening.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

// A run tells the first reason of its refusal itself.
bool giaDetto(const std::string& testo, const Esito& esito) {
    return std::any_of(esito.messaggi.begin(), esito.messaggi.end(), [&testo](const auto& detto) {
        return detto.find(testo) != std::string::npos;
    });
}

}  // namespace

void preparaProgetto(const Opzioni& opzioni, Esito& esito) {
    analysis::contenutoNSeg = opzioni.nseg;
    commands::apriProgetto(opzioni.progetto, opzioni.uscita);
    esito.progettoLetto = true;
    esito.progetto = project::fileCorrente;
    if (opzioni.metodoSpinte) project::Progetto.metodoSpinte = *opzioni.metodoSpinte;
    project::faseGrafico = opzioni.fase;
}

int calcolaConRilievi(const Opzioni& opzioni, Esito& esito, const std::function<int()>& corsa) {
    preparaProgetto(opzioni, esito);
    if (!opzioni.uscita.empty()) base::creaCartella(opzioni.uscita);
    const Interruzioni interruzioni;
    esito.osservazioni = review::esaminaFile(opzioni.progetto, project::Progetto);
    esito.esaminato = true;
    for (const auto& osservazione : esito.osservazioni)
        if (!osservazione.impedisce()) std::cerr << riga(osservazione) << '\n';
    const int codice = corsa();
    for (const auto& osservazione : esito.osservazioni)
        if (osservazione.impedisce() && codice != fatto && !giaDetto(osservazione.testo, esito))
            std::cerr << riga(osservazione) << '\n';
    return codice;
}

}  // namespace korven::batch
