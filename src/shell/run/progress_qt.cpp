#include "shell/run/progress_qt.hpp"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "analysis/run_flags.hpp"
#include "project/project_data.hpp"
#include "shell/qt_text.hpp"
#include "shell/termination.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

void AvanzamentoQt::apri() {
    ritmo_.ricomincia();
    daMostrare_ = false;
    finestra_ = std::make_unique<TempCalc>(principale_);
    QObject::connect(finestra_.get(), &TempCalc::interruzione,
                     [] { analysis::stopCalcolo = true; });
    if (principale_ != nullptr) didascaliaPrima_ = principale_->windowTitle();
    finestra_->show();
}

void AvanzamentoQt::iterazione(const analysis::StatoIterazione& stato) {
    quadro_ = quadro(stato);
    didascalia_ =
        qt(analysis::didascaliaAvanzamento(stato.fase, stato.iterazione, stato.yMax, stato.mMax));
    riga_ = qt(lenta_.riga(stato, project::Progetto));
    daMostrare_ = true;
    if (ritmo_.tocca(orologio_())) mostra();
    QCoreApplication::processEvents();
    if (Terminazione::chiesta()) analysis::stopCalcolo = true;
}

void AvanzamentoQt::mostra() {
    daMostrare_ = false;
    if (finestra_ != nullptr) {
        finestra_->mostra(quadro_);
        finestra_->racconta(riga_);
    }
    if (principale_ != nullptr) principale_->setWindowTitle(didascalia_);
}

void AvanzamentoQt::chiudi() {
    if (daMostrare_) {
        mostra();
        if (finestra_ != nullptr) finestra_->repaint();
    }
    finestra_.reset();
    if (principale_ != nullptr) principale_->setWindowTitle(didascaliaPrima_);
}

void AvanzamentoQt::attendi(std::string_view detto) {
    if (!attesa_) apriAttesa(detto);
    QEventLoop pausa;
    QTimer::singleShot(pausaAttesa, &pausa, &QEventLoop::quit);
    pausa.exec();
    if (Terminazione::chiesta()) analysis::stopCalcolo = true;
}

void AvanzamentoQt::apriAttesa(std::string_view detto) {
    attesa_ = std::make_unique<QMessageBox>(principale_);
    attesa_->setObjectName("attesa");
    attesa_->setWindowTitle(tradotto("ATTENZIONE") + "!");
    attesa_->setIcon(QMessageBox::Information);
    attesa_->setTextFormat(Qt::PlainText);
    attesa_->setText(inRighe(detto));
    attesa_->addButton(tradotto("&Interrompi"), QMessageBox::RejectRole);
    attesa_->setWindowModality(Qt::ApplicationModal);
    QObject::connect(attesa_.get(), &QDialog::finished, [] { analysis::stopCalcolo = true; });
    attesa_->show();
}

}  // namespace korven::shell
