#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "panels/anchor_calculator.hpp"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace korven::shell {

/// The calculator of an anchor or a strut: its inputs, the results with their formulas, and a
/// button for each that writes it.
///
/// Controls by name: `calcoloGenere`, `calcoloMisura` the choices, `calcolo0` to `calcolo6` the
/// inputs in the order of `panels::VoceCalcolo`, `calcoloArea`, `calcoloRigidezza`,
/// `calcoloPretensione` the results, `scriviRigidezza`, `scriviPretensione` the buttons.
class CampiTirante : public QWidget {
    Q_OBJECT
 public:
    /// @param ingressi  what stands in the inputs, and stays there when the panel is gone; must
    ///                  outlive it
    explicit CampiTirante(panels::IngressiCalcolo& ingressi);

    /// The row that the buttons write into, as their captions say.
    void perRiga(int riga);

 signals:
    void digitata();
    /// A result is to be written into the row.
    void scriviRigidezza(const std::string& testo);
    void scriviPretensione(const std::string& testo);

 private:
    void fareScelte();
    void fareRiga(panels::VoceCalcolo voce, QWidget* campo);
    QComboBox* fareModulo();
    QLineEdit* fareCasella(panels::VoceCalcolo voce);
    QLabel* fareConto(const char* nome);
    QPushButton* farePulsante(const char* nome);
    void ordinaTab();
    void cambiata();
    void mostra();

    panels::IngressiCalcolo& ingressi_;
    QGridLayout* griglia_;
    QComboBox *genere_, *misura_;
    std::array<QLabel*, panels::numeroVoci> etichette_{};
    std::array<QWidget*, panels::numeroVoci> campi_{};
    QLabel *area_, *rigidezza_, *pretensione_;
    QPushButton *scriviRigidezza_, *scriviPretensione_;
};

}  // namespace korven::shell
