#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "plot/plot_engine.hpp"
#include "support/plot_record.hpp"
#include "support/plot_setup.hpp"

namespace korven::test {

/// Pens that tell their strokes apart: all black, pen n is n tenths of a millimetre wide.
inline plot::ConfigurazionePlot penneNere() {
    plot::ConfigurazionePlot c;
    for (int i = 1; i <= plot::numeroPenne; ++i)
        c.penne[i] = {"Penna " + std::to_string(i), 1, i * 0.1, "Arial"};
    for (int i = 1; i <= plot::numeroColori; ++i)
        c.colori[i] = {"Colore " + std::to_string(i), plot::bianco};
    return c;
}

inline int pennaDi(const plot::Segmento& s) {
    return static_cast<int>(std::lround(s.spessore * 100));
}

/// The stored lines of one pen as polylines, "x y, x y, x y" in centimetres: a line that begins
/// where the one before it ended goes on with it.
inline std::vector<std::string> polilinee(int penna, int decimali = 3) {
    std::vector<std::string> tutte;
    plot::Punto fine;
    bool continua = false;
    plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
        if (pennaDi(s) != penna) {
            continua = false;
            return;
        }
        if (!continua || !(fine == plot::Punto{s.x1, s.y1}))
            tutte.push_back(punto(s.x1, s.y1, decimali));
        tutte.back() += ", " + punto(s.x2, s.y2, decimali);
        fine = {s.x2, s.y2};
        continua = true;
    });
    return tutte;
}

/// The stored texts: `"Scavo" 10.00 26.00 h 0.50`, with "centred" and the angle where they are not
/// what they usually are.
inline std::vector<std::string> testiDisegnati() {
    std::vector<std::string> tutti;
    for (const plot::TestoPlot& t : plot::statoPlot.archivio.testi()) {
        std::string riga = '"' + t.testo + "\" " + punto(t.x, t.y, 3) + " h " + cifre(t.altezza);
        if (t.angolo != 0) riga += " angle " + cifre(t.angolo, 0);
        if (t.conteggio == plot::conteggioCentrato) riga += " centred";
        tutti.push_back(riga);
    }
    return tutti;
}

/// The stored texts that hold `parte`.
inline std::vector<std::string> testiCon(std::string_view parte) {
    std::vector<std::string> tutti;
    for (const std::string& riga : testiDisegnati())
        if (riga.find(parte) != std::string::npos) tutti.push_back(riga);
    return tutti;
}

}  // namespace korven::test
