#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "plot/colour.hpp"
#include "plot/geometry.hpp"

namespace korven::plot {

/// A pen plotter that draws into a DXF file: lines and texts, one layer for each colour of the
/// standard palette. It has the vocabulary of the plot engine; a replay of the stored drawing
/// drives it.
class ScrittoreDxf {
 public:
    /// An argument of this value marks a call that sets state and writes nothing.
    static constexpr double sentinella = -403.1959;

    /// Starts the file: header and tables.
    ScrittoreDxf(const Riquadro& estensione, std::string_view stile);

    /// Makes the layer of a colour (colour.hpp) that of the lines and texts to come. A colour
    /// without one leaves the layer as it is; before the first it is 0.
    void colore(Colore colore);

    /// Moves the pen: 3 up, 2 down with a LINE, -3 and -2 the same with (x, y) as the new origin of
    /// lines and texts, 999 ends the file.
    /// @param x  the sentinel makes `codice` the layer of lines; nothing else happens
    void muovi(double x, double y, int codice);

    /// Writes a TEXT. With `conteggio` -2 it is centred on (x, y): its start lies back along its
    /// direction by height times number of characters. Control characters become blanks.
    /// @param x        the sentinel sets the origin of texts to (0, 0)
    /// @param altezza  the sentinel makes the number in `testo` the layer of texts
    /// @param angolo   degrees; the sentinel makes (x, y) the origin of texts
    void testo(double x, double y, double altezza, std::string_view testo, double angolo,
               int conteggio);

    /// Swaps the axes of lines, the first of the new ones less `scostamento`. Off at the start.
    void scambiaAssi(bool scambiati, double scostamento);

    /// The file as far as it is written and not taken away, UTF-8, lines ended by CR LF.
    [[nodiscard]] const std::string& contenuto() const { return contenuto_; }
    /// Takes that away, to be written elsewhere.
    [[nodiscard]] std::string preleva() { return std::exchange(contenuto_, {}); }

 private:
    void riga(std::string_view testo);
    void coppia(std::string_view codice, std::string_view valore);
    void linea(double x, double y);
    void scriviTesto(double x, double y, double altezza, std::string_view testo, double angolo,
                     int conteggio);

    std::string contenuto_;
    std::string stile_;
    Punto ultima_;
    Punto origine_;
    Punto origineTesti_;
    int livelloLinee_ = 0;
    int livelloTesti_ = 0;
    bool assiScambiati_ = false;
    double scostamentoAssi_ = 0;
};

}  // namespace korven::plot
