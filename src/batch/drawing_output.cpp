#include "batch/drawing_output.hpp"

#include "analysis/output_guard.hpp"
#include "base/file_error.hpp"
#include "base/file_names.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "batch/interruption.hpp"
#include "device/drawing_files.hpp"
#include "device/drawing_fonts.hpp"
#include "device/graphics_session.hpp"
#include "plot/plot_dxf.hpp"
#include "plot/plot_engine.hpp"
#include "project/project_data.hpp"

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
    const std::string& progetto = project::fileCorrente;
    const std::string risultati = progetto.empty() ? "" : base::nomeRisultati(progetto);
    const auto file = uscite.file();
    for (std::size_t i = 0; i < file.size(); ++i) {
        analysis::controllaUscita(file[i], risultati);
        for (std::size_t j = 0; j < i; ++j)
            if (base::stessoFile(file[i], file[j]))
                throw base::ErroreFile(file[i], 0,
                                       base::traduttore("due disegni avrebbero lo stesso nome"));
    }
}

struct AmbienteDisegno::Grafica {
    device::SessioneGrafica sessione;
    device::MetricaQt metrica;
};

AmbienteDisegno::AmbienteDisegno(bool dipinti) {
    plot::statoPlot.interruzione = &Interruzioni::chiesta();
    if (!dipinti) return;
    grafica_ = std::make_unique<Grafica>();
    plot::statoPlot.metrica = &grafica_->metrica;
}

AmbienteDisegno::~AmbienteDisegno() {
    plot::statoPlot.metrica = nullptr;
    plot::statoPlot.interruzione = nullptr;
}

void scriviDisegno(const UsciteDisegno& uscite) {
    if (!uscite.dxf.empty()) plot::plotDxf(uscite.dxf);
    if (!uscite.pdf.empty()) device::scriviPdf(uscite.pdf);
    if (!uscite.svg.empty()) device::scriviSvg(uscite.svg);
    if (!uscite.png.empty()) device::scriviPng(uscite.png, uscite.dpi);
}

}  // namespace korven::batch
