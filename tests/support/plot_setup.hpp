#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <cmath>
#include <string>
#include <string_view>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "plot/plot_configuration.hpp"
#include "plot/plot_engine.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

/// Pens that tests can count on: pen 1 red, pen 2 white, pen 3 not drawn, all others blue; pen n is
/// n tenths of a millimetre wide; pens of odd number write in Arial, the others in Courier New.
inline plot::ConfigurazionePlot configurazioneDiProva() {
    plot::ConfigurazionePlot c;
    for (int i = 1; i <= plot::numeroPenne; ++i)
        c.penne[i] = {"Penna " + std::to_string(i), i < 3 ? i : (i == 3 ? 0 : 3), i / 10.0,
                      i % 2 == 1 ? "Arial" : "Courier New"};
    for (int i = 1; i <= plot::numeroColori; ++i)
        c.colori[i] = {"Colore " + std::to_string(i), 1000 * i};
    c.colori[1] = {"Rosso", 255};
    c.colori[2] = {"Bianco", plot::bianco};
    c.colori[3] = {"Blu", 255 * 65536};
    return c;
}

/// Pens that a golden drawing can tell apart: pen n is n tenths of a millimetre wide, pens n and
/// n + 15 have colour n, the upper fifteen write in Courier New. The colours are those of the
/// layers of a DXF file, so that pen n draws on layer n (7 and 8 are greys and draw on 15, as does
/// the white pen).
inline plot::ConfigurazionePlot penneDistinte() {
    constexpr plot::Colore colori[] = {
        plot::daRgb(0, 0, 128),     plot::daRgb(0, 128, 0),     plot::daRgb(0, 128, 128),
        plot::daRgb(128, 0, 0),     plot::daRgb(128, 0, 128),   plot::daRgb(128, 128, 0),
        plot::daRgb(192, 192, 192), plot::daRgb(128, 128, 128), plot::daRgb(0, 0, 255),
        plot::daRgb(0, 255, 0),     plot::daRgb(0, 255, 255),   plot::daRgb(255, 0, 0),
        plot::daRgb(255, 0, 255),   plot::daRgb(255, 255, 0),   plot::bianco};
    plot::ConfigurazionePlot c;
    for (int i = 1; i <= plot::numeroColori; ++i)
        c.colori[i] = {"Colore " + std::to_string(i), colori[i - 1]};
    for (int i = 1; i <= plot::numeroPenne; ++i)
        c.penne[i] = {"Penna " + std::to_string(i), (i - 1) % plot::numeroColori + 1, i / 10.0,
                      i <= plot::numeroColori ? "Arial" : "Courier New"};
    return c;
}

/// A test that draws: a program folder with the pens above, an empty plotter before and after, no
/// drive for spill files.
class ProvaPlot : public testing::Test {
 protected:
    ProvaPlot() {
        ::unsetenv("windir");
        base::impostaCartellaProgramma(programma.percorso());
        base::impostaLingua(1);
        configura(configurazioneDiProva());
        plot::statoPlot = {};
    }
    ~ProvaPlot() override {
        plot::statoPlot = {};
        base::impostaCartellaProgramma({});
        ::unsetenv("windir");
    }

    void configura(const plot::ConfigurazionePlot& configurazione) const {
        plot::scriviConfigurazione(programma / "module06ita.cfg", configurazione);
    }

    const CartellaProvvisoria programma;
};

/// Draws `quante` lines with the pen in use; line k, from 0, goes from (k, 0) to (k, 1).
inline void tracciaLinee(int quante, int prima = 0) {
    for (int k = prima; k < prima + quante; ++k) {
        plot::plotMuovi(k, 0, plot::pennaSu);
        plot::plotMuovi(k, 1, plot::pennaGiu);
    }
}

}  // namespace korven::test
