#pragma once

#include <QDialog>

#include "commands/desktop_forms.hpp"
#include "commands/rescue/rescue_offer.hpp"

class QPushButton;

namespace korven::shell {

/// Shows the two states of a project that was just opened, its file and unsaved work, with all in
/// which they differ, and lets its user choose. Enter takes the unsaved work, but where the file is
/// the later of the two: there, as with Esc, it is decided another time.
class FormaRecupero : public QDialog {
 public:
    /// @param offerta  its parts must outlive the form
    FormaRecupero(const commands::OffertaRecupero& offerta, QWidget* padre);

    [[nodiscard]] commands::SceltaRecupero scelta() const { return scelta_; }

 private:
    QWidget* fareStati();
    QWidget* fareDifferenze();
    QWidget* farePulsanti();
    QPushButton* farePulsante(const char* nome, const char* testo, commands::SceltaRecupero scelta,
                              QWidget* riga);

    const commands::OffertaRecupero& offerta_;
    commands::SceltaRecupero scelta_ = commands::SceltaRecupero::dopo;
};

/// Plugs the form into the opening of projects.
void collegaRecupero(commands::FormeProgramma& forme, QWidget& principale);

}  // namespace korven::shell
