#pragma once

#include <QMainWindow>

#include "commands/desktop_program.hpp"
#include "commands/document_ports.hpp"

class QAction;
class QLabel;
class QMenu;
class QSessionManager;
class QToolButton;

namespace korven::shell {

class EtichettaAccorciata;
class CorniceFigura;

/// The main form `menu1`: the menu, the picture and the status line. It hands every command over to
/// the program and decides nothing.
class Menu1 : public QMainWindow, public commands::FinestraPrincipale {
    Q_OBJECT
 public:
    Menu1();

    /// Builds the menu for the program whose commands it gives, captions in the language in force.
    /// @param programma  not owned; must outlive the form
    void collega(commands::Programma& programma);

    /// The command of an item, as from the menu; nothing where its form is missing.
    void esegui(const commands::VoceMenu& voce);

    /// The session manager wants the program to end: the question about unsaved work where it lets
    /// the user be asked, a rescue file where it does not.
    void fineSessione(QSessionManager& gestore);

    /// The same without the session manager. Once the question is answered the form closes without
    /// asking again; but another program may call the end of the session off, and then the next
    /// command makes the question due once more.
    /// @param chiedibile  whether the user may be asked
    /// @return false to ask the desktop to stay
    [[nodiscard]] bool sessioneFinisce(bool chiedibile);

    /// Opens the form of a field of the open project, at the field.
    void editaDa(const masks::PostoCampo& posto);

    /// Makes other data those of the open project (`commands::Programma::prendi`).
    bool prendi(const project::DatiProgetto& dati, const std::string& nome);

    /// Takes the picture of the open project, which it owns from now on (picture_frame.hpp).
    void accogliFigura(QWidget* figura, QSize emblema);
    /// Shows it: a project is open.
    void mostraFigura();

    /// Shows what has become of the project: after every command, and when one was opened without.
    void aggiorna();

    /// Shows how many remarks there are on the project; nothing for an empty text.
    /// @param gravi  one of them is more than to be looked at
    void osservazioni(const std::string& conteggio, bool gravi);

    void titolo(const std::string& testo) override;
    void stato(const std::string& testo) override;
    void statoInBreve(const std::string& breve, const std::string& intero) override;

 signals:
    /// The project may be another one than before.
    void aggiornata();

 protected:
    void closeEvent(QCloseEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    QToolButton* fareOsservazioni();
    void costruisciMenu();
    void riempi(QMenu& menu, std::vector<commands::VoceMutevole> voci);
    void chiediAllApertura(const QMenu& menu, QAction& azione, const commands::VoceMenu& voce);
    commands::Programma* programma_ = nullptr;
    CorniceFigura* cornice_;
    EtichettaAccorciata* stato_;
    QToolButton* osservazioni_;
    QLabel* modifiche_;
    bool salutata_ = false;  // the question about unsaved work has been answered
};

}  // namespace korven::shell
