#pragma once

#include <QWidget>
#include <vector>

#include "factors/requested_code.hpp"

class QCheckBox;
class QComboBox;

namespace korven::shell {

/// How the choice of a code stands in its window.
struct AspettoNorma {
    const char* etichetta;    ///< of the list of codes, an Italian key
    bool nessuna = false;     ///< no code is a choice too, the first
    bool tastiNatura = true;  ///< the kinds of loads have access keys
};

/// A code out of a list, and which loads of the project are permanent under it; these are hidden
/// while there is no code.
class SceltaNorma : public QWidget {
    Q_OBJECT
 public:
    SceltaNorma(const AspettoNorma& aspetto, QWidget* padre);

    /// Fills the list, without a signal.
    /// @param scelta  which is chosen; -1: none
    void offri(const std::vector<factors::Norma>& norme, int scelta);
    /// Which code of the list is chosen; -1: none.
    [[nodiscard]] int scelta() const;
    [[nodiscard]] factors::NaturaCarichi natura() const;

 signals:
    void cambiata();

 private:
    QWidget* fareLista(const AspettoNorma& aspetto);
    QWidget* fareCarichi(bool tasti);
    void segui();

    bool nessuna_;
    QComboBox* norma_ = nullptr;
    QWidget* carichi_ = nullptr;
    QCheckBox *monte_ = nullptr, *scavo_ = nullptr, *testa_ = nullptr;
};

}  // namespace korven::shell
