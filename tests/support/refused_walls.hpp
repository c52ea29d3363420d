#pragma once

#include <cmath>
#include <memory>

#include "analysis/staged_run.hpp"
#include "support/random_walls.hpp"

namespace korven::test {

/// Ends a run that flips for ever.
class LimiteIterazioni : public analysis::OsservatoreCorsa {
 public:
    explicit LimiteIterazioni(int massimo) : massimo_(massimo) {}
    void iterazione(const analysis::StatoIterazione& stato) override { n_ = stato.iterazione; }
    [[nodiscard]] bool fermata() override { return n_ >= massimo_; }

 private:
    int massimo_;
    int n_ = 0;
};

/// Random walls that the specified run refuses as singular or has not brought to rest after some
/// iterations of a stage. They are drawn from MuriCasuali, in turn with the whole of their length
/// and with 90 to 50 % of it: the shorter, the more of them fall.
class MuriRifiutati {
 public:
    struct Muro {
        project::DatiProgetto dati;
        int fase = 0;            ///< that ended the run
        bool singolare = false;  ///< else it went on too long
    };

    MuriRifiutati(unsigned seme, int nSeg, int maxIterazioni)
        : muri_(seme), nSeg_(nSeg), maxIterazioni_(maxIterazioni) {}

    Muro prossimo() {
        for (;;) {
            auto dati = muri_.prossimo();
            const int decimi = 10 - provati_++ % 6;
            dati.lunghezzaParatia = std::round(dati.lunghezzaParatia * decimi * 10) / 100;
            LimiteIterazioni limite(maxIterazioni_);
            const auto corsa = analysis::calcolaFasi(dati, nSeg_, limite, *arrays_);
            const auto& ultima = corsa.fasi.back();
            if (corsa.finita() || ultima.esito == analysis::EsitoFase::rifiutata) continue;
            return {dati, ultima.fase, ultima.esito == analysis::EsitoFase::singolare};
        }
    }

    /// Walls drawn so far.
    [[nodiscard]] int provati() const { return provati_; }

 private:
    MuriCasuali muri_;
    int nSeg_, maxIterazioni_;
    int provati_ = 0;
    std::unique_ptr<analysis::ArraysCorsa> arrays_ = std::make_unique<analysis::ArraysCorsa>();
};

}  // namespace korven::test
