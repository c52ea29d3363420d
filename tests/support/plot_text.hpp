#pragma once

#include <charconv>
#include <string>

#include "plot/plot_engine.hpp"

// Drawings as texts that a person can read, for comparison with golden files.

namespace korven::test {

/// A number as a record shows it: fixed decimals, never "-0.00".
inline std::string cifre(double valore, int decimali = 2) {
    char testo[64];
    const auto fine =
        std::to_chars(testo, testo + sizeof testo, valore, std::chars_format::fixed, decimali).ptr;
    std::string scritto(testo, fine);
    if (scritto.starts_with('-') && scritto.find_first_not_of("-0.") == std::string::npos)
        scritto.erase(0, 1);
    return scritto;
}

inline std::string punto(double x, double y, int decimali = 2) {
    return cifre(x, decimali) + ' ' + cifre(y, decimali);
}

/// The pen of the table that alone has a colour, white counted as black, and fulfils `prova`; 0
/// when none or several do.
template <class Prova>
int sola(const plot::TabellaPenne& penne, plot::Colore colore, Prova prova) {
    int trovata = 0;
    for (int i = 1; i <= plot::numeroPenne; ++i) {
        const plot::PennaPlot& penna = penne[i];
        if (penna.colore == plot::nonDisegnato || !prova(penna) ||
            (penna.colore == plot::bianco ? plot::nero : penna.colore) != colore)
            continue;
        if (trovata != 0) return 0;
        trovata = i;
    }
    return trovata;
}

/// "pen 4", or colour and width where no pen of the table, or more than one, draws so.
inline std::string penna(const plot::TabellaPenne& penne, const plot::Segmento& s) {
    const int n = sola(penne, s.colore, [&](const auto& p) { return p.spessore == s.spessore; });
    if (n != 0) return "pen " + std::to_string(n);
    return "colour " + std::to_string(s.colore) + " width " + cifre(s.spessore, 3);
}

/// "pen 4", or colour and font where no pen of the table, or more than one, writes so.
inline std::string penna(const plot::TabellaPenne& penne, const plot::TestoPlot& t) {
    const int n = sola(penne, t.colore, [&](const auto& p) { return p.carattere == t.carattere; });
    if (n != 0) return "pen " + std::to_string(n);
    return "colour " + std::to_string(t.colore) + " font " + t.carattere;
}

/// A drawing in the form of the golden files, centimetres with three decimals: a pen where it
/// changes, a move where a line does not go on from the end of the one before, then the texts.
inline std::string disegnoComeTesto(const plot::ArchivioDisegno& archivio,
                                    const plot::TabellaPenne& penne) {
    std::string testo, corrente, posizione;
    archivio.perOgniLinea([&](const plot::Segmento& s) {
        if (const auto nuova = penna(penne, s); nuova != corrente) {
            testo += nuova + '\n';
            corrente = nuova;
        }
        if (const auto inizio = punto(s.x1, s.y1, 3); inizio != posizione)
            testo += "move " + inizio + '\n';
        posizione = punto(s.x2, s.y2, 3);
        testo += "line " + posizione + '\n';
    });
    for (const plot::TestoPlot& t : archivio.testi()) {
        testo += "text " + punto(t.x, t.y, 3) + " height " + cifre(t.altezza, 3);
        if (t.angolo != 0) testo += " angle " + cifre(t.angolo, 1);
        if (t.conteggio == plot::conteggioCentrato) testo += " centred";
        testo += ' ' + penna(penne, t) + " \"" + t.testo + "\"\n";
    }
    return testo;
}

/// The drawing of the program in that form, its sheet in front.
inline std::string disegnoComeTesto() {
    const plot::Riquadro& r = plot::statoPlot.estensione;
    return "sheet " + punto(r.xmin, r.ymin, 3) + ' ' + punto(r.xmax, r.ymax, 3) + '\n' +
           disegnoComeTesto(plot::statoPlot.archivio, plot::statoPlot.penne);
}

}  // namespace korven::test
