#include "shell/report/conf_stampa.hpp"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <string>
#include <utility>
#include <vector>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "device/text_painting.hpp"
#include "shell/failure_box.hpp"
#include "shell/form_sizes.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

struct Campo {
    const char* nome;
    const char* etichetta;
    enum Specie { numero, testo, lista } specie;
};

// In the order of the file.
constexpr Campo campi[] = {
    {"Text1", "Margine sinistro (car.)", Campo::numero},
    {"Text2", "Margine superiore (righe)", Campo::numero},
    {"Text3", "Margine inferiore (righe)", Campo::numero},
    {"Text4", "Lunghezza pagina (righe)", Campo::numero},
    {"Text5", "Altezza caratteri (punti)", Campo::numero},
    {"Text6", "Intestazione", Campo::testo},
    {"Text7", "Piè di pagina", Campo::testo},
    {"List1", "Set di caratteri", Campo::lista},
    {"Text8", "Offset superiore (righe)", Campo::numero},
};
constexpr std::size_t campoCarattere = 7;

std::string file() { return base::fileProgramma("printer.cfg"); }

}  // namespace

ConfStampa::ConfStampa(const QStringList& caratteri, DialogoStampante stampante,
                       base::Dialogo& dialogo, QWidget* padre)
    : QDialog(padre), stampante_(std::move(stampante)), dialogo_(dialogo) {
    setObjectName(QStringLiteral("ConfStampa"));
    setWindowTitle(tradotto("Impostazioni di stampa"));
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(fareCampi(), 1);
    colonna->addWidget(farePulsanti());
    mostra(caratteri);
    prendiMisura(*this, colonna->sizeHint());
    connect(this, &QDialog::finished, this, [this] { ricordaMisure(*this); });
}

QWidget* ConfStampa::fareCampi() {
    auto* tutti = new QWidget(this);
    auto* griglia = new QGridLayout(tutti);
    griglia->setContentsMargins(0, 0, 0, 0);
    constexpr int larghezzaNumero = 90;
    for (int i = 0; const Campo& campo : campi) {
        QWidget* controllo = nullptr;
        if (campo.specie == Campo::lista) {
            controllo = caratteri_ = new QListWidget(tutti);
            griglia->setRowStretch(i, 1);
            griglia->addWidget(controllo, i, 1);
        } else {
            auto* riga = new QLineEdit(tutti);
            controllo = campi_[static_cast<std::size_t>(i)] = riga;
            const bool numero = campo.specie == Campo::numero;
            if (numero) riga->setFixedWidth(larghezzaNumero);
            if (numero) riga->setAlignment(Qt::AlignRight);
            griglia->addWidget(controllo, i, 1, numero ? Qt::AlignLeft : Qt::Alignment());
        }
        controllo->setObjectName(QLatin1String(campo.nome));
        controllo->setAccessibleName(tradotto(campo.etichetta));
        auto* etichetta = new QLabel(tradotto(campo.etichetta), tutti);
        etichetta->setBuddy(controllo);
        griglia->addWidget(etichetta, i++, 0,
                           campo.specie == Campo::lista ? Qt::AlignTop : Qt::Alignment());
    }
    return tutti;
}

QWidget* ConfStampa::farePulsanti() {
    auto* riga = new QWidget(this);
    auto* imposta = new QPushButton(tradotto("&Imposta"), riga);
    auto* stampato = new QPushButton(tradotto("&Stampa"), riga);
    auto* annullato = new QPushButton(tradotto("&Annulla"), riga);
    imposta->setObjectName(QStringLiteral("Command1"));
    stampato->setObjectName(QStringLiteral("Command2"));
    annullato->setObjectName(QStringLiteral("Command3"));
    stampato->setDefault(true);
    connect(imposta, &QPushButton::clicked, this,
            [this] { copie_ = stampante_(this).value_or(copie_); });
    connect(stampato, &QPushButton::clicked, this, [this] { stampa(); });
    connect(annullato, &QPushButton::clicked, this, &QDialog::reject);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(imposta);
    disposizione->addStretch();
    disposizione->addWidget(stampato);
    disposizione->addWidget(annullato);
    return riga;
}

void ConfStampa::mostra(const QStringList& caratteri) {
    const plot::CampiStampa valori = plot::campiStampa(plot::leggiImpostazioni(file()));
    for (std::size_t i = 0; i < campi_.size(); ++i)
        if (campi_[i] != nullptr) campi_[i]->setText(qt(valori[i]));
    caratteri_->addItems(caratteri);
    std::vector<std::string> nomi;
    for (const QString& nome : caratteri) nomi.push_back(nome.toStdString());
    caratteri_->setCurrentRow(plot::carattereDaScegliere(nomi, valori[campoCarattere]));
}

void ConfStampa::stampa() {
    plot::CampiStampa valori;
    for (std::size_t i = 0; i < campi_.size(); ++i)
        if (campi_[i] != nullptr) valori[i] = campi_[i]->text().toStdString();
    if (const QListWidgetItem* scelto = caratteri_->currentItem())
        valori[campoCarattere] = scelto->text().toStdString();
    const bool scritte = conAvviso(dialogo_, [&valori] {
        plot::salvaImpostazioni(file(), plot::impostazioniScritte(valori));
    });
    if (scritte) accept();
}

}  // namespace korven::shell
