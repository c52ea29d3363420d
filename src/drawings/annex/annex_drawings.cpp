#include "drawings/annex/annex_drawings.hpp"

#include "drawings/annex/domain_figure.hpp"
#include "drawings/annex/scene_plot.hpp"
#include "drawings/annex/section_figure.hpp"
#include "drawings/annex/wall_to_scale.hpp"

namespace korven::drawings {

void disegnaFase(const live::PareteViva& parete, int fase, double larghezza, double altezza) {
    disegnaScena(scenaFase(parete, fase, larghezza, altezza));
}

void disegnaMeccanismo(const live::PareteViva& parete, int fase, const PressioniLimite& pressioni,
                       double larghezza, double altezza) {
    disegnaScena(scenaMeccanismo(parete, fase, pressioni, larghezza, altezza));
}

void disegnaInviluppi(const live::PareteViva& parete, double larghezza, double altezza) {
    disegnaScena(scenaInviluppi(parete, larghezza, altezza));
}

void disegnaDominio(const std::vector<structure::PuntoDominio>& dominio,
                    const std::vector<live::FaseNelDominio>& fasi, double larghezza,
                    double altezza) {
    disegnaScena(scenaDominioCarta(dominio, fasi, larghezza, altezza));
}

void disegnaParete(const live::PareteViva& parete, double larghezza, double altezza) {
    disegnaScena(scenaParete(parete, larghezza, altezza));
}

void disegnaSezioneParete(const project::Sezione& sezione, double larghezza, double altezza) {
    disegnaScena(scenaSezione(sezione, larghezza, altezza));
}

void disegnaConfronto(const MuroDetto& a, const MuroDetto& b, double larghezza, double altezza) {
    disegnaScena(scenaConfronto(a, b, larghezza, altezza));
}

}  // namespace korven::drawings
