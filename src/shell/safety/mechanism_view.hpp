#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "live/wall.hpp"

namespace korven::shell {

/// The wall as it falls, from the deciding stage on: a picture of the mechanism.
class VistaMeccanismo : public QWidget {
 public:
    explicit VistaMeccanismo(QWidget* padre);

    /// @param parete  nothing where no movement is known
    /// @param testo   what the picture says, for those who do not see it, and where it is empty
    /// @param titolo  stands above the picture
    void mostra(std::optional<live::PareteViva> parete, const QString& testo,
                const std::string& titolo = {});

    [[nodiscard]] QSize minimumSizeHint() const override { return {180, 160}; }
    [[nodiscard]] QSize sizeHint() const override { return {360, 340}; }

 protected:
    void paintEvent(QPaintEvent* evento) override;

 private:
    std::optional<live::PareteViva> parete_;
    QString testo_;
    std::string titolo_;
};

}  // namespace korven::shell
