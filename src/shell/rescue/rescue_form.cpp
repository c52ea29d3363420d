#include "shell/rescue/rescue_form.hpp"

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "shell/form_sizes.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/rescue/rescue_state.hpp"

namespace korven::shell {

namespace {

using commands::OffertaRecupero;
using commands::SceltaRecupero;

constexpr QSize misuraComoda(960, 640);

QString conValore(const char* testo, const QString& valore) {
    return qt(base::riempito(base::traduttore(testo), {valore.toStdString()}));
}

// The same in all languages, and never taken for another day.
QString istante(std::time_t quando) {
    return QDateTime::fromSecsSinceEpoch(quando).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

bool filePiuRecente(const OffertaRecupero& offerta) {
    return offerta.salvato && *offerta.salvato > offerta.scritto;
}

// A row that only one of the two states has.
QString oTrattino(const std::string& valore) {
    return valore.empty() ? QStringLiteral("–") : qt(valore);
}

QString salvato(const OffertaRecupero& offerta) {
    if (offerta.salvato) return conValore("Salvato: %1", istante(*offerta.salvato));
    return offerta.copiato ? tradotto("Mai salvato") : tradotto("Mai salvato, ancora vuoto");
}

const char* testoTieni(const OffertaRecupero& offerta) {
    if (offerta.salvato) return "&Tieni il file";
    return offerta.copiato ? "&Tieni il progetto copiato" : "&Tieni il progetto vuoto";
}

QString spiegazione(const OffertaRecupero& offerta) {
    QString testo = tradotto(
        "Il programma si è chiuso prima che queste modifiche fossero salvate. Con quale dei due "
        "stati si continua?");
    if (filePiuRecente(offerta))
        testo += QLatin1Char('\n') + tradotto("Il file del progetto è stato salvato dopo.");
    if (offerta.altri > 0)
        testo += QLatin1Char('\n') + conValore("Altri file di recupero, meno recenti: %1",
                                               QString::number(offerta.altri));
    return testo;
}

}  // namespace

FormaRecupero::FormaRecupero(const OffertaRecupero& offerta, QWidget* padre)
    : QDialog(padre), offerta_(offerta) {
    setObjectName(QStringLiteral("recupero"));
    setProperty("paginaGuida", QStringLiteral("recupero"));
    setWindowTitle(tradotto("Lavoro recuperato"));
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(etichettaInRighe("spiegazione", this, spiegazione(offerta)));
    colonna->addWidget(fareStati(), 3);
    colonna->addWidget(fareDifferenze(), 2);
    colonna->addWidget(farePulsanti());
    prendiMisura(*this, misuraComoda);
}

QWidget* FormaRecupero::fareStati() {
    auto* riga = new QWidget(this);
    auto* affiancati = new QHBoxLayout(riga);
    affiancati->setContentsMargins(0, 0, 0, 0);
    affiancati->addWidget(
        new StatoProgetto({QStringLiteral("statoFile"), tradotto("File del progetto"),
                           salvato(offerta_), qt(offerta_.progetto)},
                          offerta_.aperto, riga),
        1);
    affiancati->addWidget(
        new StatoProgetto(
            {QStringLiteral("statoRecuperato"), tradotto("Lavoro recuperato"),
             conValore("Messo in salvo: %1", istante(offerta_.scritto)), qt(offerta_.file)},
            offerta_.recuperato, riga),
        1);
    return riga;
}

QWidget* FormaRecupero::fareDifferenze() {
    auto* parte = new QWidget(this);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    const QString quante = conValore("Differenze: %1", QString::number(offerta_.differenze.size()));
    auto* elenco = new QTreeWidget(parte);
    elenco->setObjectName(QStringLiteral("differenze"));
    elenco->setAccessibleName(quante);
    elenco->setRootIsDecorated(false);
    elenco->setUniformRowHeights(true);
    elenco->setAlternatingRowColors(true);
    elenco->setHeaderLabels(
        {tradotto("Dato"), tradotto("File del progetto"), tradotto("Lavoro recuperato")});
    elenco->header()->setSectionResizeMode(QHeaderView::Stretch);
    for (const auto& differenza : offerta_.differenze) {
        auto* voce = new QTreeWidgetItem(
            elenco, {qt(differenza.cosa), oTrattino(differenza.prima), oTrattino(differenza.dopo)});
        for (int c = 0; c < elenco->columnCount(); ++c) voce->setToolTip(c, voce->text(c));
    }
    elenco->setCurrentItem(elenco->topLevelItem(0));
    colonna->addWidget(etichettaInRighe("quante", parte, quante));
    colonna->addWidget(elenco, 1);
    return parte;
}

QWidget* FormaRecupero::farePulsanti() {
    auto* riga = new QWidget(this);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    auto* prendi =
        farePulsante("prendi", "&Prendi il lavoro recuperato", SceltaRecupero::prendi, riga);
    farePulsante("tieni", testoTieni(offerta_), SceltaRecupero::tieni, riga);
    disposizione->addStretch();
    auto* dopo = farePulsante("dopo", "&Decidi dopo", SceltaRecupero::dopo, riga);
    auto* primo = filePiuRecente(offerta_) ? dopo : prendi;
    primo->setDefault(true);
    primo->setFocus();
    return riga;
}

QPushButton* FormaRecupero::farePulsante(const char* nome, const char* testo, SceltaRecupero scelta,
                                         QWidget* riga) {
    auto* fatto = new QPushButton(tradotto(testo), riga);
    fatto->setObjectName(QLatin1String(nome));
    connect(fatto, &QPushButton::clicked, this, [this, scelta] {
        scelta_ = scelta;
        accept();
    });
    riga->layout()->addWidget(fatto);
    return fatto;
}

void collegaRecupero(commands::FormeProgramma& forme, QWidget& principale) {
    forme.recupero = [&principale](const OffertaRecupero& offerta) {
        FormaRecupero forma(offerta, &principale);
        forma.exec();
        return forma.scelta();
    };
}

}  // namespace korven::shell
