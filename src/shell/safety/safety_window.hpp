#pragma once

#include <functional>
#include <string>

#include "commands/desktop_forms.hpp"
#include "shell/companions/companion_window.hpp"
#include "shell/live/live_view.hpp"
#include "tables/safety_summary.hpp"

class QLabel;

namespace korven::shell {

class PagineProspetti;
class VistaMeccanismo;
class VistaProspetto;

/// How far the open project is from falling, as it is typed: the verdict, the margin by stage, the
/// statics beside the report, the error of the mesh, the picture of the mechanism. What is still
/// being computed leaves what was known before in grey.
class FinestraSicurezza : public FinestraCompagna {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraSicurezza(QWidget& principale, VitaProgetto& vita,
                      std::function<void(const std::string&)> guida);

 protected:
    void showEvent(QShowEvent* evento) override;

 private:
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void segui();
    void mostra(const tables::Riassunto& riassunto);

    VitaProgetto& vita_;
    QLabel* verdetto_ = nullptr;
    PagineProspetti* pagine_ = nullptr;
    VistaProspetto *margine_ = nullptr, *statica_ = nullptr, *maglia_ = nullptr;
    VistaMeccanismo* meccanismo_ = nullptr;
    QLabel* frasi_ = nullptr;
};

/// Plugs the window into the item of the menu.
void collegaSicurezza(commands::FormeProgramma& forme, QWidget& principale, VitaProgetto& vita);

}  // namespace korven::shell
