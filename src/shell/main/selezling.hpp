#pragma once

#include <QDialog>
#include <vector>

namespace korven::shell {

/// The form `selezling` that asks for the language at the first start, before there is any, and
/// whenever another one is wished: a button for each language offered, with its flag and its own
/// name.
class Selezling : public QDialog {
    Q_OBJECT
 public:
    /// @param codici  language codes in the order of the buttons
    /// @param presente  the code that holds, whose button is pressed; 0 when there is none yet
    explicit Selezling(const std::vector<int>& codici, int presente = 0,
                       QWidget* genitore = nullptr);

    /// The code of the button clicked; 0 before that.
    [[nodiscard]] int scelta() const { return scelta_; }

 private:
    int scelta_ = 0;
};

/// Shows the form. @return the code chosen, 0 when it was closed without
[[nodiscard]] int chiediLingua(const std::vector<int>& codici);
/// The same over a window, with the button of the code that holds pressed.
[[nodiscard]] int chiediAltraLingua(const std::vector<int>& codici, int presente, QWidget* sopra);

}  // namespace korven::shell
