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

// The first reason in the project itself or in the names of what a run writes.
std::string motivo(ModoUscita modoUscita, const UscitaCalcolo& uscita) {
    if (auto motivo = motivoDati(Progetto); !motivo.empty()) return motivo;
    return motivoUscite(fileCorrente, modoUscita, uscita);
}

}  // namespace

void avvisa(base::Dialogo& dialogo, std::string_view testo) {
    dialogo.messaggio(testo, traduttore("ATTENZIONE") + "!", base::Icona::stop);
}

void avvisa(base::Dialogo& dialogo, int fase, const RifiutoSuolo& rifiuto) {
    avvisa(dialogo, testoRifiuto(fase, rifiuto));
}

std::string testoRifiuto(int fase, const RifiutoSuolo& rifiuto) {
    return traduttore("Calcolo interrotto") + ": " + traduttore("fase") + " " +
           std::to_string(fase) + ", " + traduttore("profondità") + " " +
           base::testoNumero(rifiuto.profondita) + " m: " + traduttore(causa(rifiuto.motivo)) + ".";
}

std::optional<Avvio> avviaCalcolo(ModoUscita modoUscita, const UscitaCalcolo& uscita,
                                  base::Dialogo& dialogo) {
    if (const auto perche = motivo(modoUscita, uscita); !perche.empty()) {
        avvisa(dialogo, perche);
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
