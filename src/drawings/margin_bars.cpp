#include "drawings/margin_bars.hpp"

#include <algorithm>
#include <cmath>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/dashed_line.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

namespace korven::drawings {

namespace {

constexpr double altezzaTitolo = 0.28, altezzaNumeri = 0.22;
constexpr double spazioFasi = 0.9;    // left of the axis, for the numbers of the stages
constexpr double spazioNumeri = 1.3;  // right of it, for the numbers of the bars
constexpr double massimaRiga = 1.1;   // pitch of few bars
constexpr double mezzaBarra = 0.3;    // half the height of a bar, of the pitch
constexpr double dente = 0.12;        // of a broken edge
constexpr double rado = 0.2, fitto = 0.09;

class Quadro {
 public:
    Quadro(const Barre& b, double x1, double y1, double x2, double y2)
        : b_(b),
          xFasi_(x1),
          xFine_(x2),
          x1_(x1 + spazioFasi),
          x2_(x2 - spazioNumeri),
          y1_(y1 + 2 * altezzaNumeri),
          y2_(y2 - 2.2 * altezzaTitolo - 1.5 * altezzaNumeri),
          yTitolo_(y2 - altezzaTitolo) {}

    void disegna() const {
        plot::plotPenna(3);
        const double largo = std::max(plot::larghezzaTesto(altezzaTitolo, b_.titolo), 1e-9);
        plot::testoDa(xFasi_, yTitolo_, altezzaTitolo * std::min(1.0, (xFine_ - xFasi_) / largo),
                      b_.titolo);
        assi();
        const auto n = static_cast<double>(std::max<std::size_t>(b_.barre.size(), 1));
        const double riga = std::min(massimaRiga, (y2_ - y1_) / n);
        for (std::size_t i = 0; i < b_.limiti.size(); ++i) segno(i, riga);
        double y = y2_ - riga / 2;
        for (const Barra& barra : b_.barre) {
            disegna(barra, y, riga);
            y -= riga;
        }
    }

 private:
    [[nodiscard]] double x(double valore) const {
        return x1_ + (x2_ - x1_) * std::clamp(valore / b_.massimo, 0.0, 1.0);
    }

    void assi() const {
        plot::plotPenna(4);
        plot::linea(x1_, y2_, x1_, y1_);
        plot::linea(x1_, y1_, x2_, y1_);
        plot::plotPenna(6);
        const int tacche = static_cast<int>(std::lround(b_.massimo / b_.passo));
        for (int i = 0; i <= tacche; ++i) {
            const double valore = i * b_.passo;
            plot::linea(x(valore), y1_, x(valore), y1_ + 0.12);
            plot::testoCentrato(x(valore), y1_ - 1.6 * altezzaNumeri, altezzaNumeri,
                                base::testoNumero(valore));
        }
        plot::testoDa(xFasi_, y2_ + 0.5 * altezzaNumeri, altezzaNumeri, base::traduttore("fase"));
    }

    // Interrupted where the number of a bar stands in its way. Names of neighbours look away from
    // each other.
    void segno(std::size_t quale, double riga) const {
        constexpr double largo = 0.12;  // free beside a number
        plot::plotPenna(6);
        const double limite = b_.limiti[quale], xLimite = x(limite);
        double y = y2_;
        for (std::size_t i = 0; i < b_.barre.size(); ++i) {
            const double altezza = altezzaNumero(riga);
            const double mezzo = y2_ - (static_cast<double>(i) + 0.5) * riga;
            const double da = xNumero(b_.barre[i], riga);
            if (xLimite < da - largo ||
                xLimite > da + largo + plot::larghezzaTesto(altezza, b_.barre[i].numero))
                continue;
            const double alto = std::min(riga / 2, 1.7 * altezza);
            if (y > mezzo + alto) tratteggia(xLimite, y, xLimite, mezzo + alto);
            y = mezzo - alto;
        }
        tratteggia(xLimite, y, xLimite, y1_);
        const double yNome = y2_ + 0.5 * altezzaNumeri;
        const std::string nome = base::testoNumero(limite);
        if (quale == 0)
            plot::testoFinoA(xLimite + 0.1, yNome, altezzaNumeri, nome);
        else
            plot::testoDa(xLimite - 0.1, yNome, altezzaNumeri, nome);
    }

    static double altezzaNumero(double riga) { return std::min(altezzaNumeri, 0.75 * riga); }
    [[nodiscard]] double xNumero(const Barra& barra, double riga) const {
        const double sporge = barra.fine == FineBarra::freccia      ? mezzaBarra * riga
                              : barra.fine == FineBarra::interrotta ? dente
                                                                    : 0;
        return x(barra.valore) + sporge + 0.12;
    }

    void disegna(const Barra& barra, double y, double riga) const {
        const double mezza = mezzaBarra * riga;
        const double altezza = altezzaNumero(riga);
        const double base = y - 0.4 * altezza;
        plot::plotPenna(6);
        plot::testoFinoA(x1_ - 0.2, base, altezza, std::to_string(barra.fase));
        const double fine = x(barra.valore);
        if (fine > x1_) {
            plot::plotPenna(14 + barra.fase);
            contorno(barra, fine, y, mezza);
            if (barra.tratteggio > 0)
                rigato(x1_, y - mezza, fine, y + mezza, barra.tratteggio > 1 ? fitto : rado);
        }
        plot::plotPenna(6);
        plot::testoDa(xNumero(barra, riga), base, altezza, barra.numero);
    }

    void contorno(const Barra& barra, double fine, double y, double mezza) const {
        plot::linea(x1_, y + mezza, fine, y + mezza);
        if (barra.fine == FineBarra::freccia) plot::plotMuovi(fine + mezza, y, plot::pennaGiu);
        if (barra.fine == FineBarra::interrotta) {
            plot::plotMuovi(fine + dente, y + mezza / 3, plot::pennaGiu);
            plot::plotMuovi(fine - dente, y - mezza / 3, plot::pennaGiu);
        }
        plot::plotMuovi(fine, y - mezza, plot::pennaGiu);
        plot::plotMuovi(x1_, y - mezza, plot::pennaGiu);
    }

    const Barre& b_;
    double xFasi_, xFine_, x1_, x2_, y1_, y2_, yTitolo_;
};

}  // namespace

void disegnaBarre(const Barre& barre, double x1, double y1, double x2, double y2) {
    Quadro(barre, x1, y1, x2, y2).disegna();
}

}  // namespace korven::drawings
