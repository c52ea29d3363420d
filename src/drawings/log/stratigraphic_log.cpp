#include "drawings/log/stratigraphic_log.hpp"

#include <optional>

#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/columns.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/field_table.hpp"

namespace korven::drawings {

namespace {

void disegnaIntestazione(const base::Tabella<std::string, project::numeroTitoli>& titoli) {
    for (int i = 1; i <= project::numeroTitoli; ++i) {
        if (i <= 2) plot::plotPenna(i);
        const auto [x, y, altezza] = titoloStratigrafia(i);
        plot::testoCentrato(x, y, altezza, titoli[i]);
    }
    plot::plotPenna(3);
    plot::testoCentrato(11, 25, 0.3, base::traduttore("DESCRIZIONE STRATIGRAFICO-GEOTECNICA"));
}

using project::DatiProgetto;

struct ColonnaStratigrafia {
    std::string_view testata;              // empty: the contents draw heads of their own
    std::optional<project::Membro> campo;  // the field whose numbers and unit it shows
    double larghezza;
    void (*contenuto)(const Stratigrafia&, const Colonna&);
};

constexpr double larghezzaProfilo = 9.6 / 3;
constexpr ColonnaStratigrafia colonne[] = {
    {"Profondità", &DatiProgetto::profStrato, 1.2, disegnaProfondita},
    {"stratigrafia", std::nullopt, 1, disegnaGrafici},
    {"descrizione", std::nullopt, larghezzaDescrizioni, disegnaDescrizioni},
    {"falda", &DatiProgetto::faldaMonte, 1, disegnaFalda},
    {"", std::nullopt, larghezzaProfilo, disegnaPesi},
    {"", std::nullopt, larghezzaProfilo, disegnaAttrito},
    {"", std::nullopt, larghezzaProfilo, disegnaCoesione},
    {"scala", &DatiProgetto::profStrato, 1, disegnaScala},
};

void disegnaTabella(const Stratigrafia& stratigrafia) {
    plot::plotPenna(pennaRigaTabella);
    plot::linea(sinistraTabella, piedeTabella, sinistraTabella + larghezzaTabella, piedeTabella);
    double x = sinistraTabella;
    for (const auto& [testata, campo, larghezza, contenuto] : colonne) {
        const Colonna colonna{x, larghezza};
        const project::Unita unita = campo ? project::campo(*campo).unita : project::unita::nessuna;
        if (!testata.empty()) disegnaTestata(colonna, {etichetta(testata, unita)});
        contenuto(stratigrafia, colonna);
        // The rule after the first column parts it from the others up to the top of the heads.
        const double cima = x == sinistraTabella ? cimaTestata : testaTabella;
        x = colonna.destra();
        plot::plotPenna(pennaRigaTabella);
        plot::linea(x, piedeTabella, x, cima);
    }
}

std::string_view motivoSenzaDisegno(double altezzaPagina) {
    if (project::fileCorrente.empty())
        return "Non e' possibile produrre un output grafico prima di aver aperto un file.";
    const auto& dati = project::Progetto;
    if (!(dati.profStrato[dati.nStrati] > 0))
        return "Non e' possibile produrre un output grafico prima di aver introdotto la "
               "stratigrafia.";
    if (!(altezzaPagina > paginaTroppoBassa))
        return "Il foglio della stampante è troppo basso per la colonna stratigrafica: sceglierne "
               "uno più alto di 8.1 cm.";
    return {};
}

}  // namespace

void disegnaStratigrafia(const project::DatiProgetto& dati, double altezzaPagina) {
    const double bordo = bordoInferiore(altezzaPagina);
    plot::plotApri(0, bordo, larghezzaStratigrafia, altezzaStratigrafia);
    plot::statoPlot.nome = base::parolaStratigrafia.italiano;
    disegnaIntestazione(dati.titoli);
    disegnaTabella({dati, ScalaProfondita(dati.profStrato[dati.nStrati], bordo)});
    plot::plotMuovi(0, 0, plot::fineDisegno);
}

bool disegnaStratigrafia(base::Dialogo& dialogo, double altezzaPagina) {
    if (const auto motivo = motivoSenzaDisegno(altezzaPagina); !motivo.empty()) {
        dialogo.messaggio(base::traduttore(motivo), base::traduttore("ATTENZIONE") + "!",
                          base::Icona::stop);
        return false;
    }
    disegnaStratigrafia(project::Progetto, altezzaPagina);
    return true;
}

}  // namespace korven::drawings
