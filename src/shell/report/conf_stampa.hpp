#pragma once

#include <QDialog>
#include <QStringList>
#include <array>
#include <functional>
#include <optional>

#include "base/dialogo.hpp"
#include "plot/print_setup.hpp"

class QLineEdit;
class QListWidget;

namespace korven::shell {

/// The page layout for text printing. Its values and rules are those of plot/print_setup.hpp, its
/// file is printer.cfg in the program folder. No menu command opens it.
class ConfStampa : public QDialog {
 public:
    /// Shows the printer dialog and returns the number of copies set there; nothing when cancelled.
    using DialogoStampante = std::function<std::optional<int>(QWidget* padre)>;

    /// @param caratteri  names of the fonts of the printer, in its order
    /// @param dialogo    not owned; told when the file can't be written
    /// @throws base::ErroreFile when printer.cfg is broken
    ConfStampa(const QStringList& caratteri, DialogoStampante stampante, base::Dialogo& dialogo,
               QWidget* padre);

    /// Whether the user left the form by "Stampa".
    [[nodiscard]] bool stampata() const { return result() == Accepted; }
    [[nodiscard]] int copie() const { return copie_; }

 private:
    QWidget* fareCampi();
    QWidget* farePulsanti();
    void mostra(const QStringList& caratteri);
    void stampa();

    DialogoStampante stampante_;
    base::Dialogo& dialogo_;
    int copie_ = 1;
    // In the order of the file; the font has a list in the place of its field.
    std::array<QLineEdit*, std::tuple_size_v<plot::CampiStampa>> campi_{};
    QListWidget* caratteri_ = nullptr;  // List1
};

}  // namespace korven::shell
