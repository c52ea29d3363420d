#include "analysis/run_start.hpp"

#include <string>

#include "analysis/input_checks.hpp"
#include "analysis/run_files.hpp"
#include "analysis/segment_count.hpp"
#include "analysis/stiffness_update.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::analysis {

namespace {

using base::traduttore;
using project::fileCorrente;
using project::Progetto;

// A stage that asks for more anchors than there can be.
std::string motivoTiranti() {
    for (int k = 1; k <= Progetto.nFasi; ++k)
        if (!(Progetto.tirantiFase[k] < project::massimoTiranti + 1))
            return traduttore("fase") + " " + std::to_string(k) + ": " +
                   traduttore("più tiranti di quanti ne tiene la tabella (20)") + ": " +
                   base::testoNumero(Progetto.tirantiFase[k]);
    return {};
}

// The first reason in the project itself or in the names of what a run writes.
std::string motivoDati(ModoUscita modoUscita, const UscitaCalcolo& uscita) {
    if (const auto motivo = motivoRifiuto(Progetto); !motivo.empty()) return traduttore(motivo);
    if (auto motivo = motivoTiranti(); !motivo.empty()) return motivo;
    if (auto motivo = motivoFerri(Progetto); !motivo.empty()) return motivo;
    return motivoUscite(fileCorrente, modoUscita, uscita);
}

}  // namespace

void avvisa(base::Dialogo& dialogo, std::string_view testo) {
    dialogo.messaggio(testo, traduttore("ATTENZIONE") + "!", base::Icona::stop);
}

void avvisa(base::Dialogo& dialogo, int fase, const RifiutoSuolo& rifiuto) {
    avvisa(dialogo, traduttore("Calcolo interrotto") + ": " + traduttore("fase") + " " +
                        std::to_string(fase) + ", " + traduttore("profondità") + " " +
                        base::testoNumero(rifiuto.profondita) +
                        " m: " + traduttore(causa(rifiuto.motivo)) + ".");
}

std::optional<Avvio> avviaCalcolo(ModoUscita modoUscita, const UscitaCalcolo& uscita,
                                  base::Dialogo& dialogo) {
    if (const auto motivo = motivoDati(modoUscita, uscita); !motivo.empty()) {
        avvisa(dialogo, motivo);
        return std::nullopt;
    }
    const ProgettoAlSicuro sicuro(fileCorrente);
    NomeRisultati nome;
    Avvio avvio;
    aggiornaEJ(Progetto.sezione, Progetto.sforzoNormale, Progetto.rigidezzaEJ, avvio.MRd, dialogo);
    if (Progetto.rigidezzaEJ == 0) {
        nome.lascia();
        avvisa(dialogo, traduttore(messaggioSenzaEJ));
        return std::nullopt;
    }
    const auto nSeg = leggiNSeg(vincoli(Progetto).incastroPiede);
    if (!nSeg) {
        avvisa(dialogo, traduttore(motivoNSeg()));
        return std::nullopt;
    }
    avvio.nSeg = *nSeg;
    return avvio;
}

}  // namespace korven::analysis
