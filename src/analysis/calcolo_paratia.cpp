#include "analysis/calcolo_paratia.hpp"

#include <algorithm>
#include <memory>

#include "analysis/input_checks.hpp"
#include "analysis/result_file.hpp"
#include "analysis/run_files.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/segment_count.hpp"
#include "analysis/stage_sequence.hpp"
#include "base/file_names.hpp"
#include "base/number_text.hpp"
#include "base/pointer_guard.hpp"
#include "base/translated_texts.hpp"
#include "project/output_guard.hpp"
#include "structure/partial_factors.hpp"
#include "structure/stiffness_update.hpp"

namespace korven::analysis {

namespace {

using base::traduttore;
using project::fileCorrente;
using project::Progetto;

void avvisa(base::Dialogo& dialogo, std::string_view testo) {
    dialogo.messaggio(testo, traduttore("ATTENZIONE") + "!", base::Icona::stop);
    erroreCalcolo = true;
}

std::string messaggioRifiuto(int fase, const RifiutoSuolo& rifiuto) {
    return traduttore("Calcolo interrotto") + ": " + traduttore("fase") + " " +
           std::to_string(fase) + ", " + traduttore("profondità") + " " +
           base::testoNumero(rifiuto.profondita) + " m: " + traduttore(causa(rifiuto.motivo)) + ".";
}

// A stage that asks for more anchors than there can be.
std::string motivoTiranti() {
    for (int k = 1; k <= Progetto.nFasi; ++k)
        if (!(Progetto.tirantiFase[k] < project::massimoTiranti + 1))
            return traduttore("fase") + " " + std::to_string(k) + ": " +
                   traduttore("più tiranti di quanti ne tiene la tabella (20)") + ": " +
                   base::testoNumero(Progetto.tirantiFase[k]);
    return {};
}

void racconta(int fase, const RisultatoFase& risultato, base::Dialogo& dialogo) {
    if (risultato.esito == EsitoFase::singolare) avvisa(dialogo, traduttore(messaggioSingolare));
    if (risultato.esito == EsitoFase::rifiutata)
        avvisa(dialogo, messaggioRifiuto(fase, *risultato.rifiuto));
    erroreCalcolo = true;  // a stop by the user needs no message
}

void calcolaFasi(int nSeg, const structure::MomentiResistenti& MRd, const PorteCalcolo& porte) {
    FileInCorso file(porte.avanzamento);
    const auto corsa = preparaCorsa(Progetto, nSeg);
    ChiusuraRisultati chiusura{MRd[2], MRd[1], -oltreOgniValore, oltreOgniValore, fsAzioni};
    stopCalcolo = false;

    for (int k = 1; k <= Progetto.nFasi; ++k) {
        const RisultatoFase risultato = risolviFase(k, Progetto, *corsa, porte.avanzamento);
        if (risultato.esito != EsitoFase::convergente) {
            racconta(k, risultato, porte.dialogo);
            return;
        }
        file.aggiungi(testoFase(*corsa));
        chiusura.mMaxTotale = std::max(chiusura.mMaxTotale, risultato.estremi.mMaxFase);
        chiusura.mMinTotale = std::min(chiusura.mMinTotale, risultato.estremi.mMinFase);
    }
    file.aggiungi(testoChiusura(chiusura));
    file.finito();
}

}  // namespace

std::string motivoUscite(const std::string& progetto, ModoUscita modoUscita,
                         const UscitaCalcolo& uscita) {
    if (const auto motivo = project::motivoNome(progetto); !motivo.empty())
        return traduttore(motivo);
    const ProgettoAlSicuro sicuro(progetto);
    const std::string risultati = base::nomeRisultati(progetto);
    auto file = uscita.file(modoUscita, risultati);
    file.insert(file.begin(), risultati);
    const auto vietato = std::find_if(file.begin(), file.end(), project::prendeIlPostoDelProgetto);
    if (vietato == file.end()) return {};
    const std::string colpito = project::progettoColpito(*vietato);
    return traduttore(
               "Un file del calcolo prenderebbe il posto del progetto, i calcoli non possono "
               "pertanto essere eseguiti. Dare al progetto un altro nome o scegliere un'altra "
               "cartella") +
           ": " + *vietato + (colpito == *vietato ? "" : " (" + colpito + ")");
}

void CalcoloParatia(ModoUscita modoUscita, const PorteCalcolo& porte) {
    const base::GuardiaPuntatore clessidra(porte.dialogo);
    fsAzioni = structure::fsAzioniSezione;
    erroreCalcolo = false;
    if (const auto motivo = motivoRifiuto(Progetto); !motivo.empty())
        return avvisa(porte.dialogo, traduttore(motivo));
    if (const auto motivo = motivoTiranti(); !motivo.empty()) return avvisa(porte.dialogo, motivo);
    if (const auto motivo = motivoFerri(Progetto); !motivo.empty())
        return avvisa(porte.dialogo, motivo);
    if (const auto motivo = motivoUscite(fileCorrente, modoUscita, porte.uscita); !motivo.empty())
        return avvisa(porte.dialogo, motivo);
    const ProgettoAlSicuro sicuro(fileCorrente);

    NomeRisultati nome;
    structure::MomentiResistenti MRd;
    structure::aggiornaEJ(Progetto.sezione, Progetto.sforzoNormale, Progetto.rigidezzaEJ, MRd,
                          porte.dialogo);
    if (Progetto.rigidezzaEJ == 0) {
        nome.lascia();
        return avvisa(porte.dialogo, traduttore(messaggioSenzaEJ));
    }
    const auto nSeg = leggiNSeg(vincoli(Progetto).incastroPiede);
    if (!nSeg) return avvisa(porte.dialogo, traduttore(motivoNSeg()));

    if (porte.guardia != nullptr &&
        !porte.guardia->occupa(fileCorrente, porte.dialogo, porte.avanzamento))
        return;
    if (!risultatiAggiornati()) calcolaFasi(*nSeg, MRd, porte);
    if (erroreCalcolo) return;

    if (modoUscita)
        porte.uscita.disegnaDiagramma(*modoUscita);
    else
        porte.uscita.scriviRelazione();
}

}  // namespace korven::analysis
