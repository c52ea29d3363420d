#include "plot/text_width.hpp"

#include <iterator>
#include <string>

#include "base/code_page.hpp"

namespace korven::plot {

namespace {

// Widths of the characters 32 to 126 in thousandths of the font size, those of the Helvetica and
// Arial faces.
constexpr int primoCarattere = 32;
constexpr int larghezze[] = {
    278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,  //  !"#..
    556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,  // 012..
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,  // @AB..
    667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,  // PQR..
    333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,  // `ab..
    556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};      // pqr..
constexpr int larghezzaAltri = 556;     // accented letters are mostly vowels
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

int larghezzaCarattere(char primo) {
    const int indice = static_cast<unsigned char>(primo) - primoCarattere;
    return indice >= 0 && indice < static_cast<int>(std::size(larghezze)) ? larghezze[indice]
                                                                          : larghezzaAltri;
}

}  // namespace

double larghezzaStimata(std::string_view carattere, std::string_view testo) {
    const bool macchina = daMacchina(carattere);
    int somma = 0;
    while (!testo.empty()) {
        somma += macchina ? larghezzaMacchina : larghezzaCarattere(testo.front());
        testo.remove_prefix(base::lunghezzaPrimoCarattere(testo));
    }
    return somma / millesimi;
}

double MetricaStimata::larghezza(std::string_view carattere, double altezza,
                                 std::string_view testo) const {
    return larghezzaStimata(carattere, testo) * rigaPerAltezza * altezza /
           (daMacchina(carattere) ? rigaPerCorpoMacchina : rigaPerCorpo);
}

}  // namespace korven::plot
