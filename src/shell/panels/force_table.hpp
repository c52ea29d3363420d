#pragma once

#include <QTreeWidget>

#include "panels/anchor_calculator.hpp"
#include "panels/anchor_forces.hpp"

namespace korven::shell {

/// The force of one anchor in each stage: per metre of wall, and of the single anchor where the
/// calculator knows spacing and angle. The largest is bold and says so.
class TabellaTiri : public QTreeWidget {
    Q_OBJECT
 public:
    explicit TabellaTiri(QWidget* genitore);

    void mostra(const panels::TiriTirante& tiri, const panels::IngressiCalcolo& ingressi);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

}  // namespace korven::shell
