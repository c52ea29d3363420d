#pragma once

#include <optional>
#include <string>

#include "base/dialogo.hpp"
#include "exchange/layer_rows.hpp"
#include "panels/empty_cells.hpp"
#include "shell/panels/layer_files.hpp"
#include "shell/panels/side_panel.hpp"

class QLabel;
class QPushButton;

namespace korven::shell {

class Base2_32;

/// The panel beside the table of layers: the hatch of the current row as a picture, the way to
/// another one, layers from files and into one, the next cell that is still to be filled in. What
/// it says stands in the strip of the form. What it changes goes into the table as if it were typed
/// or pasted there.
///
/// Controls by name: `immagine`, `nome`, `campitura`, `vaiVuota`, `importa`, `esporta`.
class PannelloStrati : public PannelloLaterale {
    Q_OBJECT
 public:
    /// @param forma  the form of the layers; it and `dialogo` must outlive the panel
    PannelloStrati(Base2_32& forma, base::Dialogo& dialogo,
                   FileDiStrati file = fileDiStratiDesktop());

 private:
    void mostra();
    void mostraCampitura();
    void avvisa();
    void detto(const char* chiave, const std::string& percorso, std::size_t strati);
    void vaiAllaVuota();
    [[nodiscard]] std::optional<panels::CelleVuote> celleVuote() const;
    void scegliCampitura();
    void importa();
    void esporta();
    [[nodiscard]] int riga() const;
    [[nodiscard]] exchange::RigheStrati righe() const;
    QPushButton* farePulsante(const char* nome, const char* figura, const QString& testo,
                              const QString& suggerimento);

    Base2_32& forma_;
    base::Dialogo& dialogo_;
    FileDiStrati file_;
    QLabel* titolo_;
    QLabel* immagine_;
    QLabel* nome_;
    QPushButton* vaiVuota_;
    QString fatto_;  // with a file, for the strip of the form, until something is typed
    std::optional<std::string> mostrata_;  // the description whose hatch is shown
};

}  // namespace korven::shell
