#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "desk/study_choice.hpp"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;
class QVBoxLayout;

namespace korven::shell {

/// What a study varies and how: the fields with their values or laws, the number of samples, what
/// makes a variant fail.
class FormaStudio : public QWidget {
    Q_OBJECT
 public:
    explicit FormaStudio(QWidget* padre);

    /// Offers the fields and results of a project; what is chosen stays where it is still there.
    void offri(const project::DatiProgetto& dati);
    /// As it is typed.
    [[nodiscard]] desk::StudioScritto scritto() const;
    /// The last of its controls.
    [[nodiscard]] QWidget* ultimo() const;

 signals:
    /// Something else may be typed or chosen.
    void cambiata();

 private:
    using Numeri = std::array<QString, 3>;
    struct Variazione {
        QComboBox *campo, *legge;
        std::array<QLineEdit*, 3> numeri;
        Numeri altri{};  ///< what was typed for the other way to vary
    };
    struct Criterio {
        QComboBox *risultato, *segno;
        QLineEdit* limite;
    };

    void fareModo(QVBoxLayout& colonna);
    void fareVariazione(QVBoxLayout& colonna, int quale);
    void fareCampioni(QVBoxLayout& colonna);
    void fareCriterio(QVBoxLayout& colonna, int quale);
    [[nodiscard]] bool campioni() const;
    void segui();
    void segui(const Variazione& variazione);
    void scambiaNumeri();
    void ascolta();

    project::DatiProgetto dati_;
    QComboBox* modo_ = nullptr;
    std::vector<Variazione> variazioni_;
    QWidget* suiCampioni_ = nullptr;
    QSpinBox *numero_ = nullptr, *seme_ = nullptr;
    QCheckBox *ipercubo_ = nullptr, *sicurezza_ = nullptr;
    std::vector<Criterio> criteri_;
};

}  // namespace korven::shell
