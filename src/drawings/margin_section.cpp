#include "drawings/margin_section.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "analysis/pressure_coefficients.hpp"
#include "analysis/run_arrays.hpp"
#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/dashed_line.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/anchor_names.hpp"
#include "project/deepest_excavation.hpp"
#include "project/units.hpp"

namespace korven::drawings {

namespace {

using base::traduttore;
using project::DatiProgetto;

constexpr double altezza = 0.22;       // of all texts
constexpr double sporgenza = 1;        // of the moved wall, at most
constexpr double massimaSalita = 3;    // of the ground
constexpr double larghezzaNomi = 2.7;  // of the names of the excavations
constexpr double lunghezzaTirante = 2, cadutaTirante = 0.5;

std::string metri(double z) { return base::testoDecimali(z, 2) + " m"; }

double alCentimetro(double z) { return std::round(project::inCentimetri(z)) / project::centimetri; }

double fondo(const DatiProgetto& dati) {
    return std::max(dati.lunghezzaParatia, project::scavoMassimo(dati));
}

class Muro {
 public:
    Muro(const DatiProgetto& dati, double x1, double y1, double x2, double y2)
        : dati_(dati),
          x1_(x1),
          x2_(x2),
          xMuro_(x1 + 0.44 * (x2 - x1)),
          sale_(std::clamp((xMuro_ - x1) * std::tan(dati.inclinazioneMonte * analysis::pi / 180),
                           0.0, massimaSalita)),
          yTesta_(y2 - sale_ - 3 * altezza),
          zMassima_(fondo(dati)),
          scala_((yTesta_ - y1 - 4 * altezza) / zMassima_),
          yMassima_(y2) {}

    void terreno() const {
        plot::plotPenna(7);
        plot::linea(xMuro_, y(dati_.lunghezzaParatia), xMuro_, yTesta_);
        plot::linea(xMuro_, yTesta_, x1_, yTesta_ + sale_);
        plot::plotPenna(6);
        for (double x = x1_ + 0.3; x < xMuro_; x += 0.45) {
            const double su = yTesta_ + sale_ * (xMuro_ - x) / (xMuro_ - x1_);
            plot::linea(x, su, x - 0.2, su - 0.2);
        }
        plot::testoDa(x1_, yMassima_ - altezza, altezza, traduttore("LATO MONTE"));
        plot::testoFinoA(x2_, yMassima_ - altezza, altezza, traduttore("LATO VALLE"));
        vincoli();
    }

    // A hinge is a triangle with its point on the wall, a fixed toe a block of ground; below the
    // toe its depth.
    void vincoli() const {
        const analysis::Vincoli vincolo = analysis::vincoli(dati_);
        constexpr double lato = 0.3;
        plot::plotPenna(4);
        const double yPiede = y(dati_.lunghezzaParatia);
        if (vincolo.cernieraTesta)
            plot::plotSimbolo(xMuro_, yTesta_ + lato / 2, lato, "7", 0, plot::conteggioSimbolo);
        if (vincolo.incastroPiede) {
            plot::linea(xMuro_ - 2 * lato, yPiede, xMuro_ + 2 * lato, yPiede);
            rigato(xMuro_ - 2 * lato, yPiede - lato, xMuro_ + 2 * lato, yPiede, 0.12);
        } else if (vincolo.bloccoPiede) {
            plot::plotSimbolo(xMuro_, yPiede - lato / 2, lato, "2", 0, plot::conteggioSimbolo);
        }
        plot::plotPenna(6);
        plot::testoCentrato(xMuro_, yPiede - lato - 1.5 * altezza, altezza,
                            metri(dati_.lunghezzaParatia));
    }

    void acqua(double z, double da, double a) const {
        if (!(z >= 0 && z <= zMassima_)) return;
        plot::plotPenna(6);
        plot::linea(da, y(z), a, y(z));
        const double x = (da + a) / 2, lato = 0.25;
        plot::plotSimbolo(x, y(z) + lato / 2, lato, "7", 0, plot::conteggioSimbolo);
        plot::linea(x - 0.15, y(z) - 0.08, x + 0.15, y(z) - 0.08);
    }

