#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <optional>

#include "panels/anchor_calculator.hpp"
#include "panels/calculator_history.hpp"

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

    /// Takes the last input or choice back, or does it again, and goes there.
    /// @return false when there was none
    bool annulla() { return torna(storia_.annulla()); }
    /// @param tabella  whether the table has a step to do again, which may come first
    bool ripeti(bool tabella) { return torna(storia_.ripeti(tabella)); }
    /// Of what was taken back the strip speaks; a result that was written ends it.
    [[nodiscard]] panels::StoriaCalcolo& storia() { return storia_; }

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
    bool torna(std::optional<std::size_t> posto);
    void scritta(panels::VoceCalcolo voce, const QString& testo);
    void cambiata();
    void mostra();

    panels::IngressiCalcolo& ingressi_;
    panels::StoriaCalcolo storia_;
    QGridLayout* griglia_;
    QComboBox *genere_, *misura_;
    std::array<QLabel*, panels::numeroVoci> etichette_{};
    std::array<QWidget*, panels::numeroVoci> campi_{};
    QLabel *area_, *rigidezza_, *pretensione_;
    QPushButton *scriviRigidezza_, *scriviPretensione_;
};

}  // namespace korven::shell
