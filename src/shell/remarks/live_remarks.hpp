#pragma once

#include <QObject>
#include <QPointer>

#include "commands/desktop_forms.hpp"
#include "commands/open_remarks.hpp"
#include "shell/remarks/background_review.hpp"

class QTimer;

namespace korven::shell {

class FinestraOsservazioni;
class Menu1;

/// Keeps the remarks on the open project in sight: their number in the status line of the main form
/// after each of its commands, all of them in a window of their own when they are asked for.
class OsservazioniVive : public QObject {
 public:
    /// Becomes a child of the main form.
    /// @param guida  opens the help at the page of a name; empty without a help file
    OsservazioniVive(Menu1& principale, std::function<void(const std::string&)> guida);

    /// Shows the window that lists them, before all others.
    void apriFinestra();

 private:
    void guarda();
    void chiedi();
    void rispondi(int numero, review::Osservazioni risultati);
    void mostra();
    void apriCampo(const review::Osservazione& osservazione);

    Menu1& principale_;
    std::function<void(const std::string&)> guida_;
    commands::OsservazioniAperte aperte_;
    RevisioneInDisparte revisione_;
    QTimer* riposo_;
    QPointer<FinestraOsservazioni> finestra_;
};

/// Plugs the remarks into the main form, for as long as it lives. @pre the help is plugged in, if
/// there is one
void collegaOsservazioni(commands::FormeProgramma& forme, Menu1& principale);

}  // namespace korven::shell
