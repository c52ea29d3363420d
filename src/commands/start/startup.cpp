#include "commands/start/startup.hpp"

#include "base/folders/leftovers.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "plot/plot_configuration.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

void leggiDatiProgramma(masks::Maschere& maschere) {
    maschere.leggiMaschereProgramma();
    static_cast<void>(plot::leggiConfigurazione(
        plot::fileConfigurazione(base::siglaLingua(base::linguaCorrente()))));
}

void avvia(const std::string& argomento, Documento& documento, const PorteAvvio& porte) {
    project::fileCorrente.clear();
    base::togliCartelleProvvisorie();
    if (porte.leggiMaschere) porte.leggiMaschere();
    // A file is read into a project that no reset has touched: what an old file lacks is then 0.
    if (!argomento.empty() && documento.apriAllAvvio(argomento)) return;
    project::azzeraProgetto();
    if (argomento.empty() && porte.saluta) porte.saluta();
}

}  // namespace korven::commands
