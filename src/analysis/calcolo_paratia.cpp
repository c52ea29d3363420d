#include "analysis/calcolo_paratia.hpp"

#include <algorithm>

#include "analysis/result_file.hpp"
#include "analysis/run_closing.hpp"
#include "analysis/run_files.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/run_start.hpp"
#include "analysis/staged_run.hpp"
#include "base/folders/file_names.hpp"
#include "base/pointer_guard.hpp"
#include "base/translated_texts.hpp"
#include "project/output_guard.hpp"
#include "structure/partial_factors.hpp"

namespace korven::analysis {

namespace {

using base::traduttore;
using project::fileCorrente;
using project::Progetto;

// Takes a run into the program: its water tables into `Progetto`, its stages into the result file,
// and the stop of the user into it.
class CorsaSuFile : public OsservatoreCorsa {
 public:
    CorsaSuFile(FileInCorso& file, int nNodi, Avanzamento& avanzamento)
        : file_(file), nNodi_(nNodi), avanzamento_(avanzamento) {}
    void inizio(int fase) override {
        Progetto.faldaValle = Progetto.faldaFase[fase];
        avanzamento_.inizio(fase);
    }
    void iterazione(const StatoIterazione& stato) override { avanzamento_.iterazione(stato); }
    [[nodiscard]] bool fermata() override { return stopCalcolo || avanzamento_.fermata(); }
    void fine(const FaseCalcolata& fase) override {
        file_.aggiungi(testoFase(fase.risultati, nNodi_));
        avanzamento_.fine(fase);
    }
    void caduta(const FaseCalcolata& fase) override { avanzamento_.caduta(fase); }

 private:
    FileInCorso& file_;
    int nNodi_;
    Avanzamento& avanzamento_;
};

void racconta(const FaseCalcolata& fase, base::Dialogo& dialogo) {
    if (fase.esito == EsitoFase::singolare) avvisa(dialogo, traduttore(messaggioSingolare));
    if (fase.esito == EsitoFase::rifiutata) avvisa(dialogo, fase.fase, *fase.rifiuto);
    erroreCalcolo = true;  // a stop by the user needs no message
}

void aggiornaRisultati(const Avvio& avvio, const PorteCalcolo& porte) {
    FileInCorso file(porte.avanzamento, porte.disco);
    stopCalcolo = false;
    CorsaSuFile seguito(file, avvio.nSeg + 1, porte.avanzamento);
    const EsitoCorsa corsa = calcolaFasi(Progetto, avvio.nSeg, seguito);
    if (!corsa.finita()) return racconta(corsa.fasi.back(), porte.dialogo);
    file.aggiungi(testoChiusura(chiusura(avvio.MRd, corsa)));
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
    const auto avvio = avviaCalcolo(modoUscita, porte.uscita, porte.dialogo);
    if (!avvio) {
        erroreCalcolo = true;
        return;
    }
    const ProgettoAlSicuro sicuro(fileCorrente);
    const NomeRisultati nome;
    if (porte.guardia != nullptr &&
        !porte.guardia->occupa(fileCorrente, porte.dialogo, porte.avanzamento))
        return;
    if (!risultatiAggiornati()) aggiornaRisultati(*avvio, porte);
    if (erroreCalcolo) return;

    if (modoUscita)
        porte.uscita.disegnaDiagramma(*modoUscita);
    else
        porte.uscita.scriviRelazione();
}

}  // namespace korven::analysis
