#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "device/scene_painter.hpp"
#include "live/section_checks.hpp"
#include "structure/interaction_domain.hpp"

namespace korven::shell {

/// The N-M domain of a section with its stages as a picture, in the colours of the desktop. What it
/// says in words is its accessible description.
class VistaDominio : public QWidget {
    Q_OBJECT
 public:
    explicit VistaDominio(QWidget* padre);

    /// @param senza  what is written while there is no domain, translated
    void mostra(std::vector<structure::PuntoDominio> dominio,
                std::vector<live::FaseNelDominio> fasi, std::string senza);
    [[nodiscard]] const std::vector<structure::PuntoDominio>& dominio() const { return dominio_; }

    [[nodiscard]] QSize sizeHint() const override { return {480, 230}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {180, 84}; }

 protected:
    void paintEvent(QPaintEvent* evento) override;

 private:
    std::vector<structure::PuntoDominio> dominio_;
    std::vector<live::FaseNelDominio> fasi_;
    std::string senza_;
};

}  // namespace korven::shell
