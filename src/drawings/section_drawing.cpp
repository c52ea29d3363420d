#include "drawings/section_drawing.hpp"

#include <cmath>

#include "base/folders/file_names.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/section_views.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/field_table.hpp"
#include "structure/section_type.hpp"

namespace korven::drawings {

namespace {

using base::traduttore;
using plot::x0;
using project::Sezione;

constexpr double altezzaTesti = 0.3;

void nomiDeiLati() {
    plot::testoCentrato(x0 + 0.3, yVista, altezzaTesti, traduttore("LATO MONTE"), 90);
    plot::testoCentrato(x0 + plot::larghQuadro, yVista, altezzaTesti, traduttore("LATO VALLE"), 90);
}

void cella(double x, double y, std::string_view grandezza, const Sezione& sezione,
           double Sezione::*membro) {
    const project::Campo& campo = project::campo(membro);
    const double valore = project::mostrato(campo, sezione.*membro);
    plot::testoDa(
        x, y, altezzaTesti,
        traduttore(grandezza) + " =" + base::testoNumero(valore) + " " + traParentesi(campo.unita));
}

void riquadroMateriali(const Sezione& s) {
    constexpr double sotto = 0.5, sopra = 2.5, meta = 1.5;
    constexpr double destra = x0 + plot::larghQuadro;
    plot::linea(x0, sotto, destra, sotto);
    plot::plotMuovi(destra, sopra, plot::pennaGiu);
    plot::plotMuovi(x0, sopra, plot::pennaGiu);
    plot::plotMuovi(x0, sotto, plot::pennaGiu);
    plot::linea(plot::xCentro, sotto, plot::xCentro, sopra);
    plot::linea(x0, meta, destra, meta);

    constexpr double rigaAlta = sotto + 1.35, rigaBassa = sotto + 0.35, rientro = 0.3;
    cella(x0 + rientro, rigaAlta, "E(acc)", s, &Sezione::modEacciaio);
    cella(x0 + rientro, rigaBassa, "E(cls)", s, &Sezione::modEcls);
    cella(plot::xCentro + rientro, rigaAlta, "Fyk", s, &Sezione::fyk);
    cella(plot::xCentro + rientro, rigaBassa, "Fck", s, &Sezione::fck);
}

void vista(const Sezione& sezione) {
    switch (structure::tipoSezione(sezione)) {
        case structure::TipoSezione::diaframma:
            return vistaDiaframma(sezione);
        case structure::TipoSezione::pali:
            return vistaPali(sezione);
        case structure::TipoSezione::palancola:
            return vistaPalancola(sezione);
        case structure::TipoSezione::paliArmati:
            return vistaPaliArmati(sezione);
        case structure::TipoSezione::nessuno:
            return;
    }
}

}  // namespace

void disegnaSezione(const project::DatiProgetto& dati) {
    plot::apriFoglio(dati.titoli, traduttore("SEZIONE ELEMENTO STRUTTURALE"));
    plot::statoPlot.nome = base::parolaSezione.italiano;
    nomiDeiLati();
    plot::plotPenna(4);
    riquadroMateriali(dati.sezione);
    vista(dati.sezione);
    plot::plotMuovi(0, 0, plot::fineDisegno);
}

}  // namespace korven::drawings
