#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/dialogo.hpp"
#include "desk/study_tables.hpp"
#include "shell/companions/companion_window.hpp"
#include "shell/live/live_view.hpp"
#include "shell/study/background_study.hpp"
#include "shell/viewer/ports.hpp"

class QComboBox;
class QLabel;
class QModelIndex;
class QProgressBar;
class QPushButton;
class QTimer;

namespace korven::shell {

class FormaStudio;
class PagineProspetti;
class VistaDocumento;
class VistaProspetto;

/// What the window of studies needs of the outside.
struct PorteStudio {
    base::Dialogo& dialogo;
    std::shared_ptr<PorteGrafica> file;  ///< the dialog to save, and the disk
    /// Makes these data the open project's, as a step that can be taken back.
    /// @return false while no command may change the project
    std::function<bool(const project::DatiProgetto&)> prendi;
};

/// Many variants of the open project: what varies at the left, what comes of it at the right, as a
/// chart, a table and in words. They are computed beside the forms when it is asked for, with a
/// progress, and can be stopped; what is done then stays. A variant of the table can be taken into
/// the project.
class FinestraStudio : public FinestraCompagna {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraStudio(QWidget& principale, VitaProgetto& vita, PorteStudio porte,
                   std::function<void(const std::string&)> guida);

 protected:
    void showEvent(QShowEvent* evento) override;

 private:
    QWidget* fareRisultati(QWidget* meta);
    QWidget* fareAttesa();
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void calcola();
    void basta();
    void accogli(const DomandaStudio& domanda, const RispostaStudio& risposta);
    void segui();
    void seguiScritto();
    void avanza();
    void riempi();
    void seguiCampioni(desk::ProspettiCampioni prospetti);
    void disegna();
    void prendi(const QModelIndex& dove);
    [[nodiscard]] std::string risultato() const;
    [[nodiscard]] desk::ProgettoDetto progetto() const;
    void scrivi(const std::string& dove);
    void esporta();

    VitaProgetto& vita_;
    PorteStudio porte_;
    std::shared_ptr<const desk::StudioFatto> fatto_;
    DomandaStudio inCorso_;  // without a study: none
    QTimer* ritmo_;
    FormaStudio* forma_ = nullptr;
    QComboBox* risultato_ = nullptr;
    PagineProspetti* pagine_ = nullptr;
    VistaDocumento* grafico_ = nullptr;
    VistaProspetto *varianti_ = nullptr, *riassunto_ = nullptr, *distribuzioni_ = nullptr,
                   *correlazioni_ = nullptr;
    QWidget* attesa_ = nullptr;  // shown while a study is being computed
    QProgressBar* barra_ = nullptr;
    QLabel* nota_ = nullptr;
    QPushButton *calcola_ = nullptr, *prendi_ = nullptr, *esporta_ = nullptr;
    StudiInDisparte* lavoro_;
};

}  // namespace korven::shell
