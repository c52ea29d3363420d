#pragma once

#include <functional>
#include <string>

#include "commands/desktop_forms.hpp"
#include "shell/companions/companion_window.hpp"
#include "shell/live/live_view.hpp"
#include "tables/result_table.hpp"

class QComboBox;
class QLabel;

namespace korven::shell {

class PagineProspetti;
class VistaCurve;
class VistaProspetto;

/// The results of the open project as it is typed: nodes of the stage shown or of the envelope,
/// anchors by stage, checks of the section, all stages, curves. Stage and envelope are those of the
/// picture of the main form, chosen here or there.
class FinestraRisultati : public FinestraCompagna {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraRisultati(QWidget& principale, VitaProgetto& vita,
                      std::function<void(const std::string&)> guida);

 protected:
    void showEvent(QShowEvent* evento) override;

 private:
    void farePaginaCurve();
    QWidget* fareRiga();
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void segui();
    void seguiScelta();
    void seguiPagina();
    void mostra(const tables::Prospetto& prospetto, VistaProspetto& vista);
    void mostraVerifiche();
    void mostraCurve();
    void scegli(int fase);

    VitaProgetto& vita_;
    QComboBox* scelta_ = nullptr;
    PagineProspetti* pagine_ = nullptr;
    VistaProspetto *nodi_ = nullptr, *tiranti_ = nullptr, *verifiche_ = nullptr, *fasi_ = nullptr;
    VistaCurve* curve_ = nullptr;
    QLabel* nota_ = nullptr;
};

/// Plugs the window into the item of the menu.
void collegaRisultati(commands::FormeProgramma& forme, QWidget& principale, VitaProgetto& vita);

}  // namespace korven::shell
