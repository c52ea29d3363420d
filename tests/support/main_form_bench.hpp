#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "project/project_file.hpp"
#include "shell/main/menu1.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/plain_masks.hpp"
#include "support/progress_double.hpp"
#include "support/sample_projects.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

/// The main form on the program, with doubles for its ports, and what its user sees and does.
class BancoMenu1 : public ::testing::Test {
 protected:
    BancoMenu1() {
        forme.informazioni = [this](const std::string& riga) { informazioni.push_back(riga); };
        forme.guida = [this](int contesto) { aiuti.push_back(contesto); };
        forme.sommario = [] {};
        tutteLeMaschere.leggiMaschere(maschereSemplici(ambiente.lavori));
        forme.maschera = [this](masks::Maschere& m) {
            maschere.push_back(m.corrente().titolo);
            m.conferma(m.valoriCombo(), m.valoriTesto());
        };
    }
    void apri() {
        programma = std::make_unique<commands::Programma>(dialogo, nomi, finestra, avanzamento,
                                                          tutteLeMaschere, forme);
        finestra.collega(*programma);
        finestra.show();
    }
    QAction* voce(const char* nome) {
        for (auto* azione : finestra.findChildren<QAction*>(nome)) return azione;
        return nullptr;
    }
    QString stato() { return finestra.findChild<QLabel*>("stato")->text(); }
    std::string scriviMuro(const char* nome = "muro.kvd") {
        const std::string file = ambiente.lavori / nome;
        metti(file, base::inCp1252(project::testoProgetto(progettoSemplice())));
        return file;
    }
    void lascia(const std::string& file) {
        QMimeData dati;
        dati.setUrls({QUrl::fromLocalFile(QString::fromStdString(file))});
        QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        entra.setAccepted(false);
        QCoreApplication::sendEvent(&finestra, &entra);
        accettato = entra.isAccepted();
        if (!accettato) return;
        QDropEvent cade(QPointF(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&finestra, &cade);
        QTest::qWait(20);
    }

    AmbienteDocumento ambiente;
    DialogoFinto dialogo;
    DialogoFileFinto nomi;
    AvanzamentoFinto avanzamento;
    commands::FormeProgramma forme;
    std::unique_ptr<commands::Programma> programma;
    shell::Menu1 finestra;
    std::vector<std::string> informazioni;
    std::vector<int> aiuti;
    std::vector<std::string> maschere;
    masks::Maschere tutteLeMaschere;
    bool accettato = false;
};

}  // namespace korven::test
