#pragma once

#include <QDialog>

#include "profiles/profile.hpp"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace korven::shell {

/// Puts what stands in the section form into the user's catalogue, under a name and with a source.
/// What keeps it out is told in the dialog.
///
/// Controls by name: `nome`, `fonte`, `materiali`, `misure`, `perche`, `conferma`, `annulla`.
class NuovoProfilo : public QDialog {
    Q_OBJECT
 public:
    /// @param sezione  as it stands in the form
    NuovoProfilo(project::Parte tipo, const project::Sezione& sezione, QWidget* padre);

 private:
    void tieni();
    void mostra();
    [[nodiscard]] profiles::Profilo profilo() const;

    const project::Parte tipo_;
    const project::Sezione sezione_;
    QLineEdit *nome_ = nullptr, *fonte_ = nullptr;
    QCheckBox* materiali_ = nullptr;
    QLabel *misure_ = nullptr, *perche_ = nullptr;
};

}  // namespace korven::shell
