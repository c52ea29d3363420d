#pragma once

#include <QWidget>
#include <string>

#include "help/pages.hpp"

class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QToolButton;
class QTreeWidget;

namespace korven::shell {

class VistaGuida;

/// The window of the help: contents at the left, the page at the right, and a search whose results
/// take the place of the contents.
///
/// Keys: Alt+Left and Alt+Right through the pages seen, Ctrl+F to the search, Alt+Home to the first
/// page, Ctrl and plus, minus, 0 for the size of the letters, Esc closes.
class FinestraGuida : public QWidget {
 public:
    explicit FinestraGuida(help::Guida guida);

    /// Shows a page, at one of its places if it has it.
    void mostra(const help::PaginaGuida& pagina, const std::string& ancora = {});
    /// Shows the first page, with the contents beside it.
    void mostraSommario();

    [[nodiscard]] const help::Guida& guida() const { return guida_; }

 protected:
    void closeEvent(QCloseEvent* evento) override;

 private:
    QWidget* fareBarra();
    QWidget* fareColonna();
    void fareScorciatoie();
    void riempiAlbero();
    void cerca(const QString& testo);
    void apriTrovata();
    void segui(const QUrl& indirizzo);
    void ingrandisci(int passi);

    const help::Guida guida_;
    VistaGuida* pagina_ = nullptr;
    QLineEdit* cerca_ = nullptr;
    QStackedWidget* colonna_ = nullptr;
    QTreeWidget* albero_ = nullptr;
    QWidget* risultati_ = nullptr;
    QLabel* conto_ = nullptr;
    QListWidget* trovate_ = nullptr;
    QToolButton* indietro_ = nullptr;
    QToolButton* avanti_ = nullptr;
};

}  // namespace korven::shell
