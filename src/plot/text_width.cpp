#include "plot/text_width.hpp"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/code_page.hpp"

namespace korven::plot {

namespace {

// Widths of the characters of Windows-1252 from 32 on, in thousandths of the font size, those of
// the Arial face. A row of sixteen, from " !" to the last letters with accents.
constexpr int primoCarattere = 32;
constexpr int larghezze[] = {
    278,  278, 355, 556, 556,  889, 667, 191, 333, 333, 389, 584,  278, 333,  278,  278,  556, 556,
    556,  556, 556, 556, 556,  556, 556, 556, 278, 278, 584, 584,  584, 556,  1015, 667,  667, 722,
    722,  667, 611, 778, 722,  278, 500, 667, 556, 833, 722, 778,  667, 778,  722,  667,  611, 722,
    667,  944, 667, 667, 611,  278, 278, 278, 469, 556, 333, 556,  556, 500,  556,  556,  278, 556,
    556,  222, 222, 500, 222,  833, 556, 556, 556, 556, 333, 500,  278, 556,  500,  722,  500, 500,
    500,  334, 260, 334, 584,  0,   556, 0,   222, 556, 333, 1000, 556, 556,  333,  1000, 667, 333,
    1000, 0,   611, 0,   0,    222, 222, 333, 333, 350, 556, 1000, 333, 1000, 500,  333,  944, 0,
    500,  667, 278, 333, 556,  556, 556, 556, 260, 556, 333, 737,  370, 556,  584,  333,  737, 552,
    400,  549, 333, 333, 333,  576, 537, 278, 333, 333, 365, 556,  834, 834,  834,  611,  667, 667,
    667,  667, 667, 667, 1000, 722, 667, 667, 667, 667, 278, 278,  278, 278,  722,  722,  778, 778,
    778,  778, 778, 584, 778,  722, 722, 722, 722, 667, 667, 611,  556, 556,  556,  556,  556, 556,
    889,  500, 556, 556, 556,  556, 278, 278, 278, 278, 556, 556,  556, 556,  556,  556,  556, 549,
    611,  556, 556, 556, 556,  500, 556, 500};
constexpr int larghezzaMacchina = 600;  // every character of a typewriter face
constexpr double millesimi = 1000;

// A text of height h is printed in a row of 5/3 h; the row of a face, accents and descenders
// included, over its font size.
constexpr double rigaPerAltezza = 5.0 / 3.0;
constexpr double rigaPerCorpo = 1.117;
constexpr double rigaPerCorpoMacchina = 1.133;

bool daMacchina(std::string_view carattere) {
    const std::string nome = base::minuscolo(carattere);
    return nome.find("courier") != std::string::npos || nome.find("mono") != std::string::npos;
}

int larghezzaCarattere(char carattere) {
    const int indice = static_cast<unsigned char>(carattere) - primoCarattere;
    return indice < 0 ? 0 : larghezze[indice];
}

}  // namespace

bool MetricaStimata::conosce(std::string_view carattere) {
    const std::string nome = base::minuscolo(carattere);
    constexpr std::string_view noti[] = {"arial",   "helvetica",   "liberation sans",
                                         "courier", "courier new", "liberation mono"};
    return std::find(std::begin(noti), std::end(noti), nome) != std::end(noti);
}

double larghezzaStimata(std::string_view carattere, std::string_view testo) {
    const bool macchina = daMacchina(carattere);
    int somma = 0;
    for (const char lettera : base::inCp1252(testo))
        somma += macchina ? larghezzaMacchina : larghezzaCarattere(lettera);
    return somma / millesimi;
}

double MetricaStimata::larghezza(std::string_view carattere, double altezza,
                                 std::string_view testo) const {
    return larghezzaStimata(carattere, testo) * rigaPerAltezza * altezza /
           (daMacchina(carattere) ? rigaPerCorpoMacchina : rigaPerCorpo);
}

}  // namespace korven::plot
