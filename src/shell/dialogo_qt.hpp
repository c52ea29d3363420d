#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QWidget>

#include "base/dialogo.hpp"

namespace korven::shell {

/// Boxes and the shape of the pointer on the desktop. Esc answers a question with the least that it
/// can do: cancel, or no where there is no cancel; Enter takes yes, or no where a warning asks.
class DialogoQt : public base::Dialogo {
 public:
    /// The window over which the boxes appear; none before there is one. While it is disabled they
    /// appear over the one that takes its place.
    void sopra(QWidget* finestra) { finestra_ = finestra; }

    void messaggio(std::string_view testo, std::string_view titolo, base::Icona icona) override;
    base::Risposta domanda(std::string_view testo, std::string_view titolo, base::Pulsanti pulsanti,
                           base::Icona icona) override;
    base::Risposta domandaInformata(std::string_view testo, std::string_view titolo,
                                    base::Pulsanti pulsanti, base::Icona icona,
                                    std::string_view informazione) override;
    void puntatore(base::Puntatore forma) override;

 private:
    [[nodiscard]] QWidget* genitore() const;

    QPointer<QWidget> finestra_;
    bool clessidra_ = false;
};

}  // namespace korven::shell
