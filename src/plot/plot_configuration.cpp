#include "plot/plot_configuration.hpp"

#include <cmath>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::plot {

namespace {

// "the colour of pen 12", to follow "expected".
std::string quale(std::string_view cosa, int numero) {
    return base::traduttore(cosa) + ' ' + std::to_string(numero);
}

int leggiIntero(base::LettoreRighe& file, int massimo, const std::string& cosa) {
    const std::string atteso =
        cosa + ", " + base::traduttore("un intero da 0 a") + ' ' + std::to_string(massimo);
    const double valore = file.numeroSolo(0, massimo, atteso);
    if (valore != std::floor(valore))
        file.rifiuta(base::traduttore("atteso un numero") + ": " + atteso);
    return static_cast<int>(valore);
}

PennaConfigurata leggiPenna(base::LettoreRighe& file, int numero) {
    PennaConfigurata penna;
    penna.etichetta = file.riga(quale("etichetta della penna", numero));
    penna.colore = leggiIntero(file, numeroColori, quale("colore della penna", numero));
    penna.spessoreMm =
        file.numeroSolo(0, massimoSpessoreMm, quale("spessore in millimetri della penna", numero));
    penna.carattere = file.riga(quale("carattere della penna", numero));
    return penna;
}

double margine(base::LettoreRighe& file, std::string_view cosa) {
    return file.numeroSolo(minimoMargineCm, massimoMargineCm, base::traduttore(cosa));
}

ColoreConfigurato leggiColore(base::LettoreRighe& file, int numero) {
    ColoreConfigurato colore;
    colore.nome = file.riga(quale("nome del colore", numero));
    colore.valore = leggiIntero(file, bianco, quale("valore del colore", numero));
    return colore;
}

}  // namespace

ConfigurazionePlot leggiConfigurazione(base::LettoreRighe& file) {
    ConfigurazionePlot letta;
    for (int i = 1; i <= numeroPenne; ++i) letta.penne[i] = leggiPenna(file, i);
    for (int i = 1; i <= numeroColori; ++i) letta.colori[i] = leggiColore(file, i);
    if (!file.soloRigheVuote())
        letta.margineSinistro = margine(file, "margine sinistro in centimetri");
    if (!file.soloRigheVuote())
        letta.margineSuperiore = margine(file, "margine superiore in centimetri");
    return letta;
}

ConfigurazionePlot leggiConfigurazione(const std::string& percorso) {
    auto file = base::LettoreRighe::apri(percorso);
    return leggiConfigurazione(file);
}

std::string testoConfigurazione(const ConfigurazionePlot& configurazione) {
    std::string testo;
    const auto riga = [&testo](std::string_view contenuto) {
        testo.append(base::inCp1252(contenuto)).append("\r\n");
    };
    for (int i = 1; i <= numeroPenne; ++i) {
        const PennaConfigurata& penna = configurazione.penne[i];
        riga(penna.etichetta);
        riga(base::formattaNumero(penna.colore));
        riga(base::formattaNumero(penna.spessoreMm));
        riga(penna.carattere);
    }
    for (int i = 1; i <= numeroColori; ++i) {
        riga(configurazione.colori[i].nome);
        riga(base::formattaNumero(configurazione.colori[i].valore));
    }
    riga(base::formattaNumero(configurazione.margineSinistro));
    riga(base::formattaNumero(configurazione.margineSuperiore));
    return testo;
}

void scriviConfigurazione(const std::string& percorso, const ConfigurazionePlot& configurazione,
                          const base::Disco& disco) {
    base::scriviFile(percorso, testoConfigurazione(configurazione), disco);
}

TabellaPenne pennePlot(const ConfigurazionePlot& configurazione) {
    constexpr double millimetriPerCentimetro = 10;
    TabellaPenne penne;
    for (int i = 1; i <= numeroPenne; ++i) {
        const PennaConfigurata& penna = configurazione.penne[i];
        // Index 0 takes row 0, which holds the colour that draws nothing.
        penne[i] = {configurazione.colori[penna.colore].valore,
                    penna.spessoreMm / millimetriPerCentimetro, penna.carattere};
    }
    return penne;
}

int pennaConEtichetta(const ConfigurazionePlot& configurazione, std::string_view etichetta) {
    for (int i = 1; i <= numeroPenne; ++i)
        if (configurazione.penne[i].etichetta == etichetta) return i;
    return 0;
}

std::string fileConfigurazione(std::string_view sigla) {
    const auto percorso = [](std::string_view s) {
        return base::fileProgramma("module06" + std::string(s) + ".cfg");
    };
    return percorso(base::siglaDisponibile(
        sigla, [&](std::string_view s) { return base::esisteFile(percorso(s)); }));
}

}  // namespace korven::plot
