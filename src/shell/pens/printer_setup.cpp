#include "shell/pens/printer_setup.hpp"

#include <QDialogButtonBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <memory>
#include <utility>

#include "base/translated_texts.hpp"
#include "shell/pens/editacfg.hpp"
#include "shell/qt_text.hpp"
#include "shell/viewer/dialogs.hpp"
#include "shell/viewer/viewer.hpp"

namespace korven::shell {

namespace {

QString titolo() { return tradotto("&Configura Stampante").remove(QLatin1Char('&')); }

void scegliFoglio(QPrinter& stampante, QWidget* padre) {
    QPageSetupDialog foglio(&stampante, padre);
    foglio.setWindowTitle(titolo());
    foglio.exec();
}

void scegliStampante(QPrinter& stampante, QWidget* padre) {
    QPrintDialog scelta(&stampante, padre);
    scelta.setWindowTitle(titolo());
    scelta.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                      QAbstractPrintDialog::PrintCollateCopies);
    // Nothing is printed here.
    if (const auto* bottoni = scelta.findChild<QDialogButtonBox*>())
        if (auto* conferma = bottoni->button(QDialogButtonBox::Ok)) conferma->setText("OK");
    scelta.exec();
}

}  // namespace

void impostaStampante(QPrinter& stampante, bool haStampanti, base::Dialogo& dialogo,
                      QWidget* padre) {
    if (haStampanti) return scegliStampante(stampante, padre);
    dialogo.messaggio(
        base::traduttore("Non c'è alcuna stampante. Le stampe vanno in un file PDF, di cui ogni "
                         "volta è chiesto il nome; ora se ne può scegliere il foglio."),
        base::traduttore("ATTENZIONE") + "!", base::Icona::informazione);
    scegliFoglio(stampante, padre);
}

void collegaDisegni(commands::FormeProgramma& forme, QWidget& principale, base::Dialogo& dialogo,
                    std::function<QPrinter&()> stampante,
                    const std::function<void(const std::string&)>& annuncia) {
    struct Disegni {
        Disegni(QWidget& finestra, base::Dialogo& d, const std::function<QPrinter&()>& carta,
                const std::function<void(const std::string&)>& scritto)
            : porte(carta, scritto), visore(finestra, porte, d) {}
        PorteDesktop porte;
        VisoreDisegni visore;
    };
    const auto disegni = std::make_shared<Disegni>(principale, dialogo, stampante, annuncia);
    forme.grafica = [disegni] { disegni->visore.attendi(); };
    forme.chiudiGrafica = [disegni] { disegni->visore.chiudi(); };
    forme.altezzaPagina = [disegni] { return disegni->porte.foglioStampante().altezza; };
    forme.editacfg = [&principale, &dialogo] {
        DialoghiEditacfg porte;
        Editacfg(porte, dialogo, &principale).exec();
    };
    forme.impostaStampante = [&principale, &dialogo, stampante = std::move(stampante)] {
        impostaStampante(stampante(), !QPrinterInfo::availablePrinterNames().isEmpty(), dialogo,
                         &principale);
    };
}

}  // namespace korven::shell
