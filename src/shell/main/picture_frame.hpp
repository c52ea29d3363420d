#pragma once

#include <QSize>
#include <QWidget>

namespace korven::shell {

class QuadroParatia;

/// What the main form shows: without a project the painting of a wall, with one its picture, in
/// whose lower left corner the painting stays as a small emblem.
class CorniceFigura : public QWidget {
 public:
    explicit CorniceFigura(QWidget* genitore = nullptr);

    [[nodiscard]] QuadroParatia& quadro() const { return *quadro_; }

    /// Takes the picture, hidden as yet.
    /// @param emblema  the room that it leaves in its corner
    void accogli(QWidget* figura, QSize emblema);
    /// Shows the picture from now on.
    void mostra();

 protected:
    void resizeEvent(QResizeEvent* evento) override;

 private:
    void disponi();

    QuadroParatia* quadro_;
    QWidget* figura_ = nullptr;
    QSize emblema_;
    bool mostrata_ = false;
};

}  // namespace korven::shell
