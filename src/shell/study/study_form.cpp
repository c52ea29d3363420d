#include "shell/study/study_form.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>
#include <limits>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "shell/qt_text.hpp"
#include "studies/plan/law.hpp"

namespace korven::shell {

namespace {

constexpr int quanteVariazioni = 4, quantiCriteri = 2;
constexpr int lettereCampo = 20, lettereModo = 15, lettereNumero = 6;

QString conNumero(const char* testo, int numero) {
    return qt(base::riempito(base::traduttore(testo), {std::to_string(numero)}));
}

// What a choice is for. Its name is, for whoever listens, what is chosen: so it is described too.
void dillo(QComboBox& scelta, const QString& chiSenteLegge) {
    scelta.setAccessibleName(chiSenteLegge);
    scelta.setAccessibleDescription(chiSenteLegge);
}

// A list of long lines that asks for less room than they need.
QComboBox* scelta(const QString& nome, const QString& chiSenteLegge, QWidget* padre) {
    auto* fatta = new QComboBox(padre);
    fatta->setObjectName(nome);
    dillo(*fatta, chiSenteLegge);
    fatta->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fatta->setMinimumContentsLength(lettereCampo);
    return fatta;
}

QLineEdit* numero(const QString& nome, QWidget* padre) {
    auto* fatto = new QLineEdit(padre);
    fatto->setObjectName(nome);
    fatto->setMinimumWidth(lettereNumero * fatto->fontMetrics().averageCharWidth() * 2);
    return fatto;
}

QHBoxLayout* riga(QWidget* dentro) {
    auto* fatta = new QHBoxLayout(dentro);
    fatta->setContentsMargins(0, 0, 0, 0);
    return fatta;
}

// The same entry by its data, else the first.
void tieni(QComboBox& scelta, const QVariant& chiave) {
    scelta.setCurrentIndex(std::max(0, scelta.findData(chiave)));
}

}  // namespace

FormaStudio::FormaStudio(QWidget* padre) : QWidget(padre) {
    auto* colonna = new QVBoxLayout(this);
    fareModo(*colonna);
    for (int i = 1; i <= quanteVariazioni; ++i) fareVariazione(*colonna, i);
    fareCampioni(*colonna);
    colonna->addWidget(new QLabel(tradotto("Fallisce anche la variante con"), this));
    for (int i = 1; i <= quantiCriteri; ++i) fareCriterio(*colonna, i);
    sicurezza_ = new QCheckBox(tradotto("anche F e lun&ghezza minima"), this);
    sicurezza_->setObjectName(QStringLiteral("sicurezza"));
    sicurezza_->setToolTip(tradotto("Ogni variante richiede circa cento volte il tempo"));
    colonna->addWidget(sicurezza_);
    colonna->addStretch();
    setFocusProxy(modo_);
    connect(modo_, &QComboBox::currentIndexChanged, this, [this] {
        scambiaNumeri();
        segui();
    });
    connect(sicurezza_, &QCheckBox::toggled, this, [this] { segui(); });
    segui();
    ascolta();
}

void FormaStudio::ascolta() {
    for (QComboBox* scelta : findChildren<QComboBox*>())
        connect(scelta, &QComboBox::currentIndexChanged, this, &FormaStudio::cambiata);
    for (QLineEdit* riga : findChildren<QLineEdit*>())
        connect(riga, &QLineEdit::textChanged, this, &FormaStudio::cambiata);
    for (QCheckBox* casella : findChildren<QCheckBox*>())
        connect(casella, &QCheckBox::toggled, this, &FormaStudio::cambiata);
}

// From, to and step are no parameters of a law.
void FormaStudio::scambiaNumeri() {
    for (Variazione& v : variazioni_)
        for (std::size_t i = 0; i < v.numeri.size(); ++i) {
            const QString prima = v.numeri[i]->text();
            v.numeri[i]->setText(std::exchange(v.altri[i], prima));
        }
}

void FormaStudio::fareModo(QVBoxLayout& colonna) {
    auto* pezzo = new QWidget(this);
    modo_ = new QComboBox(pezzo);
    modo_->setObjectName(QStringLiteral("modo"));
    modo_->setAccessibleName(tradotto("In che modo variano i campi"));
    modo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    modo_->setMinimumContentsLength(lettereModo);
    modo_->addItem(tradotto("da un valore a un altro"));
    modo_->addItem(tradotto("a caso, per una legge"));
    auto* etichetta = new QLabel(tradotto("&Variano"), pezzo);
    etichetta->setBuddy(modo_);
    auto* disposizione = riga(pezzo);
    disposizione->addWidget(etichetta);
    disposizione->addWidget(modo_, 1);
    colonna.addWidget(pezzo);
}

void FormaStudio::fareVariazione(QVBoxLayout& colonna, int quale) {
    const QString n = QString::number(quale);
    auto* sopra = new QWidget(this);
    Variazione v{.campo = scelta(QStringLiteral("campo") + n, conNumero("Campo %1", quale), this),
                 .legge = new QComboBox(sopra),
                 .numeri = {},
                 .altri = {}};
    v.legge->setObjectName(QStringLiteral("legge") + n);
    dillo(*v.legge, conNumero("Legge del campo %1", quale));
    for (const studies::NomeLegge& legge : studies::nomiLeggi())
        v.legge->addItem(qt(legge.nome.mostrato()));
    auto* disposizione = riga(sopra);
    disposizione->addWidget(v.legge);
    for (std::size_t i = 0; i < v.numeri.size(); ++i) {
        v.numeri[i] =
            numero(QStringLiteral("numero") + n + QLatin1Char('_') + QString::number(i + 1), sopra);
        disposizione->addWidget(v.numeri[i], 1);
    }
    colonna.addWidget(v.campo);
    colonna.addWidget(sopra);
    variazioni_.push_back(v);
    connect(v.campo, &QComboBox::currentIndexChanged, this, [this, v] { segui(v); });
    connect(v.legge, &QComboBox::currentIndexChanged, this, [this, v] { segui(v); });
}

void FormaStudio::fareCampioni(QVBoxLayout& colonna) {
    suiCampioni_ = new QWidget(this);
    auto* disposizione = new QVBoxLayout(suiCampioni_);
    disposizione->setContentsMargins(0, 0, 0, 0);
    const auto conta = [&](const char* testo, const char* nome, int massimo, int valore) {
        auto* pezzo = new QWidget(suiCampioni_);
        auto* fatto = new QSpinBox(pezzo);
        fatto->setObjectName(QLatin1String(nome));
        fatto->setRange(1, massimo);
        fatto->setValue(valore);
        auto* etichetta = new QLabel(tradotto(testo), pezzo);
        etichetta->setBuddy(fatto);
        fatto->setAccessibleName(etichetta->text().remove(QLatin1Char('&')));
        auto* sua = riga(pezzo);
        sua->addWidget(etichetta);
        sua->addWidget(fatto, 1);
        disposizione->addWidget(pezzo);
        return fatto;
    };
    constexpr int quanti = 1000;
    numero_ =
        conta("&Numero di campioni", "quanti", static_cast<int>(desk::massimoVarianti), quanti);
    seme_ = conta("S&eme", "seme", std::numeric_limits<int>::max(), 1);
    ipercubo_ = new QCheckBox(tradotto("ipercu&bo latino"), suiCampioni_);
    ipercubo_->setObjectName(QStringLiteral("ipercubo"));
    disposizione->addWidget(ipercubo_);
    colonna.addWidget(suiCampioni_);
}

void FormaStudio::fareCriterio(QVBoxLayout& colonna, int quale) {
    const QString n = QString::number(quale);
    auto* sotto = new QWidget(this);
    Criterio c{.risultato = scelta(QStringLiteral("criterio") + n,
                                   conNumero("Risultato del criterio %1", quale), this),
               .segno = new QComboBox(sotto),
               .limite = numero(QStringLiteral("limite") + n, sotto)};
    c.segno->setObjectName(QStringLiteral("segno") + n);
    dillo(*c.segno, conNumero("Confronto del criterio %1", quale));
    for (const char* segno : {">", ">=", "<", "<="}) c.segno->addItem(QLatin1String(segno));
    c.limite->setAccessibleName(conNumero("Limite del criterio %1", quale));
    auto* disposizione = riga(sotto);
    disposizione->addWidget(c.segno);
    disposizione->addWidget(c.limite, 1);
    colonna.addWidget(c.risultato);
    colonna.addWidget(sotto);
    criteri_.push_back(c);
}

QWidget* FormaStudio::ultimo() const { return sicurezza_; }

bool FormaStudio::campioni() const { return modo_->currentIndex() == 1; }

void FormaStudio::offri(const project::DatiProgetto& dati) {
    dati_ = dati;
    segui();
}

void FormaStudio::segui() {
    suiCampioni_->setVisible(campioni());
    const auto campi = desk::campiOfferti(dati_, campioni());
    for (const Variazione& v : variazioni_) {
        const QVariant scelto = v.campo->currentData();
        {
            const QSignalBlocker muta(v.campo);
            v.campo->clear();
            v.campo->addItem(tradotto("nessun campo"), QString());
            for (const auto& campo : campi)
                v.campo->addItem(qt(campo.voce + " = " + campo.ora), qt(campo.nome));
            tieni(*v.campo, scelto);
        }
        segui(v);
    }
    const auto risultati = desk::risultatiOfferti(dati_, sicurezza_->isChecked());
    for (const Criterio& c : criteri_) {
        const QVariant scelto = c.risultato->currentData();
        c.risultato->clear();
        c.risultato->addItem(tradotto("nessun criterio"), QString());
        for (const auto& risultato : risultati)
            c.risultato->addItem(qt(risultato.voce), qt(risultato.nome));
        tieni(*c.risultato, scelto);
    }
}

void FormaStudio::segui(const Variazione& v) {
    const bool varia = !v.campo->currentData().toString().isEmpty();
    v.campo->setToolTip(v.campo->currentText());
    v.legge->setVisible(campioni());
    v.legge->setEnabled(varia);
    const auto nomi = desk::nomiNumeri(campioni(), v.legge->currentIndex());
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        v.numeri[i]->setVisible(!nomi[i].empty());
        v.numeri[i]->setEnabled(varia);
        v.numeri[i]->setPlaceholderText(qt(nomi[i]));
        v.numeri[i]->setToolTip(qt(nomi[i]));
        v.numeri[i]->setAccessibleName(v.campo->accessibleName() + QStringLiteral(", ") +
                                       qt(nomi[i]));
    }
}

desk::StudioScritto FormaStudio::scritto() const {
    desk::StudioScritto s;
    s.campioni = campioni();
    for (const Variazione& v : variazioni_) {
        desk::VariazioneScritta una{.campo = v.campo->currentData().toString().toStdString(),
                                    .legge = v.legge->currentIndex(),
                                    .numeri = {}};
        for (std::size_t i = 0; i < una.numeri.size(); ++i)
            una.numeri[i] = v.numeri[i]->text().trimmed().toStdString();
        s.variazioni.push_back(std::move(una));
    }
    s.numero = static_cast<std::uint64_t>(numero_->value());
    s.seme = static_cast<std::uint64_t>(seme_->value());
    s.ipercubo = s.campioni && ipercubo_->isChecked();
    for (const Criterio& c : criteri_)
        if (const QString nome = c.risultato->currentData().toString(); !nome.isEmpty())
            s.fallisce.push_back({.risultato = nome.toStdString(),
                                  .segno = c.segno->currentText().toStdString(),
                                  .limite = c.limite->text().trimmed().toStdString()});
    s.sicurezza = sicurezza_->isChecked();
    return s;
}

}  // namespace korven::shell
