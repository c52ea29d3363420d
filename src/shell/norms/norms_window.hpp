#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/dialogo.hpp"
#include "desk/code_document.hpp"
#include "desk/live_codes.hpp"
#include "shell/companions/companion_window.hpp"
#include "shell/live/live_view.hpp"
#include "shell/norms/background_codes.hpp"
#include "shell/viewer/ports.hpp"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTimer;

namespace korven::shell {

class PagineProspetti;
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
class FinestraNorme : public FinestraCompagna {
    Q_OBJECT
 public:
    /// @param guida  opens the help at the page of a name; empty without a help file
    FinestraNorme(QWidget& principale, VitaProgetto& vita, PorteNorme porte,
                  std::function<void(const std::string&)> guida);

 protected:
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void changeEvent(QEvent* evento) override;

 private:
    QWidget* fareScelte();
    QWidget* fareCarichi();
    void farePagine();
    QWidget* farePulsanti(const std::function<void(const std::string&)>& guida);
    void leggi();
    void scegliNatura();
    void guarda();
    void guardaOra();
    void ferma();
    void accogli(int numero, const RispostaNorma& risposta);
    void mostra();
    void riempi();
    void svuota(const QString& perche);
    [[nodiscard]] desk::ProgettoDetto progetto() const;
    void salva(const char* titolo, const TipoFile& tipo,
               const std::function<void(const std::string&)>& scrivi);

    VitaProgetto& vita_;
    PorteNorme porte_;
    desk::NormeVive vive_;
    std::shared_ptr<const factors::Combinazioni> mostrate_;  // in the tables
    int chiesta_ = 0;                                        // the question in progress; 0: none
    QTimer* riposo_;
    QComboBox* norma_ = nullptr;
    QCheckBox *monte_ = nullptr, *scavo_ = nullptr, *testa_ = nullptr;
    QLabel *frasi_ = nullptr, *nota_ = nullptr;
    PagineProspetti* pagine_ = nullptr;
    VistaProspetto *effetti_ = nullptr, *verifiche_ = nullptr, *tiri_ = nullptr,
                   *fattori_ = nullptr, *fonti_ = nullptr, *note_ = nullptr;
    QPushButton *pdf_ = nullptr, *xlsx_ = nullptr;
    NormeInDisparte* lavoro_;
};

}  // namespace korven::shell
