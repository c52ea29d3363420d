#pragma once

#include <functional>
#include <string>

#include "review/remark.hpp"
#include "shell/companions/companion_window.hpp"

class QLabel;
class QListWidget;
class QPushButton;

namespace korven::shell {

/// The window that lists the remarks on the open project, the heaviest first, and follows it.
///
/// Keys: Enter on a remark opens the form at its field, F1 the help at its page.
class FinestraOsservazioni : public FinestraCompagna {
 public:
    struct Azioni {
        std::function<bool(const review::Osservazione&)> apribile;  ///< a form shows its field
        std::function<void(const review::Osservazione&)> apri;
        std::function<void(const std::string& pagina)> guida;  ///< empty without a help file
    };

    /// @param principale  the main form: what belongs to it can't be opened while it is not in use
    FinestraOsservazioni(QWidget& principale, Azioni azioni);

    /// Shows these, the same remark current as before if it is still among them.
    /// @param conteggio  the line above them
    void mostra(const review::Osservazioni& osservazioni, const std::string& conteggio);

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    QWidget* farePulsanti();
    [[nodiscard]] const review::Osservazione* corrente() const;
    void scelta();
    void apri();
    void mostraGuida();

    const Azioni azioni_;
    review::Osservazioni mostrate_;
    QLabel* conteggio_;
    QListWidget* lista_;
    QPushButton* apri_ = nullptr;
    QPushButton* guida_ = nullptr;
};

}  // namespace korven::shell
