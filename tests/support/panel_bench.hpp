#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QTableView>
#include <functional>
#include <string>

#include "masks/editing.hpp"
#include "shell/live/live_view.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/panels/table_panels.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/form_setup.hpp"

namespace korven::test {

/// A table as the program opens it, with its panel beside it, on a project.
class BancoPannelli : public ::testing::Test {
 protected:
    BancoPannelli() {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        maschere.leggiMaschereProgramma();
    }
    ~BancoPannelli() override { base::impostaCartellaProgramma(""); }

    void progetto(const project::DatiProgetto& dati) {
        project::Progetto = dati;
        project::fileCorrente = "muro.kvd";
        vita.guarda();
    }
    /// Opens the form of a table, does something to it and cancels it.
    void apriMaschera(masks::NumeroMaschera numero, const std::function<void()>& azione) {
        masks::preparaMaschera(maschere, numero, project::Progetto, 0);
        const AllaProssimaFinestra<shell::Base2_32> finestra([&](shell::Base2_32& aperta) {
            forma = &aperta;
            EXPECT_TRUE(QTest::qWaitForWindowActive(&aperta));
            azione();
            forma = nullptr;
            premiAnnulla(aperta);
        });
        shell::mostraForm(maschere, dialogo, {}, nullptr, &vita, pannelli);
        EXPECT_TRUE(finestra.fatto);
        maschere.rilasciaForm();
        vita.guarda();
    }
    template <class Controllo>
    Controllo& controllo(const char* nome) {
        return test::controllo<Controllo>(*forma, nome);
    }
    QTableView& griglia() { return controllo<QTableView>("MSFlexGrid1"); }
    /// Rows and columns as their user counts them, from 1.
    std::string cella(int riga, int colonna) {
        return griglia().model()->index(riga - 1, colonna - 1).data().toString().toStdString();
    }
    void cursore(int riga, int colonna) {
        const auto dove = griglia().model()->index(riga - 1, colonna - 1);
        QTest::mouseClick(griglia().viewport(), Qt::LeftButton, {},
                          griglia().visualRect(dove).center());
    }
    /// What a Ctrl+Z in any control of the panel comes to: types into the first cell before each.
    /// @return the controls from which it was not taken back
    std::string nonAnnullano(const char* pannello) {
        std::string muti;
        int provati = 0;
        for (auto* pezzo : controllo<QWidget>(pannello).findChildren<QWidget*>()) {
            if (!pezzo->isVisible() || !pezzo->isEnabled() || pezzo->focusPolicy() == Qt::NoFocus)
                continue;
            cursore(1, 1);
            const std::string prima = cella(1, 1);
            QTest::keyClicks(&griglia(), "7");
            EXPECT_NE(cella(1, 1), prima);
            pezzo->setFocus();
            QTest::keyClick(pezzo, Qt::Key_Z, Qt::ControlModifier);
            if (cella(1, 1) != prima) muti += pezzo->objectName().toStdString() + ' ';
            ++provati;
        }
        EXPECT_GT(provati, 0);
        return muti;
    }
    /// The text of the label that a control belongs to.
    std::string etichettaDi(const QWidget& controllo) {
        for (const auto* etichetta : forma->findChildren<QLabel*>())
            if (etichetta->buddy() == &controllo) return etichetta->text().toStdString();
        return {};
    }

    QApplication& app = applicazione();
    UtenteNuovo utente;
    AmbienteDocumento ambiente;
    DialogoFinto dialogo;
    masks::Maschere maschere;
    shell::VitaProgetto vita;
    shell::PannelliForme pannelli = shell::pannelliForme(dialogo, vita);
    shell::Base2_32* forma = nullptr;

 private:
    static void premiAnnulla(const QWidget& aperta) {
        QTest::mouseClick(&test::controllo<QWidget>(aperta, "Command1_1"), Qt::LeftButton);
    }
};

}  // namespace korven::test
