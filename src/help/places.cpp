#include "help/places.hpp"

#include <algorithm>
#include <iterator>

#include "help/contexts.hpp"

namespace korven::help {

namespace {

struct Posto {
    std::string_view finestra;
    int voce;
};

constexpr Posto posti[] = {
    {"GRAFICA", voceGrafica},
    {"Editacfg", 23},
    {"ConfStampa", voceConfStampa},
    {"TempCalc", voceTempCalc},
    {"guida", voceFinestraGuida},
    {"INFORMAZIONI", voceInformazioni},
    {"selezling", voceSelezling},
    {"osservazioni", voceOsservazioni},
    {"risultati", 36},
    {"sicurezza", 37},
    {"allegato", 43},
    {"confronto", 44},
    {"norme", 45},
    {"studio", 46},
    {"DefinEJ", 7},
    {"Form1", 19},
    {"apri", 3},
    {"salva", 4},
    {"nuovo", 38},
    {"modelli", 38},
    {"tasti", 42},
};

}  // namespace

int voceForma(std::string_view finestra) {
    const auto* trovato = std::find_if(std::begin(posti), std::end(posti),
                                       [=](const Posto& p) { return p.finestra == finestra; });
    return trovato == std::end(posti) ? 0 : trovato->voce;
}

bool senzaF1(std::string_view finestra) {
    return finestra.substr(0, finestra.find('_')) == "base1";
}

std::string ancoraCampo(std::string_view controllo) {
    controllo = controllo.substr(0, controllo.find('_'));
    return controllo.empty() ? std::string() : "campo" + std::string(controllo);
}

std::string ancoraColonna(int colonna) { return ancoraCampo(std::to_string(colonna + 2)); }

}  // namespace korven::help
