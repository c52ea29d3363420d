#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/dialogo.hpp"
#include "base/disk.hpp"
#include "commands/document_ports.hpp"
#include "commands/file_on_disk.hpp"
#include "commands/project_history.hpp"
#include "commands/rescue/rescue_offer.hpp"

namespace korven::commands {

/// The open project as a document: the commands that open, save and leave it, with their questions.
/// Works on `Progetto`, `fileCorrente` and `modificato`.
class Documento {
 public:
    Documento(base::Dialogo& dialogo, DialogoFile& nomi, FinestraPrincipale& finestra,
              const base::Disco& disco = base::discoDiSistema())
        : dialogo_(dialogo), nomi_(nomi), finestra_(finestra), disco_(disco) {}

    /// What offers the unsaved work that is found of a project once it is open, as the last step of
    /// every opening (rescue/rescue_offer.hpp). Without it none is looked for.
    void offriCon(OffreRecupero offre) { offre_ = std::move(offre); }

    /// Asks about unsaved changes, then for a name. An existing file is read; a name without a file
    /// begins a new project, and no file exists until it is saved.
    /// @throws base::ErroreFile if the file is no project; the open project is then as it was
    void fileApri();

    /// The same with a name that is known already: a file dropped on the main form.
    void apri(const std::string& nome);

    /// The same with a name of `progettiRecenti`. One whose file is gone is told in a box: it may
    /// come back with its disk.
    void apriRecente(const std::string& percorso);

    /// Asks about unsaved changes, for a pattern and for a name, and begins a project with the
    /// content of the pattern, or with the defaults. No file exists until it is saved; a name that
    /// a file has is taken only after a question. What was copied counts as unsaved. A pattern that
    /// can't be read is told in a box, and the open project stays.
    /// @param chiediModello  the path of the pattern, empty for the defaults; nothing: no project
    void nuovo(const std::function<std::optional<std::string>()>& chiediModello);

    /// Asks about unsaved changes and for a name, and goes on with the content of the open project
    /// under that name, as `nuovo`. Does nothing without a project.
    void duplica();

    /// Reads the project that the command line names, if there is such a file.
    /// @return false if there is none, which the status line then tells; nothing else has changed
    bool apriAllAvvio(const std::string& argomento);

    /// Asks under which name to save, and whether a file of that name may be replaced. A file that
    /// can't be written is told in a box, and the name is asked for again: nothing is lost by it.
    /// @return true when the project was saved
    bool fileSalva();

    /// Asks about unsaved changes. A save that is called off counts as cancel: going on would lose
    /// what its user has just asked to keep.
    /// @return true when the program may end
    [[nodiscard]] bool fine() { return domandaModifiche(); }

    /// The forms that were confirmed since the project was opened.
    [[nodiscard]] StoriaProgetto& storia() { return storia_; }
    [[nodiscard]] const StoriaProgetto& storia() const { return storia_; }

    /// Counts the projects that were opened or begun: another number is another project, or the
    /// same read anew. Saving and copying go on with the one that is open.
    [[nodiscard]] int aperture() const { return aperture_; }

    /// Shows the line of the last file again, when something else has taken the status line.
    void mostraStato();

    /// Brings the rescue file up to what is unsaved (rescue/kept_rescue.hpp). The status line tells
    /// when that begins to fail. @pre no run is in progress
    void custodisci();

 private:
    [[nodiscard]] bool domandaModifiche();
    void apriNome(const std::string& risposta);
    void leggi(const std::string& nome, const std::string& file);
    void comincia(const std::string& nome);
    [[nodiscard]] std::string nomeNuovo(const std::string& proposta);
    [[nodiscard]] bool consente(const std::string& testo, base::Icona icona);
    void mettiNome(const std::string& nome);
    [[nodiscard]] bool accettaNome(const std::string& nome);
    void scrivi(const std::string& nome);
    void aperto();
    void mostra(const std::string& cosa, const std::string& percorso);

    std::string stato_;
    int aperture_ = 0;
    OffreRecupero offre_;
    base::Dialogo& dialogo_;
    DialogoFile& nomi_;
    FinestraPrincipale& finestra_;
    const base::Disco& disco_;
    FileSuDisco suDisco_;
    StoriaProgetto storia_;
};

}  // namespace korven::commands
