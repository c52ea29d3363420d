#include "shell/report/destinations.hpp"

#include <QCoreApplication>
#include <QPrinter>
#include <utility>

#include "base/folders/file_names.hpp"
#include "base/pointer_guard.hpp"
#include "base/translated_texts.hpp"
#include "commands/output_title.hpp"
#include "commands/report_print.hpp"
#include "device/report_pages.hpp"
#include "project/project_data.hpp"
#include "shell/file_dialogs_qt.hpp"
#include "shell/qt_text.hpp"
#include "shell/viewer/export.hpp"

namespace korven::shell {

DestinazioniRelazione::DestinazioniRelazione(QWidget& principale, base::Dialogo& dialogo,
                                             std::function<QPrinter&()> stampante,
                                             std::string outdoc)
    : principale_(principale),
      dialogo_(dialogo),
      stampante_(std::move(stampante)),
      dialoghi_(stampante_),
      programmi_([] { QCoreApplication::processEvents(); }),
      outdoc_(std::move(outdoc)) {}

void DestinazioniRelazione::anteprima(const std::string& relazione) {
    if (!forma_) forma_ = new Form1(&principale_);
    forma_->mostra(relazione);
}

void DestinazioniRelazione::stampa(const std::string& relazione) {
    commands::stampaRelazione(
        relazione, [this] { return apriStampante(); }, dialogo_);
}

void DestinazioniRelazione::esportaDoc(const std::string& relazione) {
    commands::esportaDoc(relazione, porte());
}

void DestinazioniRelazione::esportaTxt(const std::string& relazione) {
    commands::esportaTxt(relazione, porte());
}

commands::PorteEsportazione DestinazioniRelazione::porte() {
    return {dialogo_, programmi_, [this](const std::string& nome) { return chiediNome(nome); },
            outdoc_};
}

std::string DestinazioniRelazione::chiediNome(const std::string& proposto) {
    const base::GuardiaPuntatore normale(dialogo_, base::Puntatore::normale);
    return chiediNomeTxt(&principale_, proposto);
}

std::unique_ptr<markup::ReportPrinter> DestinazioniRelazione::apriStampante() {
    QPrinter& stampante = stampante_();
    if (dialoghi_.haStampante())
        return device::relazioneSuStampante(stampante, qt(commands::titoloUscite()));
    const auto percorso = dialoghi_.fileDaSalvare(richiestaPdfRelazione());
    if (!percorso) return nullptr;
    return device::relazioneSuPdf(*percorso, stampante.pageLayout(), qt(commands::titoloUscite()));
}

FileDaSalvare richiestaPdfRelazione() {
    const std::string percorso = base::nomePdfRelazione(project::fileCorrente);
    return {base::traduttore("Stampa della relazione in un file PDF"),
            percorso.substr(percorso.rfind('/') + 1),
            {tipoPdf()}};
}

void collegaRelazione(commands::FormeProgramma& forme, QWidget& principale, base::Dialogo& dialogo,
                      std::function<QPrinter&()> stampante, std::string outdoc) {
    const auto uscite = std::make_shared<DestinazioniRelazione>(
        principale, dialogo, std::move(stampante), std::move(outdoc));
    forme.anteprima = [uscite](const std::string& r) { uscite->anteprima(r); };
    forme.stampa = [uscite](const std::string& r) { uscite->stampa(r); };
    forme.esportaDoc = [uscite](const std::string& r) { uscite->esportaDoc(r); };
    forme.esportaTxt = [uscite](const std::string& r) { uscite->esportaTxt(r); };
}

}  // namespace korven::shell
