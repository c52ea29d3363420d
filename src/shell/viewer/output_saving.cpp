#include "shell/viewer/output_saving.hpp"

#include <QLabel>
#include <utility>

#include "base/colon.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/failure_box.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

FileDaSalvare richiestaUscita(const char* titolo, const std::string& progetto,
                              std::string_view parola, std::vector<TipoFile> tipi) {
    const std::string percorso = base::nomeUscita(progetto, parola, tipi.front().estensione);
    return {base::traduttore(titolo), percorso.substr(percorso.rfind('/') + 1), std::move(tipi)};
}

std::optional<std::string> salvaUscita(
    FileDaSalvare richiesta, PorteGrafica& porte, base::Dialogo& dialogo,
    const std::function<void(const std::string& percorso)>& scrivi,
    const std::function<std::string(const std::string& percorso)>& daProporre) {
    while (const auto percorso = porte.fileDaSalvare(richiesta)) {
        const bool fatto = conAvviso(dialogo, [&] {
            scrivi(*percorso);
            porte.scritto(*percorso);
        });
        if (fatto) return percorso;
        if (daProporre) richiesta.nome = daProporre(*percorso);
    }
    return {};
}

void salvaDelProgetto(FileDaSalvare richiesta, PorteGrafica& porte, base::Dialogo& dialogo,
                      QLabel& nota, const std::function<void(const std::string&)>& scrivi) {
    const auto scritto =
        salvaUscita(std::move(richiesta), porte, dialogo, [&](const std::string& dove) {
            project::controllaUscita(dove, project::fileCorrente);
            scrivi(dove);
        });
    if (scritto) nota.setText(qt(base::conDuePunti(base::traduttore("File scritto"), *scritto)));
}

}  // namespace korven::shell
