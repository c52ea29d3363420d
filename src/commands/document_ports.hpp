#pragma once

#include <optional>
#include <string>

namespace korven::commands {

/// The dialogs that ask for the name of a project. They show files of the pattern `modelloProgetti`
/// whatever the case and add their extension to a name that has none; whether a file may be
/// replaced is asked by the command, not by them. Names are absolute paths, UTF-8.
class DialogoFile {
 public:
    virtual ~DialogoFile() = default;
    /// Asks for a project to open, or for the name of a new one.
    /// @param attuale  path of the open project, empty when there is none
    /// @return the name chosen or typed; empty when the dialog was left without one
    [[nodiscard]] virtual std::string apri(const std::string& attuale) = 0;
    /// Asks for the name of a new project.
    /// @param proposta  file name without a folder; may be empty
    /// @return the name chosen or typed; empty when the dialog was left without one
    [[nodiscard]] virtual std::string nuovo(const std::string& proposta) = 0;
    /// Asks under which name to save.
    /// @param proposta  file name without a folder
    /// @return nothing when the dialog was left with cancel
    [[nodiscard]] virtual std::optional<std::string> salva(const std::string& proposta) = 0;
};

/// What the main form shows about the open project.
class FinestraPrincipale {
 public:
    virtual ~FinestraPrincipale() = default;
    virtual void titolo(const std::string& testo) = 0;
    /// The status line.
    virtual void stato(const std::string& testo) = 0;
    /// The status line in few words, which have room there; the whole is told to who asks for it.
    virtual void statoInBreve(const std::string& breve, const std::string& intero) = 0;
};

}  // namespace korven::commands