    void acque() const {
        acqua(dati_.faldaMonte, x1_, x1_ + 0.7);  // left of the names of anchors
        if (dati_.nFasi > 0) acqua(dati_.faldaFase[dati_.nFasi], xMuro_ + 0.5, xMuro_ + 1.1);
    }

    void tiranti() const {
        double libera = yMassima_;  // no name above here
        for (int j = 1; j <= dati_.nTiranti; ++j) {
            const double z = dati_.profTirante[j];
            if (!(z >= 0 && z <= zMassima_)) continue;
            plot::plotPenna(4);
            const double xFine = xMuro_ - lunghezzaTirante, yFine = y(z) - cadutaTirante;
            plot::linea(xMuro_, y(z), xFine, yFine);
            plot::linea(xFine + 0.05, yFine + 0.12, xFine - 0.05, yFine - 0.12);
            if (yFine > libera) continue;
            plot::plotPenna(6);
            plot::testoFinoA(xFine - 0.12, yFine - altezza / 3, altezza,
                             project::siglaTirante(dati_, j));
            libera = yFine - 1.3 * altezza;
        }
    }

    // One line for the stages of one depth, to the centimetre, with a leader to its name; names do
    // not overlap.
    void scavi() const {
        std::map<double, std::pair<std::string, int>> quote;
        for (int k = 1; k <= dati_.nFasi; ++k) {
            auto& [nomi, ultima] = quote[alCentimetro(dati_.profFase[k])];
            nomi += (nomi.empty() ? "" : ", ") + std::to_string(k);
            ultima = k;
        }
        double libera = yMassima_;
        for (const auto& [z, quota] : quote) {
            if (!(z >= 0)) continue;
            plot::plotPenna(14 + quota.second);
            const double yNome = std::min(y(z), libera);
            plot::linea(xMuro_, y(z), x2_ - larghezzaNomi - 0.4, y(z));
            plot::plotMuovi(x2_ - larghezzaNomi, yNome, plot::pennaGiu);
            const std::string nome =
                traduttore("fase") + " " + quota.first + base::duePunti() + metri(z);
            const double stretta = larghezzaNomi / plot::larghezzaTesto(altezza, nome);
            plot::testoDa(x2_ - larghezzaNomi + 0.08, yNome - altezza / 2.6,
                          altezza * std::min(1.0, stretta), nome);
            libera = yNome - 1.4 * altezza;
        }
    }

    // Beside the wall where the soil in front can give no more, and the wall as it would move.
    void decisiva(const safety::MargineFase& fase) const {
        plot::plotPenna(9);
        for (const equilibrium::Tratto& t : fase.passiva.alLimite)
            rigato(xMuro_ + 0.12, y(t.a) - 0.03, xMuro_ + 0.42, y(t.da) + 0.03, 0.12);
        const auto& moto = fase.riduzione.moto;
        if (!moto) return;
        const double L = dati_.lunghezzaParatia;
        const double testa = moto->spostamento(0), piede = moto->spostamento(L);
        const double massimo = std::max(std::fabs(testa), std::fabs(piede));
        if (!(massimo > 0) || !std::isfinite(massimo)) return;
        plot::plotPenna(4);
        tratteggia(xMuro_ + sporgenza * testa / massimo, yTesta_,
                   xMuro_ + sporgenza * piede / massimo, y(L));
    }

 private:
    [[nodiscard]] double y(double z) const { return yTesta_ - scala_ * z; }

    const DatiProgetto& dati_;
    double x1_, x2_, xMuro_, sale_, yTesta_, zMassima_, scala_, yMassima_;
};

}  // namespace

void disegnaMuro(const DatiProgetto& dati, const safety::MargineFase* decisiva, double x1,
                 double y1, double x2, double y2) {
    const Muro muro(dati, x1, y1, x2, y2);
    muro.terreno();
    muro.acque();
    muro.tiranti();
    muro.scavi();
    if (decisiva) muro.decisiva(*decisiva);
}

}  // namespace korven::drawings
