#include "shell/tools/keys_window.hpp"

#include <QHeaderView>
#include <QKeySequence>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "commands/key_table.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(860, 560);
constexpr const char* nome = "tasti";

bool freccia(QChar c) { return c >= QChar(0x2190) && c <= QChar(0x21FF); }

// As this desktop and this language write them, but by no arrow: Home would be taken for one of the
// four keys that bear them.
QString mostrati(const std::string& tasti) {
    QStringList scritti;
    for (const QString& uno : qt(tasti).split(QStringLiteral(", "))) {
        const QString suo =
            QKeySequence(uno, QKeySequence::PortableText).toString(QKeySequence::NativeText);
        scritti += std::any_of(suo.begin(), suo.end(), freccia) ? uno : suo;
    }
    scritti.removeDuplicates();  // some languages have one word for Return and Enter
    return scritti.join(QStringLiteral(", "));
}

}  // namespace

FinestraTasti::FinestraTasti(QWidget& principale)
    : FinestraCompagna(principale, QLatin1String(nome), tradotto("Tasti del programma"),
                       misuraComoda) {
    auto* elenco = new QTreeWidget(this);
    elenco->setObjectName(QStringLiteral("elenco"));
    elenco->setAccessibleName(tradotto("Tasti e loro effetto"));
    elenco->setHeaderLabels({tradotto("Tasti"), tradotto("Effetto")});
    elenco->setRootIsDecorated(false);
    elenco->setItemsExpandable(false);
    elenco->setAlternatingRowColors(true);
    for (const auto& [finestra, righe] : commands::tastiProgramma()) {
        auto* sua = new QTreeWidgetItem(elenco, {qt(finestra)});
        sua->setFirstColumnSpanned(true);
        QFont grassetto = elenco->font();
        grassetto.setBold(true);
        sua->setFont(0, grassetto);
        for (const auto& riga : righe)
            new QTreeWidgetItem(sua, {mostrati(riga.tasti), qt(riga.effetto)});
    }
    elenco->expandAll();
    elenco->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    elenco->setCurrentItem(elenco->topLevelItem(0));
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(elenco);
    auto* fila = new FilaPulsanti(*this);
    fila->finisci();
    colonna->addWidget(fila);
    elenco->setFocus();
}

void mostraTasti(QWidget& principale) {
    auto* finestra = principale.findChild<FinestraCompagna*>(QLatin1String(nome));
    if (finestra == nullptr) finestra = new FinestraTasti(principale);
    finestra->mostraDavanti();
}

}  // namespace korven::shell
