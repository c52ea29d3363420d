#include "commands/startup.hpp"

#include "project/project_data.hpp"

namespace korven::commands {

void avvia(const std::string& argomento, Documento& documento, const PorteAvvio& porte) {
    project::fileCorrente.clear();
    if (porte.leggiMaschere) porte.leggiMaschere();
    // A file is read into a project that no reset has touched: what an old file lacks is then 0.
    if (!argomento.empty() && documento.apriAllAvvio(argomento)) return;
    project::azzeraProgetto();
    if (argomento.empty() && porte.saluta) porte.saluta();
}

}  // namespace korven::commands
