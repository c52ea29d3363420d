#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"
#include "document/blocks.hpp"
#include "factors/factor_rows.hpp"
#include "project/project_data.hpp"
#include "shell/annex/annex_work.hpp"
#include "shell/companions/companion_window.hpp"
#include "shell/live/background_work.hpp"
#include "shell/live/live_view.hpp"
#include "shell/viewer/ports.hpp"

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace korven::shell {

class SceltaNorma;
class VistaDocumento;

/// What the window of the annex needs of the outside.
struct PorteAllegato {
    base::Dialogo& dialogo;
    InizioAllegato prepara;
    std::function<factors::Catalogo()> norme;  ///< the codes as they are in their files now
    std::shared_ptr<PorteGrafica> file;        ///< the dialogs to save, and the disk
    /// Prints on the printer that the user chooses; the pages are then those of its sheet.
    /// @throws base::ErroreFile when it fails
    std::function<void(const document::Documento&)> stampa;
};

/// The annex of the open project on its pages: to look at, to print, to save as PDF or for a word
/// processor, with a chapter on a code if one is chosen. It is made when the window is opened and
/// when it is asked for again, beside the forms until its numbers are there; meanwhile it can be
/// stopped, and the pages of before stay. That the project has changed since is told. Where another
/// project is open, or the same under another name, its pages go: no annex may be taken for that of
/// another wall.
class FinestraAllegato : public FinestraCompagna {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraAllegato(QWidget& principale, VitaProgetto& vita, PorteAllegato porte,
                     std::function<void(const std::string&)> guida);

 protected:
    void showEvent(QShowEvent* evento) override;

 private:
    QWidget* fareRiga();
    QWidget* fareAttesa();
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void leggiNorme();
    [[nodiscard]] std::optional<factors::NormaChiesta> norma() const;
    void prepara();
    void ricomincia();
    void preparata(const ComposizioneAllegato& componi);
    void ferma();
    /// Lets go of pages and work that are not of the open project.
    /// @return whether pages went
    bool lasciaAltri();
    void segui();
    void seguiVista();
    void scegliZoom(int voce);
    void stampa();
    void salva(const char* titolo, const TipoFile& tipo,
               const std::function<void(const std::string&)>& scrivi);
    void salvaPdf();
    void salvaDocumento();

    VitaProgetto& vita_;
    PorteAllegato porte_;
    VistaDocumento* vista_ = nullptr;
    SceltaNorma* norma_ = nullptr;
    factors::Catalogo catalogo_;
    QSpinBox* pagina_ = nullptr;
    QLabel *quante_ = nullptr, *nota_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QPushButton *aggiorna_ = nullptr, *stampa_ = nullptr, *pdf_ = nullptr, *doc_ = nullptr;
    QWidget* attesa_ = nullptr;  // shown while the numbers are being computed
    LavoroInDisparte<CalcoloAllegato, ComposizioneAllegato>* lavoro_ = nullptr;
    std::string diPagine_, inPreparazione_;  // the project files of the pages, and of the work
    project::DatiProgetto preparati_;        // that the last work was begun with
    bool inCorso_ = false;
    bool cambiato_ = true;  // the project, since the pages were made
    bool fermato_ = false;  // the last making of pages, by its user
};

}  // namespace korven::shell
