#include "drawings/hatch_samples.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "base/translated_texts.hpp"
#include "drawings/hatch_drawing.hpp"
#include "drawings/hatch_library.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

namespace korven::drawings {

namespace {

constexpr int grandezze[] = {1, 3, 5};
constexpr int pennaTesti = 4;
constexpr int pennaCampiture = 10;  // colour 1

// The patterns go from the top down, so that those of a kind stay together.
constexpr double cima = plot::y0 + plot::altQuadro - 0.1;
constexpr double piede = 0.8;
constexpr int righePreferite = 16;
constexpr int colonneMinime = 4;

// Parts of a sample, from its upper edge down [cm]: the name, the fields, their codes.
constexpr double altezzaNome = 0.2;
constexpr double spazioNome = 0.36;
constexpr double altezzaCodici = 0.14;
constexpr double spazioCodici = 0.28;
constexpr double margine = 0.3;  // between samples side by side
constexpr double traCampi = 0.12;

std::vector<int> presenti() {
    std::vector<int> numeri;
    for (int n = 1; n < numeroCampiture; ++n)  // a code has two digits for the number
        if (campiture()[n].nTratti > 0) numeri.push_back(n);
    return numeri;
}

void riquadro(const plot::Riquadro& r) {
    plot::plotMuovi(r.xmin, r.ymin, plot::pennaSu);
    plot::plotMuovi(r.xmax, r.ymin, plot::pennaGiu);
    plot::plotMuovi(r.xmax, r.ymax, plot::pennaGiu);
    plot::plotMuovi(r.xmin, r.ymax, plot::pennaGiu);
    plot::plotMuovi(r.xmin, r.ymin, plot::pennaGiu);
}

// A long name is written smaller, so that it ends before the next sample.
void scriviNome(int numero, double x, double y, double larghezza) {
    const std::string testo = std::to_string(numero) + "  " + campiture()[numero].nome;
    const double larga = plot::larghezzaTesto(altezzaNome, testo);
    plot::testoDa(x, y, altezzaNome * std::min(1.0, larghezza / larga), testo);
}

void disegnaCampo(int codice, const plot::Riquadro& campo) {
    plot::plotPenna(pennaCampiture);
    disegnaCampitura(codice, campo.xmin, campo.xmax, campo.ymin, campo.ymax);
    plot::plotPenna(pennaTesti);
    riquadro(campo);
    plot::testoCentrato((campo.xmin + campo.xmax) / 2, campo.ymin - spazioCodici * 0.75,
                        altezzaCodici, std::to_string(codice));
}

void disegnaCampione(int numero, const plot::Riquadro& posto) {
    plot::plotPenna(pennaTesti);
    scriviNome(numero, posto.xmin, posto.ymax - spazioNome * 0.75, posto.larghezza());
    constexpr int quanti = std::size(grandezze);
    const double larghezza = (posto.larghezza() - (quanti - 1) * traCampi) / quanti;
    double x = posto.xmin;
    for (const int grandezza : grandezze) {
        disegnaCampo(grandezza * 100 + numero,
                     {x, posto.ymin + spazioCodici, x + larghezza, posto.ymax - spazioNome});
        x += larghezza + traCampi;
    }
}

// How a code is made: written where other drawings have their headings.
base::Tabella<std::string, 6> spiegazioni() {
    using base::traduttore;
    base::Tabella<std::string, 6> righe;
    righe[1] = traduttore("CAMPIONARIO DELLE CAMPITURE");
    righe[2] = traduttore("Prima parola della descrizione di uno strato: codice della campitura");
    righe[3] = traduttore("Ultime due cifre: numero della campitura");
    righe[4] = traduttore("Terza cifra da destra: grandezza, raddoppiata ogni quattro passi");
    righe[5] = traduttore("12005: campitura 12 sopra la 5; 105C3: colore 3");
    righe[6] = traduttore("-105: nessuna linea al piede dello strato");
    return righe;
}

}  // namespace

void disegnaCampionario() {
    const auto numeri = presenti();
    plot::apriFoglio(spiegazioni(), base::traduttore("GRANDEZZE 1, 3 E 5"));
    const int n = static_cast<int>(numeri.size());
    const int colonne = std::max(colonneMinime, (n + righePreferite - 1) / righePreferite);
    const int righe = std::max(righePreferite, (n + colonne - 1) / colonne);
    const double larghezza = (plot::larghQuadro + margine) / colonne;
    const double altezza = (cima - piede) / righe;
    for (int k = 0; k < n; ++k) {
        const int colonna = k / righe, riga = k % righe;
        const double x = plot::x0 + colonna * larghezza;
        const double y = cima - riga * altezza;
        disegnaCampione(numeri[static_cast<std::size_t>(k)],
                        {x, y - altezza, x + larghezza - margine, y});
    }
    plot::plotMuovi(0, 0, plot::fineDisegno);
}

}  // namespace korven::drawings
