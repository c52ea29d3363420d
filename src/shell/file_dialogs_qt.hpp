#pragma once

#include <QPointer>
#include <QWidget>

#include "commands/document_ports.hpp"

namespace korven::shell {

/// The file dialogs of the desktop. That to save is native where the desktop offers one; that to
/// open is Qt's own, which takes the name of a new project too. They begin in the current folder,
/// and a name that was chosen makes its folder the current one.
class DialogoFileQt : public commands::DialogoFile {
 public:
    /// The window over which the dialogs appear.
    void sopra(QWidget* finestra) { finestra_ = finestra; }

    [[nodiscard]] std::string apri(const std::string& attuale) override;
    [[nodiscard]] std::string nuovo(const std::string& proposta) override;
    [[nodiscard]] std::optional<std::string> salva(const std::string& proposta) override;

 private:
    QPointer<QWidget> finestra_;
};

/// The dialog for a project that is only read: it takes no name that no file has, and the current
/// folder stays.
/// @return its absolute path; empty when it was given up
[[nodiscard]] std::string chiediProgetto(QWidget* sopra);

/// The dialog for another name of the text export. Takes any name and asks nothing about it.
/// @param proposto  path that it begins with
/// @return the path chosen; empty when it was given up
[[nodiscard]] std::string chiediNomeTxt(QWidget* sopra, const std::string& proposto);

}  // namespace korven::shell
