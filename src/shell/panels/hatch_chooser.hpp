#pragma once

#include <QDialog>
#include <array>
#include <string>
#include <vector>

#include "drawings/log/hatch_choice.hpp"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QSpinBox;

namespace korven::shell {

/// Chooses the hatch of a layer from pictures: one pattern or two over each other, their sizes, the
/// colour, the line at the foot. `drawings::SceltaCampitura` has its rules.
///
/// Controls by name: `cerca`, `campiture` the list of pictures, `livello_n` which of the two
/// patterns the list chooses, `grandezza_n` its size step, `colore`, `linea`, `immagine`,
/// `descrizione`, `conferma`, `annulla`. Down leads from the search to the pictures; a double click
/// on one confirms.
class SceglieCampitura : public QDialog {
 public:
    /// @throws base::ErroreFile when the hatch library is missing or broken
    SceglieCampitura(std::string descrStrato, QWidget* padre);

    /// The description with the code that was chosen.
    [[nodiscard]] std::string descrizione() const { return scelta_.descrizione(); }

    void done(int esito) override;

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    QWidget* fareLista();
    QWidget* fareScelta();
    QWidget* fareLivello(drawings::SceltaCampitura::Livello livello, const QString& nome);
    void riempiColori();
    void dipingiLista();
    void seguiLivello();
    void filtra(const QString& cercato);
    void entraNellaLista();
    void scegli();
    void mostra();
    [[nodiscard]] plot::Colore coloreScelto() const;
    [[nodiscard]] drawings::SceltaCampitura::Livello livello() const;

    struct Livello {
        QRadioButton* scelto = nullptr;
        QLabel* nome = nullptr;
        QSpinBox* grandezza = nullptr;
    };

    drawings::SceltaCampitura scelta_;
    std::vector<drawings::VoceCampitura> voci_;
    std::vector<drawings::VoceColore> colori_;
    QLineEdit* cerca_ = nullptr;
    QListWidget* lista_ = nullptr;
    std::array<Livello, 2> livelli_;
    QComboBox* colore_ = nullptr;
    QCheckBox* linea_ = nullptr;
    QLabel* immagine_ = nullptr;
    QLabel* descrizione_ = nullptr;
};

}  // namespace korven::shell
