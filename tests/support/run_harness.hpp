#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "analysis/result_file.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/segment_count.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "support/dialog_double.hpp"
#include "support/output_double.hpp"
#include "support/progress_double.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

/// A run from the program-wide project to its result file, in a folder of its own. Restores the
/// program-wide state at its end.
class Banco {
 public:
    explicit Banco(const project::DatiProgetto& dati, int nSeg = 50) {
        project::Progetto = dati;
        project::fileCorrente = progetto();
        segmenti(nSeg);
    }
    Banco(const Banco&) = delete;
    Banco& operator=(const Banco&) = delete;
    ~Banco() {
        project::azzeraProgetto();
        project::fileCorrente.clear();
        analysis::contenutoNSeg.reset();
    }

    [[nodiscard]] std::string progetto() const { return cartella / "muro.kvd"; }
    [[nodiscard]] std::string risultati() const { return cartella / "muro.OUT"; }
    [[nodiscard]] bool haRisultati() const { return base::esisteFile(risultati()); }

    void segmenti(int nSeg) {
        nNodi_ = nSeg + 1;
        analysis::contenutoNSeg = std::to_string(nSeg);
    }

    void calcola(analysis::ModoUscita modoUscita = analysis::relazione) {
        analysis::CalcoloParatia(modoUscita, {dialogo, avanzamento, uscita});
    }

    /// The stage tables of the result file, element 0 is stage 1.
    std::vector<analysis::RisultatiFase> leggi() {
        analysis::LettoreRisultati file(risultati(), nNodi_);
        testa = {};
        file.leggiTesta(testa);
        std::vector<analysis::RisultatiFase> fasi(static_cast<std::size_t>(testa.nFasi));
        for (auto& fase : fasi) file.leggiFase(fase);
        chiusura = file.leggiChiusura();
        return fasi;
    }

    CartellaProvvisoria cartella;
    DialogoFinto dialogo;
    AvanzamentoFinto avanzamento;
    UscitaFinta uscita;
    project::DatiProgetto testa;
    analysis::ChiusuraRisultati chiusura;

 private:
    int nNodi_ = 0;
};

/// The stage tables that a run of `dati` leaves in its result file. Empty if the run is refused,
/// singular, or needs more than `massimoIterazioni` in a stage (it's stopped then as by the user).
inline std::vector<analysis::RisultatiFase> fasiDi(const project::DatiProgetto& dati, int nSeg,
                                                   int massimoIterazioni = 60) {
    Banco banco(dati, nSeg);
    banco.avanzamento.adOgniIterazione = [=](const analysis::StatoIterazione& stato) {
        if (stato.iterazione >= massimoIterazioni) analysis::stopCalcolo = true;
    };
    banco.calcola();
    if (analysis::erroreCalcolo) return {};
    return banco.leggi();
}

}  // namespace korven::test
