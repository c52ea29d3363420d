#include "shell/panels/layers_panel.hpp"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/hatch_choice.hpp"
#include "exchange/layer_file.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/icons/icon_set.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/panels/hatch_chooser.hpp"
#include "shell/panels/hatch_picture.hpp"
#include "shell/panels/layer_import.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize campione(144, 96);
constexpr int colonnaDescrizione = static_cast<int>(exchange::descrizione) + 1;

QString nomeFile(const std::string& percorso) { return QFileInfo(qt(percorso)).fileName(); }

}  // namespace

PannelloStrati::PannelloStrati(Base2_32& forma, base::Dialogo& dialogo, FileDiStrati file)
    : PannelloLaterale(QStringLiteral("PannelloStrati"), tradotto("Campitura e file")),
      forma_(forma),
      dialogo_(dialogo),
      file_(std::move(file)) {
    titolo_ = new QLabel(this);
    titolo_->setObjectName(QStringLiteral("titolo"));
    immagine_ = new QLabel(this);
    immagine_->setObjectName(QStringLiteral("immagine"));
    immagine_->setFixedSize(campione);
    nome_ = new QLabel(this);
    nome_->setObjectName(QStringLiteral("nome"));
    nome_->setTextFormat(Qt::PlainText);
    nome_->setWordWrap(true);
    nome_->setFixedWidth(campione.width());
    auto* campitura = farePulsante("campitura", "hatch", tradotto("Ca&mpitura..."),
                                   tradotto("Sceglie la campitura dello strato dalle figure"));
    auto* importa =
        farePulsante("importa", "import", tradotto("Im&porta..."),
                     tradotto("Strati da un foglio di calcolo (CSV) o da un'indagine (AGS 4)"));
    auto* esporta = farePulsante("esporta", "export", tradotto("Esporta CS&V..."),
                                 tradotto("Scrive gli strati per un foglio di calcolo"));
    vaiVuota_ = farePulsante("vaiVuota", "look", tradotto("Cella v&uota"),
                             tradotto("Va alla prossima cella vuota che il calcolo legge"));
    auto* tutto = new QWidget(this);
    auto* colonna = new QVBoxLayout(tutto);
    colonna->setContentsMargins(0, 0, 0, 0);
    for (QWidget* parte : {static_cast<QWidget*>(titolo_), static_cast<QWidget*>(immagine_),
                           static_cast<QWidget*>(nome_), static_cast<QWidget*>(campitura)})
        colonna->addWidget(parte);
    colonna->addStretch();
    colonna->addWidget(vaiVuota_);
    colonna->addWidget(importa);
    colonna->addWidget(esporta);
    riempi(nullptr, tutto);
    connect(campitura, &QPushButton::clicked, this, [this] { scegliCampitura(); });
    connect(importa, &QPushButton::clicked, this, [this] { this->importa(); });
    connect(esporta, &QPushButton::clicked, this, [this] { this->esporta(); });
    connect(&forma_, &Base2_32::postoCambiato, this, [this] { mostra(); });
    connect(&forma_, &FormaMaschera::digitata, this, [this] {
        fatto_.clear();
        mostra();
    });
    connect(vaiVuota_, &QPushButton::clicked, this, [this] { vaiAllaVuota(); });
    mostra();
}

QPushButton* PannelloStrati::farePulsante(const char* nome, const char* figura,
                                          const QString& testo, const QString& suggerimento) {
    auto* fatto = new QPushButton(icona(figura), testo, this);
    fatto->setObjectName(QLatin1String(nome));
    fatto->setToolTip(suggerimento);
    fatto->setAutoDefault(false);  // Enter belongs to the table
    return fatto;
}

int PannelloStrati::riga() const { return forma_.modello().corrente().riga; }

exchange::RigheStrati PannelloStrati::righe() const {
    const auto testi = forma_.modello().valoriTesto();
    exchange::RigheStrati tutte((testi.size() - 1) / exchange::numeroColonne);
    for (std::size_t i = 0; i + 1 < testi.size(); ++i)
        tutte[i / exchange::numeroColonne][i % exchange::numeroColonne] = testi[i + 1];
    return tutte;
}

void PannelloStrati::mostra() {
    mostraCampitura();
    avvisa();
}

