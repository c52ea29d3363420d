#include "batch/drawing_output.hpp"

#include "analysis/output_guard.hpp"
#include "device/drawing_files.hpp"
#include "device/drawing_fonts.hpp"
#include "device/graphics_session.hpp"
#include "plot/plot_dxf.hpp"
#include "plot/plot_engine.hpp"

namespace korven::batch {

bool UsciteDisegno::nessuna() const { return file().empty(); }

bool UsciteDisegno::dipinte() const { return !pdf.empty() || !svg.empty() || !png.empty(); }

std::vector<std::string> UsciteDisegno::file() const {
    std::vector<std::string> tutti;
    for (const std::string* nome : {&dxf, &pdf, &svg, &png})
        if (!nome->empty()) tutti.push_back(*nome);
    return tutti;
}

void controllaUscite(const UsciteDisegno& uscite) {
    for (const std::string& file : uscite.file()) analysis::controllaUscita(file, {});
}

struct AmbienteDisegno::Grafica {
    device::SessioneGrafica sessione;
    device::MetricaQt metrica;
};

AmbienteDisegno::AmbienteDisegno(bool dipinti) {
    if (!dipinti) return;
    grafica_ = std::make_unique<Grafica>();
    plot::statoPlot.metrica = &grafica_->metrica;
}

AmbienteDisegno::~AmbienteDisegno() { plot::statoPlot.metrica = nullptr; }

void scriviDisegno(const UsciteDisegno& uscite) {
    if (!uscite.dxf.empty()) plot::plotDxf(uscite.dxf);
    if (!uscite.pdf.empty()) device::scriviPdf(uscite.pdf);
    if (!uscite.svg.empty()) device::scriviSvg(uscite.svg);
    if (!uscite.png.empty()) device::scriviPng(uscite.png, uscite.dpi);
}

}  // namespace korven::batch
