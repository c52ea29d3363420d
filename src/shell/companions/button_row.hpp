#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <functional>
#include <string_view>

namespace korven::shell {

/// The row of buttons at the foot of a window beside the main form. Enter presses the button that
/// has the focus.
class FilaPulsanti : public QWidget {
 public:
    explicit FilaPulsanti(QWidget& finestra);

    /// Adds a button at the end of the row.
    /// @param nome    object name
    /// @param testo   caption, an Italian key
    /// @param figura  name of its icon (shell/icons)
    template <class Azione>
    QPushButton* aggiungi(const char* nome, const char* testo, std::string_view figura,
                          Azione azione) {
        QPushButton* fatto = nuovo(nome, testo, figura);
        connect(fatto, &QPushButton::clicked, this, azione);
        return fatto;
    }
    /// Adds the button `guida`.
    /// @param apre  opens the help; empty without a help file: the button stays hidden
    QPushButton* aggiungiGuida(std::function<void()> apre);
    /// Ends the row: at the right `chiudi`, which closes the window.
    void finisci();

 private:
    QPushButton* nuovo(const char* nome, const char* testo, std::string_view figura);

    QWidget& finestra_;
    QHBoxLayout* fila_;
};

}  // namespace korven::shell