// What was done with a file, and what the table still lacks: an empty cell is read as 0 without a
// question.
void PannelloStrati::avvisa() {
    const auto vuote = celleVuote();
    vaiVuota_->setEnabled(vuote.has_value());
    QStringList note;
    if (!fatto_.isEmpty()) note << fatto_;
    if (vuote) note << qt(vuote->parole);
    forma_.nota(note.join(QLatin1Char(' ')));
}

void PannelloStrati::detto(const char* chiave, const std::string& percorso, std::size_t strati) {
    const auto quale = QDir::toNativeSeparators(qt(percorso)).toStdString();
    fatto_ = qt(base::riempito(base::traduttore(chiave), {quale, std::to_string(strati)}));
    avvisa();
}

std::optional<panels::CelleVuote> PannelloStrati::celleVuote() const {
    return panels::celleVuote(forma_.modello(), masks::NumeroMaschera::strati, project::Progetto);
}

void PannelloStrati::vaiAllaVuota() {
    if (const auto vuote = celleVuote()) forma_.vai(vuote->prossima);
}

void PannelloStrati::mostraCampitura() {
    titolo_->setText(tradotto("Strato") + ' ' + QString::number(riga()));
    const std::string& testo = forma_.modello().testo({riga(), colonnaDescrizione});
    if (testo == mostrata_) return;  // most keys change another cell
    mostrata_ = testo;
    try {
        const auto figura = drawings::figura(testo);
        nome_->setText(qt(figura.nome));
        immagine_->setPixmap(
            immagineCampitura(figura.codice, figura.colore, campione, devicePixelRatioF()));
    } catch (const base::ErroreFile&) {  // told when one is to be chosen
        nome_->clear();
        immagine_->clear();
    }
    immagine_->setAccessibleName(tradotto("Campitura dello strato"));
    immagine_->setAccessibleDescription(nome_->text());
}

void PannelloStrati::scegliCampitura() {
    const masks::PostoGriglia posto{riga(), colonnaDescrizione};
    try {
        SceglieCampitura scelta(forma_.modello().testo(posto), this);
        if (scelta.exec() == QDialog::Accepted) forma_.scrivi(posto, scelta.descrizione());
    } catch (const base::ErroreFile& errore) {
        dialogo_.messaggio(errore.what(), base::traduttore("ATTENZIONE") + "!",
                           base::Icona::avviso);
    }
}

void PannelloStrati::importa() {
    const auto percorso = file_.daLeggere(this);
    if (!percorso) return;
    try {
        ImportaStrati importo(exchange::FileStrati::apri(*percorso), righe(), nomeFile(*percorso),
                              this);
        if (importo.exec() != QDialog::Accepted) return;
        std::vector<std::vector<std::string>> nuove;
        for (const auto& riga : importo.righe()) nuove.emplace_back(riga.begin(), riga.end());
        forma_.sostituisci(nuove, base::traduttore("strati importati"));
        detto("Strati importati da «%1»: %2.", *percorso, nuove.size());
        vaiAllaVuota();
    } catch (const base::ErroreFile& errore) {
        dialogo_.messaggio(errore.what(), base::traduttore("ATTENZIONE") + "!",
                           base::Icona::avviso);
    }
}

void PannelloStrati::esporta() {
    const auto strati = righe();
    const auto difetti = exchange::difettiRighe(strati);
    if (strati.empty() || !difetti.empty()) {
        const std::string cosa = strati.empty()
                                     ? base::traduttore("Non ci sono strati da scrivere.")
                                     : base::traduttore("Gli strati non si possono scrivere:") +
                                           "\r\n" + difetti.front();
        dialogo_.messaggio(cosa, base::traduttore("ATTENZIONE") + "!", base::Icona::avviso);
        return;
    }
    const auto scelto = file_.daScrivere(this);
    if (!scelto) return;
    try {
        project::controllaUscita(scelto->percorso, project::fileCorrente);
        base::scriviFile(scelto->percorso, exchange::testoCsv(strati, scelto->forma));
        detto("Strati scritti in «%1»: %2.", scelto->percorso, strati.size());
    } catch (const base::ErroreFile& errore) {
        dialogo_.messaggio(errore.what(), base::traduttore("ATTENZIONE") + "!",
                           base::Icona::avviso);
    }
}

}  // namespace korven::shell
