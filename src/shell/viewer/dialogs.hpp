#pragma once

#include <functional>

#include "shell/viewer/ports.hpp"

class QPrinter;

namespace korven::shell {

/// The dialogs and the printer of the desktop.
class PorteDesktop : public PorteGrafica {
 public:
    /// @param stampante  the printer of the program, as the printer set-up left it. Asked for when
    ///                   it is needed, since looking for printers takes time.
    /// @param annuncia  told the path of each file that was written; may be empty
    explicit PorteDesktop(std::function<QPrinter&()> stampante,
                          std::function<void(const std::string&)> annuncia = {});

    std::optional<std::string> fileDaSalvare(const FileDaSalvare& richiesta) override;
    [[nodiscard]] const base::Disco& disco() const override { return base::discoDiSistema(); }
    void scritto(const std::string& percorso) override;
    plot::Foglio foglioStampante() override;
    /// True when pages go to a printer, or to the file that the printer set-up named.
    [[nodiscard]] bool haStampante() const;
    /// Where there is no printer the pages go to a PDF file that the user names.
    std::unique_ptr<plot::Stampante> stampante(const std::string& titolo) override;

 private:
    std::function<QPrinter&()> stampante_;
    std::function<void(const std::string&)> annuncia_;
};

}  // namespace korven::shell
