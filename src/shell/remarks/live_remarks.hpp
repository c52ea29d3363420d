#pragma once

#include <QObject>
#include <QPointer>

#include "commands/desktop_forms.hpp"
#include "commands/open_remarks.hpp"

class QTimer;

namespace korven::shell {

class FinestraOsservazioni;
class Menu1;
class VitaProgetto;

/// Keeps the remarks on the open project in sight: their number in the status line of the main form
/// after each of its commands and while a form is filled, all of them in a window of their own when
/// they are asked for.
class OsservazioniVive : public QObject {
 public:
    /// Becomes a child of the main form.
    /// @param guida  opens the help at the page of a name; empty without a help file
    OsservazioniVive(Menu1& principale, VitaProgetto& vita,
                     std::function<void(const std::string&)> guida);

    /// Shows the window that lists them, before all others.
    void apriFinestra();

 private:
    void guarda();
    void mostra();
    void apriCampo(const review::Osservazione& osservazione);

    Menu1& principale_;
    VitaProgetto& vita_;
    std::function<void(const std::string&)> guida_;
    commands::OsservazioniAperte aperte_;
    QTimer* riposo_;
    QPointer<FinestraOsservazioni> finestra_;
};

/// Plugs the remarks into the main form, for as long as it lives. @pre the help is plugged in, if
/// there is one
void collegaOsservazioni(commands::FormeProgramma& forme, Menu1& principale, VitaProgetto& vita);

}  // namespace korven::shell
