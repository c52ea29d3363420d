#pragma once

#include <QDialog>
#include <optional>
#include <string>
#include <vector>

#include "commands/project_patterns.hpp"

class QListWidget;
class QVBoxLayout;

namespace korven::shell {

/// The form that asks with what a new project begins: the defaults, or one of some projects, each
/// with its name and its headings, and beside them the picture of the one that is current.
class SceltaModello : public QDialog {
    Q_OBJECT
 public:
    explicit SceltaModello(std::vector<commands::Modello> modelli, QWidget* genitore = nullptr);

    /// The path of the pattern that is current, empty for the defaults.
    [[nodiscard]] std::string scelto() const;

 private:
    void aggiungi(const QString& nome, const QString& descrizione);
    void mostraFigura();

    const std::vector<commands::Modello> modelli_;
    QListWidget* lista_;
    QVBoxLayout* quadro_;  // the picture
};

/// Shows the form. @return nothing when it was left without a choice
[[nodiscard]] std::optional<std::string> chiediModello(std::vector<commands::Modello> modelli,
                                                       QWidget* sopra);

}  // namespace korven::shell
