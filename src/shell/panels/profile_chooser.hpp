#pragma once

#include <QDialog>
#include <vector>

#include "base/dialogo.hpp"
#include "profiles/catalogue.hpp"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace korven::shell {

class VistaSchizzo;

/// Chooses a row of the catalogue for the section form: whole sections and tubes of the type, or
/// bars for one of its diameters, found by words, with the sketch of what they make.
///
/// Controls by name: `cerca`, `riempie`, `profili`, `schizzo`, `nota`, `prendi`, `elimina` for
/// the user's own rows, `annulla`. Down leads from the search to the rows; a double click takes.
class ScegliProfilo : public QDialog {
    Q_OBJECT
 public:
    /// @param sezione  as it stands in the form
    /// @param campo    that had the cursor: a diameter of bars is what is filled at first
    ScegliProfilo(project::Parte tipo, const project::Sezione& sezione, std::size_t campo,
                  base::Dialogo& dialogo, QWidget* padre);

    /// What the row that is chosen writes; nothing without one.
    [[nodiscard]] masks::SezioneEditata::Testi testi() const;

    void done(int esito) override;

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    QWidget* fareCerca();
    void riempiCampi(std::size_t campo);
    void annota();
    void filtra();
    void mostra();
    void elimina();
    [[nodiscard]] const profiles::Profilo* scelto() const;
    [[nodiscard]] std::size_t campo() const;

    const project::Parte tipo_;
    const project::Sezione sezione_;
    base::Dialogo& dialogo_;
    profiles::Catalogo catalogo_;
    std::vector<std::size_t> mostrati_;  // places in the catalogue, by the rows of the table
    QLineEdit* cerca_ = nullptr;
    QComboBox* riempie_ = nullptr;
    QTableWidget* tabella_ = nullptr;
    VistaSchizzo* schizzo_ = nullptr;
    QLabel* nota_ = nullptr;
    QPushButton *prendi_ = nullptr, *elimina_ = nullptr;
};

}  // namespace korven::shell
