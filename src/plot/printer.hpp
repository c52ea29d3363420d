#pragma once

#include <span>
#include <string_view>

#include "plot/colour.hpp"

namespace korven::plot {

/// A position on a page [device pixels], from its upper left corner, y downward.
struct PuntoPagina {
    int x = 0;
    int y = 0;
    bool operator==(const PuntoPagina&) const = default;
};

/// What a printer says of itself.
struct MisureStampante {
    double larghezzaMm = 0;  ///< printable width [mm]
    double altezzaMm = 0;
    int larghezzaPixel = 0;  ///< the same in device pixels
    int altezzaPixel = 0;
    double paginaLarghezzaTwip = 0;  ///< page [twips, 567 to the centimetre]
    double paginaAltezzaTwip = 0;
    double twipPerPixel = 1;
    int pianiColore = 1;  ///< colour planes; under 2 it prints black alone
};

/// The font of the texts to come.
struct CaratterePagina {
    double altezzaRiga = 0;  ///< height of a row of text, accents and descenders included [pixels]
    int decimiDiGrado = 0;   ///< rotation, counter-clockwise
    std::string_view carattere;
};

/// Takes a drawing page by page. Pens and fonts are set only when they change within a page.
class Stampante {
 public:
    virtual ~Stampante() = default;

    virtual MisureStampante misure() = 0;
    /// Starts the print job, if none runs, and a page.
    virtual void iniziaPagina() = 0;
    virtual void poligono(std::span<const PuntoPagina> vertici, Colore colore) = 0;
    virtual void penna(Colore colore, int spessore) = 0;
    virtual void linea(PuntoPagina da, PuntoPagina a) = 0;
    virtual void carattere(const CaratterePagina& carattere) = 0;
    /// Writes a text on its base line, on a transparent ground.
    virtual void testo(PuntoPagina punto, std::string_view testo, bool centrato, Colore colore) = 0;
    virtual void finePagina() = 0;
    virtual void fineStampa() = 0;
};

}  // namespace korven::plot
