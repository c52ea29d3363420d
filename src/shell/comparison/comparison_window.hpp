#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/dialogo.hpp"
#include "comparison/live_comparison.hpp"
#include "shell/companions/companion_window.hpp"
#include "shell/comparison/background_comparison.hpp"
#include "shell/live/live_view.hpp"
#include "shell/viewer/ports.hpp"

class QComboBox;
class QLabel;
class QPushButton;
class QTimer;

namespace korven::shell {

class PagineProspetti;
class VistaDocumento;
class VistaProspetto;

/// What the window of the comparison needs of the outside.
struct PorteConfronto {
    base::Dialogo& dialogo;
    /// Asks for another project. @return its path; empty when it was given up
    std::function<std::string()> scegli;
    std::shared_ptr<PorteGrafica> file;  ///< the dialog to save, and the disk
};

/// The open project beside another one, or beside itself as it was saved last: the fields that
/// differ, what that does to results and remarks, the curves of both walls. It follows the project
/// while it is typed; what is still being computed leaves what was known before in grey.
class FinestraConfronto : public FinestraCompagna {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraConfronto(QWidget& principale, VitaProgetto& vita, PorteConfronto porte,
                      std::function<void(const std::string&)> guida);

    /// Either project may be another one: looks at both, once typing rests.
    void guarda();

 protected:
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void changeEvent(QEvent* evento) override;

 private:
    QWidget* fareRiga();
    void farePagine();
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void scegli(int voce);
    void chiediAltro();
    void guardaOra();
    void ferma();
    void accogli(int numero, const RispostaConfronto& risposta);
    void mostra();
    void riempi();
    void svuota(const QString& perche);
    void seguiPagina();
    void salvaPdf();

    VitaProgetto& vita_;
    PorteConfronto porte_;
    comparison::ConfrontoVivo vivo_;
    std::shared_ptr<const comparison::Confronto> mostrato_;  // in tables and curves
    int chiesta_ = 0;                                        // the question in progress; 0: none
    QTimer* riposo_;
    QComboBox* con_ = nullptr;
    QLabel *frasi_ = nullptr, *nota_ = nullptr;
    PagineProspetti* pagine_ = nullptr;
    VistaProspetto *campi_ = nullptr, *risultati_ = nullptr, *fasi_ = nullptr,
                   *osservazioni_ = nullptr;
    VistaDocumento* curve_ = nullptr;
    QPushButton* pdf_ = nullptr;
    ConfrontiInDisparte* lavoro_;
};

}  // namespace korven::shell
