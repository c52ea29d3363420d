#pragma once

#include <QLabel>
#include <QStringList>
#include <functional>

namespace korven::shell {

/// The strip of a form that explains the field in use. It has room for the longest of its texts
/// from the beginning, so that nothing moves while the user goes from field to field, and above it
/// for a note on what is being typed. A click, or the space bar, asks for the text in a box.
class StrisciaAiuto : public QLabel {
 public:
    /// Above the text there is room for a note on a number (base/number_reading.hpp); a longer note
    /// makes the strip grow while it is shown.
    /// @param testi    all that it will ever show, in lines where they have line breaks
    /// @param premuto  what a click does; may be empty
    StrisciaAiuto(const QStringList& testi, std::function<void()> premuto, QWidget* genitore);

    /// @param nota  in lines of its own above the text; empty for none
    void mostra(const QString& testo, const QString& nota = {});

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int larghezza) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

 private:
    [[nodiscard]] int altezzaTesto(const QString& testo, int larghezza) const;

    QStringList testi_;
    std::function<void()> premuto_;
};

}  // namespace korven::shell
