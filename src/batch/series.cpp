#include <string>
#include <utility>
#include <vector>

#include "analysis/segment_count.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/options/series_options.hpp"
#include "batch/options/wrong_usage.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/reviewed_run.hpp"
#include "batch/run/series_plan.hpp"
#include "batch/run/series_run.hpp"
#include "batch/run/told_remarks.hpp"
#include "project/project_data.hpp"
#include "review/project_review.hpp"

namespace korven::batch {

namespace {

using project::Progetto;

std::string nomi(std::initializer_list<base::Gemelli> opzioni) {
    std::string tutti;
    for (const base::Gemelli& nome : opzioni)
        tutti += (tutti.empty() ? "" : ", ") + nome.mostrato();
    return tutti;
}

// What is asked of the options together.
std::string usoSbagliato(const Opzioni& o) {
    const OpzioniSerie& s = o.serie;
    const bool campioni = s.campioni > 0 || !s.leggi.empty();
    const int fonti = (s.piano.empty() ? 0 : 1) + (s.griglie.empty() ? 0 : 1) + (campioni ? 1 : 0);
    const std::string tutte = nomi({opzionePiano, opzioneGriglia, opzioneCampioni});
    if (fonti == 0) return mancaUnoDi(tutte);
    if (fonti > 1) return insiemeNonAmmesse(tutte);
    if (campioni && s.leggi.empty()) return mancaArgomento(nomi({opzioneLegge}));
    if (campioni && s.campioni == 0) return mancaArgomento(nomi({opzioneCampioni}));
    if (!campioni && (s.ipercubo || !s.rho.empty())) return mancaArgomento(nomi({opzioneCampioni}));
    if (s.ipercubo && !s.rho.empty()) return insiemeNonAmmesse(nomi({opzioneIpercubo, opzioneRho}));
    if (s.riprendi && s.uscita.empty()) return mancaArgomento(nomi({opzioneUscitaSerie}));
    if (s.grafico.empty() != o.disegno.nessuna())
        return s.grafico.empty() ? mancaArgomento(nomi({opzioneGrafico})) : mancaUnoDi(nomiDisegno);
    return {};
}

int rifiuta(int codice, const std::string& perche, Esito& esito) {
    fallisci(codice, perche, esito);
    return codice;
}

int calcolaVarianti(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    if (!review::mostrabile(Progetto)) throw base::ErroreValore();
    const auto nSeg = analysis::leggiNSeg(false);
    if (!nSeg) {
        racconta({base::traduttore(analysis::motivoNSeg())}, esito);
        annota({safety::Causa::rifiutato, {}}, esito);
        return nonEseguito;
    }
    const VariantiScelte scelte = variantiScelte(opzioni.serie);
    if (!scelte.varianti) return rifiuta(scelte.codice, scelte.perche, esito);
    if (const auto perche = colonnaSbagliata(opzioni, *scelte.varianti); !perche.empty())
        return rifiuta(usoErrato, perche, esito);
    if (const auto perche = condizioneSbagliata(opzioni, *scelte.varianti); !perche.empty())
        return rifiuta(usoErrato, perche, esito);
    return eseguiSerie(opzioni, porte, scelte, *nSeg, esito);
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    if (const auto perche = usoSbagliato(opzioni); !perche.empty())
        return rifiuta(usoErrato, perche, esito);
    preparaProgetto(opzioni, esito);
    const Interruzioni interruzioni;
    esito.osservazioni = review::esaminaFile(opzioni.progetto, Progetto);
    esito.esaminato = true;
    raccontaPericoli(esito);
    return calcolaVarianti(opzioni, porte, esito);
}

}  // namespace

RigaComando comandoSerie() {
    RigaComando riga = {{"serie", "series"},
                        "calcola molte varianti di una paratia, una riga per variante",
                        insieme({opzioniProgetto(),
                                 {opzioneMetodo(), opzioneSegmenti(), opzioneEJ()},
                                 opzioniSerie(),
                                 opzioniDisegno()}),
                        esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
