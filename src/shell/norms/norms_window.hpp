#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/dialogo.hpp"
#include "desk/code_document.hpp"
#include "desk/live_codes.hpp"
#include "shell/live/live_view.hpp"
#include "shell/norms/background_codes.hpp"
#include "shell/tables/following_window.hpp"
#include "shell/viewer/ports.hpp"

class QPushButton;

namespace korven::shell {

class SceltaNorma;
class VistaProspetto;

/// What the window of the codes needs of the outside.
struct PorteNorme {
    base::Dialogo& dialogo;
    std::function<factors::Catalogo()> leggi;  ///< the codes as they are in their files now
    std::shared_ptr<PorteGrafica> file;        ///< the dialog to save, and the disk
};

/// The open project under the combinations of a code, as it is typed: the effects of each and their
/// envelope, the checks, the anchors, the factors with their sources. What is still being computed
/// leaves what was known before in grey.
class FinestraNorme : public FinestraProspetti {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraNorme(QWidget& principale, VitaProgetto& vita, PorteNorme porte,
                  std::function<void(const std::string&)> guida);

 protected:
    int osserva() override;
    void chiedi() override;
    void lascia() override;
    void mostra() override;
    void appare() override { leggi(); }
    /// Meanwhile the user may have written combinations into the file.
    void torna() override { leggi(); }

 private:
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void leggi();
    void scegli();
    void accogli(int numero, const RispostaNorma& risposta);
    void riempi();
    [[nodiscard]] desk::ProgettoDetto progetto() const;
    void salva(const char* titolo, const TipoFile& tipo,
               const std::function<void(const std::string&)>& scrivi);

    PorteNorme porte_;
    desk::NormeVive vive_;
    std::shared_ptr<const factors::Combinazioni> mostrate_;  // in the tables
    SceltaNorma* scelta_ = nullptr;
    VistaProspetto *effetti_ = nullptr, *verifiche_ = nullptr, *tiri_ = nullptr,
                   *fattori_ = nullptr, *fonti_ = nullptr, *note_ = nullptr;
    QPushButton *pdf_ = nullptr, *xlsx_ = nullptr;
    NormeInDisparte* lavoro_;
};

}  // namespace korven::shell
