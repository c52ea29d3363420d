#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <memory>

#include "masks/edited_section.hpp"
#include "shell/section/definej.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"

namespace korven::test {

inline constexpr const char* opzioniSezione[] = {"Option1", "Option2", "Option3", "Option4"};
inline constexpr const char* riquadriSezione[] = {"Frame1", "Frame2", "Frame5", "Frame6"};

/// The section's form with another number in each field, and what its user sees and does.
class BancoSezione : public ::testing::Test {
 protected:
    BancoSezione() {
        applicazione();
        double valore = 1.5;
        for (const auto& campo : masks::campiSezione) sezione.*campo.valore = (valore += 0.25);
        sezione.tipoDiaframma = true;
    }
    void apri() {
        prima = sezione;
        forma = std::make_unique<shell::DefinEJ>(sezione, modificato, nullptr);
        forma->show();
        forma->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(forma.get()));
    }
    template <class C = QWidget>
    C& trova(const char* nome) {
        return controllo<C>(*forma, nome);
    }
    void premi(const char* nome) {
        auto& bottone = trova(nome);
        QTest::mouseClick(&bottone, Qt::LeftButton, {}, QPoint(10, bottone.height() / 2));
    }
    void scrivi(const char* nome, const char* testo) {
        trova<QLineEdit>(nome).selectAll();
        QTest::keyClicks(&trova(nome), testo);
    }
    QString aiuto() { return trova<QLabel>("Labelhelp").text(); }
    // The place in `riquadriSezione` of the frame that shows, -1 unless exactly one does.
    int mostrato() {
        int quale = -1, quanti = 0;
        for (int i = 0; i < 4; ++i)
            if (trova(riquadriSezione[i]).isVisible()) quale = i, ++quanti;
        return quanti == 1 ? quale : -1;
    }

    project::Sezione sezione, prima;
    bool modificato = false;
    std::unique_ptr<shell::DefinEJ> forma;
};

}  // namespace korven::test
