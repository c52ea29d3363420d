#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "shell/masks/base2_32.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/mask_setup.hpp"

namespace korven::test {

/// The form of a table on the mask of `mascheraGriglia`, and what its user sees and does. Rows and
/// columns are counted as the user counts, from 1.
class BancoGriglia : public ::testing::Test {
 protected:
    using Testi = std::vector<std::string>;

    void apri(const Testi& testi = {"2", "3", "18", "uno", "0", "8", "19", "due", "1"}) {
        forma = std::make_unique<shell::Base2_32>(
            maschera, testi, dialogo,
            [this](int contesto) {
                if (cHeGuida) aperti.push_back(contesto);
                return cHeGuida;
            },
            nullptr, capienza);
        forma->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(forma.get()));
    }
    QTableView& griglia() { return controllo<QTableView>(*forma, "MSFlexGrid1"); }
    QLineEdit& editore() { return controllo<QLineEdit>(*forma, "Text1"); }
    QPushButton& pulsante(int i) {
        return controllo<QPushButton>(*forma, ("Command1_" + std::to_string(i)).c_str());
    }
    void premi(int i) { QTest::mouseClick(&pulsante(i), Qt::LeftButton); }

    /// What the window shows in a cell.
    std::string cella(int riga, int colonna) {
        return griglia().model()->index(riga - 1, colonna - 1).data().toString().toStdString();
    }
    /// Where the cursor of the window is, as "row,column".
    std::string cursore() {
        const QModelIndex qui = griglia().currentIndex();
        return std::to_string(qui.row() + 1) + ',' + std::to_string(qui.column() + 1);
    }
    QPoint punto(int riga, int colonna) {
        return griglia().visualRect(griglia().model()->index(riga - 1, colonna - 1)).center();
    }
    void clic(int riga, int colonna) {
        QTest::mouseClick(griglia().viewport(), Qt::LeftButton, {}, punto(riga, colonna));
    }
    void doppioClic(int riga, int colonna) {
        clic(riga, colonna);
        QTest::mouseDClick(griglia().viewport(), Qt::LeftButton, {}, punto(riga, colonna));
    }
    void tasto(Qt::Key quale, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(forma->focusWidget(), quale, con);
    }
    void scrivi(const char* parole) { QTest::keyClicks(forma->focusWidget(), parole); }
    void incolla(const QString& testo) {
        QApplication::clipboard()->setText(testo);
        tasto(Qt::Key_V, Qt::ControlModifier);
    }

    QApplication& app = applicazione();
    UtenteNuovo utente;
    masks::Maschera maschera = mascheraGriglia();
    DialogoFinto dialogo;
    int capienza = masks::CelleGriglia::righe;
    bool cHeGuida = true;
    std::vector<int> aperti;
    std::unique_ptr<shell::Base2_32> forma;
};

}  // namespace korven::test
