#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/dialogo.hpp"
#include "comparison/live_comparison.hpp"
#include "shell/comparison/background_comparison.hpp"
#include "shell/live/live_view.hpp"
#include "shell/tables/following_window.hpp"
#include "shell/viewer/ports.hpp"

class QComboBox;
class QPushButton;

namespace korven::shell {

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
class FinestraConfronto : public FinestraProspetti {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraConfronto(QWidget& principale, VitaProgetto& vita, PorteConfronto porte,
                      std::function<void(const std::string&)> guida);

 protected:
    int osserva() override;
    void chiedi() override;
    void lascia() override;
    void mostra() override;

 private:
    QWidget* fareRiga();
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void scegli(int voce);
    void chiediAltro();
    void accogli(int numero, const RispostaConfronto& risposta);
    void riempi();
    void seguiPagina();
    void salvaPdf();

    PorteConfronto porte_;
    comparison::ConfrontoVivo vivo_;
    std::shared_ptr<const comparison::Confronto> mostrato_;  // in tables and curves
    QComboBox* con_ = nullptr;
    VistaProspetto *campi_ = nullptr, *risultati_ = nullptr, *fasi_ = nullptr,
                   *osservazioni_ = nullptr;
    VistaDocumento* curve_ = nullptr;
    QPushButton* pdf_ = nullptr;
    ConfrontiInDisparte* lavoro_;
};

}  // namespace korven::shell
