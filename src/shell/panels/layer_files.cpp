#include "shell/panels/layer_files.hpp"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <algorithm>

#include "base/folders/file_names.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "project/project_data.hpp"
#include "shell/qt_text.hpp"
#include "shell/replace_question.hpp"

namespace korven::shell {

namespace {

QString cartella() {
    if (project::fileCorrente.empty()) return QDir::currentPath();
    return QFileInfo(qt(project::fileCorrente)).absolutePath();
}

// A name that an office has agreed on does not change with the language.
QString nomeProposto() {
    const std::string& progetto = project::fileCorrente;
    if (progetto.empty()) return QStringLiteral("strati.csv");
    return QFileInfo(qt(base::nomeUscita(progetto, "strati", "csv"))).fileName();
}

// Both cases of each letter are matched, which name filters do not promise by themselves. The
// patterns for it stand in the last brackets, which are not shown.
QStringList filtriLettura() {
    return {tradotto("Tabelle e indagini") +
                " (*.csv, *.txt, *.ags) (*.[cC][sS][vV] *.[tT][xX][tT] *.[aA][gG][sS])",
            tradotto("Tutti i file") + " (*) (*)"};
}

std::optional<std::string> daLeggere(QWidget* sopra) {
    QFileDialog dialogo(sopra, tradotto("Strati da importare"), cartella());
    dialogo.setObjectName(QStringLiteral("stratiDaImportare"));
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setOption(QFileDialog::HideNameFilterDetails);
    dialogo.setNameFilters(filtriLettura());
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
    return dialogo.selectedFiles().front().toStdString();
}

struct Tipo {
    QString filtro;
    exchange::FormaCsv forma;
};

// The one that the spreadsheets of the language in force read stands first.
QList<Tipo> tipi() {
    QList<Tipo> tutti{
        {tradotto("CSV con punto e virgola, virgola decimale") + " (*.csv)",
         exchange::csvPuntoEVirgola},
        {tradotto("CSV con virgola, punto decimale") + " (*.csv)", exchange::csvVirgola}};
    if (base::siglaLingua(base::linguaCorrente()) == "eng")
        std::reverse(tutti.begin(), tutti.end());
    return tutti;
}

std::optional<FileDiStrati::Scritto> daScrivere(QWidget* sopra) {
    QFileDialog dialogo(sopra, tradotto("Esportazione degli strati"), cartella());
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite);  // asked below, in our language
    dialogo.setDefaultSuffix(QStringLiteral("csv"));
    const auto offerti = tipi();
    dialogo.setNameFilters({offerti[0].filtro, offerti[1].filtro});
    dialogo.selectFile(nomeProposto());
    while (dialogo.exec() == QDialog::Accepted) {
        const auto percorso = QDir::cleanPath(dialogo.selectedFiles().front()).toStdString();
        const bool secondo = dialogo.selectedNameFilter() == offerti[1].filtro;
        if (puoSostituire(percorso)) return {{percorso, offerti[secondo ? 1 : 0].forma}};
    }
    return {};
}

}  // namespace

FileDiStrati fileDiStratiDesktop() { return {daLeggere, daScrivere}; }

}  // namespace korven::shell
