#pragma once

#include <QObject>
#include <QPointer>
#include <memory>
#include <string>
#include <vector>

#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"

class QWidget;

namespace korven::shell {

class FinestraGuida;

/// The one door to the help: menu commands, help buttons and F1 go through it. It reads the help
/// file when it is first needed and keeps one window, which is usable beside a modal form.
///
/// F1 in any window opens the page of the place. A window says its entry of the table of help
/// contexts in the property "contestoGuida" (int), or has its name in help/places.hpp; one that
/// shows things of several pages says the page of the current one in "paginaGuida" (text). A
/// control may say its field in the property "campoGuida" (text or number, as in "@campo" of the
/// help), else its object name is taken.
class PortaGuida : public QObject {
 public:
    /// Becomes a child of the main form.
    /// @param dialogo  told of a broken help file; must outlive the door
    PortaGuida(QWidget& principale, base::Dialogo& dialogo);
    ~PortaGuida() override;

    /// The page of a help context number, at the first of these places that it has; the first page
    /// of the help if there is none. Says in a box when the help file can't be read.
    void apri(int contesto, const std::vector<std::string>& ancore = {});
    /// The page of a name; the first page of the help if there is none.
    void apriPagina(const std::string& nome);
    /// The contents.
    void sommario() { apri(0); }

    /// The window; nullptr before it was first opened.
    [[nodiscard]] FinestraGuida* finestra() { return finestra_.get(); }

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    bool f1(QWidget& controllo);
    bool carica();
    void mostraFinestra();
    void aggancia();
    void agganciaDopo();

    QWidget& principale_;
    base::Dialogo& dialogo_;
    std::unique_ptr<FinestraGuida> finestra_;
    QPointer<QWidget> sopra_;  // the window that the help belongs to for the moment
};

/// Plugs the help into the commands of the program: the door lives as long as the main form. Where
/// the program has no help file, nothing is plugged in: the commands can't be chosen then, and the
/// help buttons of the forms show the reference of their mask.
void collegaGuida(commands::FormeProgramma& forme, QWidget& principale);

}  // namespace korven::shell
