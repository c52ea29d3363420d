#include "shell/file_dialogs_qt.hpp"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <utility>

#include "commands/document_names.hpp"
#include "commands/report_export.hpp"
#include "shell/qt_text.hpp"
#include "shell/replace_question.hpp"

namespace korven::shell {

namespace {

// The pattern of the projects whatever the case, which name filters do not promise by themselves.
QStringList filtri() { return {"Korven 32 (*.[kK][vV][dD])"}; }

// Qt leaves the labels of its two lists alone; without the list that it names, a label shows its
// "&" as a letter. A dialog of the desktop's own has none of them.
void legaEtichette(const QFileDialog& dialogo) {
    constexpr std::pair<const char*, const char*> coppie[] = {{"lookInLabel", "lookInCombo"},
                                                              {"fileTypeLabel", "fileTypeCombo"}};
    for (const auto& [nome, scelta] : coppie)
        if (auto* etichetta = dialogo.findChild<QLabel*>(QLatin1String(nome)))
            etichetta->setBuddy(dialogo.findChild<QComboBox*>(QLatin1String(scelta)));
}

// Names are read whole: the type, the same for all, gives them its room. A dialog of the
// desktop's own has no such list.
void allargaNomi(const QFileDialog& dialogo) {
    constexpr int nome = 0, tipo = 2;
    auto* elenco = dialogo.findChild<QTreeView*>("treeView");
    if (elenco == nullptr) return;
    elenco->hideColumn(tipo);
    elenco->header()->setStretchLastSection(false);
    elenco->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    elenco->header()->setSectionResizeMode(nome, QHeaderView::Stretch);
}

// A new project is opened by a name that no file has, so both dialogs take any name; the command
// judges what it finds under it.
void prepara(QFileDialog& dialogo, const QString& titolo, QFileDialog::AcceptMode modo) {
    dialogo.setObjectName(modo == QFileDialog::AcceptOpen ? "apri" : "salva");
    dialogo.setWindowTitle(titolo);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setAcceptMode(modo);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite);
    dialogo.setOption(QFileDialog::HideNameFilterDetails);
    // Some desktops offer a dialog of their own that opens nothing but files that are there: nobody
    // could begin a project.
    dialogo.setOption(QFileDialog::DontUseNativeDialog, modo == QFileDialog::AcceptOpen);
    dialogo.setLabelText(QFileDialog::LookIn, tradotto("Cerca &in:"));
    dialogo.setLabelText(QFileDialog::FileName, tradotto("&Nome del file:"));
    dialogo.setLabelText(QFileDialog::FileType, tradotto("&Tipo di file:"));
    // Not "&Annulla", whose key is that of "&Apri" beside it.
    dialogo.setLabelText(QFileDialog::Reject, tradotto("Annu&lla"));
    dialogo.setNameFilters(filtri());
    dialogo.setDefaultSuffix(qt(commands::estensioneProgetti));
    dialogo.setDirectory(QDir::current());
    legaEtichette(dialogo);
    allargaNomi(dialogo);
}

std::optional<std::string> risposta(QFileDialog& dialogo) {
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return std::nullopt;
    const QFileInfo scelto(dialogo.selectedFiles().first());
    // The current folder follows the choice, so that a new project is saved where it was named.
    QDir::setCurrent(scelto.absolutePath());
    return scelto.absoluteFilePath().toStdString();
}

}  // namespace

std::string DialogoFileQt::apri(const std::string& attuale) {
    QFileDialog dialogo(finestra_);
    prepara(dialogo, tradotto("Apri un progetto o scrivi il nome di uno nuovo"),
            QFileDialog::AcceptOpen);
    dialogo.setLabelText(QFileDialog::Accept, tradotto("&Apri"));
    if (!attuale.empty()) dialogo.selectFile(qt(attuale));
    return risposta(dialogo).value_or("");
}

std::string DialogoFileQt::nuovo(const std::string& proposta) {
    QFileDialog dialogo(finestra_);
    prepara(dialogo, tradotto("Nome del nuovo progetto"), QFileDialog::AcceptSave);
    dialogo.setObjectName("nuovo");
    dialogo.setLabelText(QFileDialog::Accept, tradotto("&Conferma"));
    dialogo.selectFile(qt(proposta));
    return risposta(dialogo).value_or("");
}

std::optional<std::string> DialogoFileQt::salva(const std::string& proposta) {
    QFileDialog dialogo(finestra_);
    prepara(dialogo, tradotto("Salva il progetto"), QFileDialog::AcceptSave);
    dialogo.setLabelText(QFileDialog::Accept, tradotto("&Salva"));
    dialogo.selectFile(qt(proposta));
    return risposta(dialogo);
}

std::string chiediProgetto(QWidget* sopra) {
    QFileDialog dialogo(sopra);
    prepara(dialogo, tradotto("Progetto con cui confrontare"), QFileDialog::AcceptOpen);
    dialogo.setObjectName("altroProgetto");
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setLabelText(QFileDialog::Accept, tradotto("&Apri"));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
    return QFileInfo(dialogo.selectedFiles().first()).absoluteFilePath().toStdString();
}

// "NotePad|*.txt", as the name and the pattern of a filter.
std::string chiediNomeTxt(QWidget* sopra, const std::string& proposto) {
    QFileDialog dialogo(sopra);
    QString titolo = tradotto("Esporta Tabulati in Formato &TXT");
    prepara(dialogo, titolo.remove(QLatin1Char('&')), QFileDialog::AcceptOpen);
    dialogo.setLabelText(QFileDialog::Accept, tradotto("&Salva"));
    const QStringList filtro = qt(commands::filtroTxt).split(QLatin1Char('|'));
    dialogo.setNameFilter(filtro[0] + " (" + filtro[1] + ")");
    dialogo.setDefaultSuffix(qt(commands::estensioneTxt));
    dialogo.setDirectory(QFileInfo(qt(proposto)).absolutePath());
    dialogo.selectFile(QFileInfo(qt(proposto)).fileName());
    // The file that is written is not always the one that was named.
    for (;;) {
        const auto scelto = risposta(dialogo);
        if (!scelto) return {};
        const auto nome = commands::nomeTxtScelto(*scelto);
        if (!nome || puoSostituire(*nome)) return *scelto;
    }
}

}  // namespace korven::shell
