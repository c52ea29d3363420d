#include "drawings/log/descriptions.hpp"

#include <string>
#include <string_view>
#include <vector>

#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/columns.hpp"
#include "drawings/log/description_blocks.hpp"
#include "drawings/log/layer_description.hpp"
#include "markup/text_fitting.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

namespace korven::drawings {

namespace {

constexpr double altezzaTesto = 0.25;
constexpr double interlinea = 1.5 * altezzaTesto;
constexpr double margine = 0.3;  // on both sides of the text

std::vector<std::string_view> parole(std::string_view riga) {
    std::vector<std::string_view> tutte;
    for (std::size_t spazio = riga.find(' '); spazio != std::string_view::npos;
         spazio = riga.find(' ')) {
        tutte.push_back(riga.substr(0, spazio));
        riga.remove_prefix(spazio + 1);
    }
    tutte.push_back(riga);
    return tutte;
}

// Both ends of the line reach the ends of the column: the room that the words leave is shared out
// among the blanks. Two blanks in a row have a word of no length between them.
void scriviGiustificata(double x, double y, double larghezza, std::string_view riga) {
    const auto tutte = parole(riga);
    double occupata = 0;
    for (const auto parola : tutte) occupata += plot::larghezzaTesto(altezzaTesto, parola);
    const double spazio = (larghezza - occupata) / static_cast<double>(tutte.size() - 1);
    for (const auto parola : tutte) {
        if (!parola.empty()) plot::testoDa(x, y, altezzaTesto, parola);
        x += plot::larghezzaTesto(altezzaTesto, parola) + spazio;
    }
}

class BloccoDescrizione {
 public:
    BloccoDescrizione(std::string_view descrStrato, const Colonna& colonna,
                      const markup::TextMeasure& misura)
        : strato_(leggiDescrizione(descrStrato)), colonna_(colonna) {
        righe_ = markup::fitText(strato_.testo, larghezza(), misura);
    }

    [[nodiscard]] double altezza() const { return altezzaBlocco(righe_.size(), altezzaTesto); }

    void disegna(double piede, double bordo) const {
        if (strato_.richiamo) richiamo(piede, bordo);
        double y = bordo + altezza();
        for (const std::string& riga : righe_) {
            y -= interlinea;
            const bool comeSta = &riga == &righe_.back() || riga.ends_with('.') ||
                                 riga.find(' ') == std::string::npos;
            if (comeSta)
                plot::testoDa(colonna_.sinistra + margine, y, altezzaTesto, riga);
            else
                scriviGiustificata(colonna_.sinistra + margine, y, larghezza(), riga);
        }
    }

 private:
    [[nodiscard]] double larghezza() const { return colonna_.larghezza - 2 * margine; }

    void richiamo(double piede, double bordo) const {
        plot::plotMuovi(colonna_.sinistra, piede, plot::pennaSu);
        plot::plotMuovi(colonna_.sinistra + margine, bordo, plot::pennaGiu);
        plot::plotMuovi(colonna_.destra() - margine, bordo, plot::pennaGiu);
        plot::plotMuovi(colonna_.destra(), piede, plot::pennaGiu);
    }

    DescrizioneStrato strato_;
    const Colonna& colonna_;
    std::vector<std::string> righe_;
};

BloccoDescrizione blocco(const Stratigrafia& stratigrafia, int i, const Colonna& colonna,
                         const markup::TextMeasure& misura) {
    try {
        return {stratigrafia.dati.descrStrato[i], colonna, misura};
    } catch (const base::ErroreIndice& errore) {  // which of up to a hundred layers
        throw base::ErroreIndice(base::traduttore("strato") + ' ' + std::to_string(i) + ": " +
                                 errore.what());
    }
}

// The texts of all layers, and their places.
struct DescrizioniDisposte {
    DescrizioniDisposte(const Stratigrafia& stratigrafia, const Colonna& colonna,
                        const markup::TextMeasure& misura) {
        for (int i = 1; i <= stratigrafia.dati.nStrati; ++i) {
            testi.push_back(blocco(stratigrafia, i, colonna, misura));
            blocchi.push_back({stratigrafia.yPiede(i), testi.back().altezza()});
        }
        bordi = disponiBlocchi(blocchi, testaTabella, piedeTabella);
    }

    std::vector<BloccoDescrizione> testi;
    std::vector<Blocco> blocchi;
    std::vector<double> bordi;  // lower edges
};

}  // namespace

void disegnaDescrizioni(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    const DescrizioniDisposte disposizione(stratigrafia, colonna, [](std::string_view riga) {
        return plot::larghezzaTesto(altezzaTesto, riga);
    });
    for (std::size_t i = 0; i < disposizione.testi.size(); ++i)
        disposizione.testi[i].disegna(disposizione.blocchi[i].piede, disposizione.bordi[i]);
}

std::vector<DescrizioneDisposta> disponiDescrizioni(const project::DatiProgetto& dati,
                                                    const MisuraAltezza& misura) {
    // Between a block's upper edge and its first characters there is room.
    constexpr double stacco = interlinea - altezzaTesto;
    const Stratigrafia stratigrafia{
        dati, ScalaProfondita(dati.profStrato[dati.nStrati], bordoInferiore(altezzaPaginaA4))};
    const Colonna colonna{0, larghezzaDescrizioni};
    const DescrizioniDisposte disposizione(stratigrafia, colonna, [&misura](std::string_view riga) {
        return misura(altezzaTesto, riga);
    });
    std::vector<DescrizioneDisposta> disposte;
    for (std::size_t i = 0; i < disposizione.testi.size(); ++i) {
        const double altezza = disposizione.blocchi[i].altezza;
        const bool oltre = disposizione.bordi[i] + altezza - stacco > testaTabella;
        disposte.push_back({static_cast<int>(i) + 1, altezza, oltre});
    }
    return disposte;
}

}  // namespace korven::drawings
