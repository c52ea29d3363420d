#include "batch/run/drawing_formats.hpp"

#include <cassert>
#include <optional>
#include <string>
#include <vector>

#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "device/drawing_files.hpp"
#include "device/drawing_fonts.hpp"
#include "device/graphics_session.hpp"
#include "plot/drawing_watch.hpp"
#include "plot/dxf/export.hpp"
#include "plot/plot_engine.hpp"
#include "plot/text_width.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "review/log_limit.hpp"

namespace korven::batch {

void controllaUscite(const FormatiDisegno& formati) {
    const std::string& progetto = project::fileCorrente;
    const std::string risultati = progetto.empty() ? "" : base::nomeRisultati(progetto);
    const auto file = formati.file();
    for (std::size_t i = 0; i < file.size(); ++i) {
        project::controllaUscita(file[i], risultati);
        for (std::size_t j = 0; j < i; ++j)
            if (base::stessoFile(file[i], file[j]))
                throw base::ErroreFile(file[i], 0,
                                       base::traduttore("due disegni avrebbero lo stesso nome") +
                                           base::duePunti() + file[j]);
    }
    controllaNomi(file, fileDelProgetto());
}

class AmbienteDisegno::Interruzione : public plot::SorvegliaDisegno {
 public:
    bool fermare() override { return Interruzioni::chiesta() != 0; }
};

// The faces whose widths are known are those of most drawings, and a DXF file of them needs no
// fonts, which take time to be found. Any other face is measured, whatever files are asked for.
class AmbienteDisegno::Metrica : public plot::MetricaTesto {
 public:
    explicit Metrica(bool dipinti) {
        if (dipinti) sessione_.emplace();
    }
    double larghezza(std::string_view carattere, double altezza,
                     std::string_view testo) const override {
        if (!sessione_ && !plot::MetricaStimata::conosce(carattere)) sessione_.emplace();
        return sessione_ ? device::MetricaQt().larghezza(carattere, altezza, testo)
                         : plot::MetricaStimata().larghezza(carattere, altezza, testo);
    }

 private:
    mutable std::optional<device::SessioneGrafica> sessione_;
};

AmbienteDisegno::AmbienteDisegno(bool dipinti)
    : interruzione_(std::make_unique<Interruzione>()),
      metrica_(std::make_unique<Metrica>(dipinti)) {
    plot::statoPlot.sorveglia = interruzione_.get();
    plot::statoPlot.metrica = metrica_.get();
}

AmbienteDisegno::~AmbienteDisegno() {
    plot::statoPlot.metrica = nullptr;
    plot::statoPlot.sorveglia = nullptr;
}

void scriviDisegno(const FormatiDisegno& formati, const base::Disco& disco, Esito& esito) {
    assert(plot::statoPlot.metrica);
    assert(!formati.dipinte() || device::SessioneGrafica::aperta());
    if (!formati.dxf.empty()) plot::plotDxf(formati.dxf, disco);
    if (!formati.pdf.empty()) device::scriviPdf(formati.pdf, formati.foglio, disco);
    if (!formati.svg.empty()) device::scriviSvg(formati.svg, disco);
    if (!formati.png.empty())
        device::scriviPng(formati.png, formati.dpi, device::fasciaPredefinita, disco);
    for (const std::string& file : formati.file()) esito.fileScritti.push_back(file);
}

int disegna(const FormatiDisegno& formati, const base::Disco& disco, Esito& esito,
            const std::function<bool()>& disegno) {
    controllaUscite(formati);
    const Interruzioni interruzioni;
    const AmbienteDisegno ambiente(formati.dipinte());
    if (!disegno()) return nonEseguito;
    scriviDisegno(formati, disco, esito);
    return fatto;
}

bool stratigrafiaTroppoAlta(Esito& esito) {
    const std::string perche = review::rifiutoStratigrafia(project::Progetto);
    if (perche.empty()) return false;
    racconta({perche}, esito);
    return true;
}

}  // namespace korven::batch
