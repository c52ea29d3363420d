#pragma once

#include <QPointer>
#include <QWidget>

#include "commands/document_ports.hpp"

class QFileDialog;

namespace korven::shell {

/// The file dialogs of the desktop, native where it offers them. They begin in the current folder.
class DialogoFileQt : public commands::DialogoFile {
 public:
    /// The window over which the dialogs appear.
    void sopra(QWidget* finestra) { finestra_ = finestra; }

    [[nodiscard]] std::string apri(const std::string& attuale) override;
    [[nodiscard]] std::optional<std::string> salva(const std::string& proposta) override;

 private:
    QPointer<QWidget> finestra_;
};

}  // namespace korven::shell
