#pragma once

#include <algorithm>
#include <cmath>
#include <random>

#include "project/codes.hpp"
#include "support/wall_builder.hpp"

namespace korven::test {

/// Walls as a designer might type them, drawn at random from a fixed seed: one to four layers, one
/// to four stages that go deeper, up to three anchors, every method and restraint, loads of both
/// signs. All values have at most two decimals. Not every one of them holds.
class MuriCasuali {
 public:
    explicit MuriCasuali(unsigned seme) : caso_(seme) {}

    project::DatiProgetto prossimo() {
        auto d = progettoVuoto();
        d.lunghezzaParatia = tra(8, 18);
        d.rigidezzaEJ = std::round(tra(5000, 60000));
        codici(d);
        strati(d);
        carichi(d);
        tiranti(d);
        fasi(d);
        return d;
    }

    int intero(int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso_); }
    double tra(double da, double a) {
        return std::round(std::uniform_real_distribution<double>(da, a)(caso_) * 100) / 100;
    }

 private:
    void codici(project::DatiProgetto& d) {
        d.vincoloTesta = intero(1, 2);
        d.vincoloPiede = intero(1, 3);
        d.modoSpinte = intero(1, 2);
        d.modoKs = intero(1, 2);
        d.modoTensioni = intero(1, 2);
        d.metodoSpinte = intero(1, 3);
        d.metodoKs = intero(1, 4);
        d.coeffM = std::round(tra(300, 2000));
    }
    void strati(project::DatiProgetto& d) {
        const int n = intero(1, 4);
        for (int j = 1; j <= n; ++j) {
            const double fondo = d.profStrato[j - 1] + tra(2, 7), gammaN = tra(1.6, 2);
            aggiungiStrato(d, {.fondo = fondo,
                               .gammaN = gammaN,
                               .gammaSat = gammaN + tra(0.1, 0.3),
                               .phi = tra(24, 38),
                               .coesione = intero(0, 1) * tra(0, 1.5),
                               .ks = std::round(tra(500, 6000))});
        }
    }
    void carichi(project::DatiProgetto& d) {
        d.sovraccMonte = intero(0, 1) * tra(0, 2);
        d.pressioneOrizz = intero(0, 1) * tra(-0.1, 0.3);
        d.forzaTesta = intero(0, 1) * tra(-1, 1);
        d.momentoTesta = intero(0, 1) * tra(-2, 2);
        d.inclinazioneMonte = intero(0, 1) * tra(0, 12);
        d.faldaMonte = tra(-0.5, 10);
    }
    void tiranti(project::DatiProgetto& d) {
        const int n = intero(0, 3);
        for (int a = 1; a <= n; ++a) {
            const double profondita = a == 1 ? tra(0, 2) : d.profTirante[a - 1] + tra(1, 2.5);
            const double rigidezza = std::round(tra(100, 1500));
            const double pretensione = intero(0, 2) == 0 ? 0 : tra(0, 12);
            aggiungiTirante(d, profondita, rigidezza, pretensione, intero(0, 2));
        }
    }
    void fasi(project::DatiProgetto& d) {
        const int n = intero(1, 4);
        const double quota =
            d.nTiranti > 0 || d.vincoloPiede > project::VincoloPiede::libero ? 0.6 : 0.3;
        const double passo = quota * d.lunghezzaParatia / n;
        for (int k = 1; k <= n; ++k) {
            const double scavo = d.profFase[k - 1] + tra(passo / 2, passo);
            const double tiranti =
                k == 1 ? intero(0, std::min(1, d.nTiranti))
                       : std::min<double>(d.nTiranti, d.tirantiFase[k - 1] + intero(0, 2));
            const double sovraccarico = intero(0, 1) * tra(0, 1);
            aggiungiFase(d, {scavo, tiranti, sovraccarico,
                             std::max(d.faldaMonte, scavo) + intero(0, 1) * tra(0, 2)});
        }
        if (d.nFasi > 2 && intero(0, 3) == 0) d.tirantiFase[d.nFasi] = 0;  // all slackened
    }

    std::mt19937 caso_;
};

}  // namespace korven::test
