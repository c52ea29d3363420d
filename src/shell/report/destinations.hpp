#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "base/dialogo.hpp"
#include "base/process/processi.hpp"
#include "commands/desktop_forms.hpp"
#include "commands/report_export.hpp"
#include "markup/report_printer.hpp"
#include "shell/report/form1.hpp"
#include "shell/viewer/dialogs.hpp"
#include "shell/viewer/ports.hpp"

class QPrinter;

namespace korven::shell {

/// The ways out of the program that a report has on the desktop.
class DestinazioniRelazione {
 public:
    /// @param principale  the main form, above which windows and dialogs appear; not owned, like
    ///                    the dialog
    /// @param stampante   the printer of the program, as the printer set-up left it
    /// @param outdoc      path of the converter
    DestinazioniRelazione(QWidget& principale, base::Dialogo& dialogo,
                          std::function<QPrinter&()> stampante, std::string outdoc);

    /// Shows the report on the form `Form1`, which stays while the program goes on.
    void anteprima(const std::string& relazione);
    /// Prints on the printer, or into a PDF file that the user names where there is none.
    void stampa(const std::string& relazione);
    void esportaDoc(const std::string& relazione);
    void esportaTxt(const std::string& relazione);

    /// The preview; null before the first report and when the main form is gone.
    [[nodiscard]] Form1* forma() const { return forma_; }

 private:
    [[nodiscard]] commands::PorteEsportazione porte();
    [[nodiscard]] std::string chiediNome(const std::string& proposto);
    [[nodiscard]] std::unique_ptr<markup::ReportPrinter> apriStampante();

    QWidget& principale_;
    base::Dialogo& dialogo_;
    std::function<QPrinter&()> stampante_;
    PorteDesktop dialoghi_;
    base::Processi programmi_;
    std::string outdoc_;
    QPointer<Form1> forma_;  // belongs to the main form
};

/// The save dialog that asks where to print the report when there is no printer.
[[nodiscard]] FileDaSalvare richiestaPdfRelazione();

/// Plugs the report's ways out into the commands of the program.
/// @param principale, dialogo, stampante, outdoc  as for `DestinazioniRelazione`
void collegaRelazione(commands::FormeProgramma& forme, QWidget& principale, base::Dialogo& dialogo,
                      std::function<QPrinter&()> stampante,
                      std::string outdoc = commands::convertitore());

}  // namespace korven::shell
