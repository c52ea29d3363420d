#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "shell/masks/base1.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/mask_setup.hpp"

namespace korven::test {

/// The form of fields on the mask of `mascheraCampi`, and what its user sees and does.
class BancoBase1 : public ::testing::Test {
 protected:
    void apri(std::vector<double> combo = {0, 0},
              std::vector<std::string> testi = {"5", "abcd", "1.25"}) {
        forma = std::make_unique<shell::Base1>(
            maschera, std::move(combo), std::move(testi), dialogo,
            [this](int contesto) {
                if (cHeGuida) aperti.push_back(contesto);
                return cHeGuida;
            },
            nullptr);
        forma->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(forma.get()));
    }
    template <class C>
    C& trova(const char* gruppo, int i) {
        return controllo<C>(*forma, (gruppo + std::to_string(i)).c_str());
    }
    QLabel& etichetta(int i) { return trova<QLabel>("Label1_", i); }
    QComboBox& combo(int i) { return trova<QComboBox>("Combo1_", i); }
    QLineEdit& testo(int i) { return trova<QLineEdit>("Text1_", i); }
    QPushButton& pulsante(int i) { return trova<QPushButton>("Command1_", i); }
    void premi(int i) { QTest::mouseClick(&pulsante(i), Qt::LeftButton); }
    void scrivi(QLineEdit& casella, const char* parole) {
        casella.setFocus();
        casella.selectAll();
        QTest::keyClicks(&casella, parole);
    }
    [[nodiscard]] QRect sullaForma(const QWidget& pezzo) const {
        return {pezzo.mapTo(forma.get(), QPoint()), pezzo.size()};
    }

    QApplication& app = applicazione();
    UtenteNuovo utente;
    masks::Maschera maschera = mascheraCampi();
    DialogoFinto dialogo;
    bool cHeGuida = true;
    std::vector<int> aperti;
    std::unique_ptr<shell::Base1> forma;
};

}  // namespace korven::test
