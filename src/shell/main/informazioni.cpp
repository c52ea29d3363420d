#include "shell/main/informazioni.hpp"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/version.hpp"
#include "shell/main/wall_picture.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

QLabel* riga(const QString& testo, const char* nome, double corpo, bool grassetto,
             QWidget* genitore) {
    auto* etichetta = new QLabel(testo, genitore);
    etichetta->setObjectName(nome);
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setAlignment(Qt::AlignHCenter);
    etichetta->setWordWrap(true);
    QFont carattere = etichetta->font();
    carattere.setPointSizeF(carattere.pointSizeF() * corpo);
    carattere.setBold(grassetto);
    etichetta->setFont(carattere);
    return etichetta;
}

}  // namespace

Informazioni::Informazioni(const std::string& fileCorrente, QWidget* genitore) : QDialog(genitore) {
    setObjectName("INFORMAZIONI");
    setWindowTitle(tradotto("Informazioni su KORVEN 32"));
    auto* colonna = new QVBoxLayout(this);
    colonna->setSpacing(8);
    auto* immagine = new QuadroParatia(this);
    immagine->setFixedSize(460, 210);
    immagine->mostraTitolo(false);
    immagine->setAccessibleName(tradotto("Dimensionamento di Paratie e Diaframmi"));
    colonna->addWidget(immagine, 0, Qt::AlignHCenter);
    colonna->addWidget(riga("KORVEN 32", "nome", 2.0, true, this));
    colonna->addWidget(
        riga(tradotto("Dimensionamento di Paratie e Diaframmi"), "sottotitolo", 1.2, false, this));
    colonna->addWidget(
        riga(tradotto("Versione") + " " + qt(base::versione), "versione", 1, false, this));
    colonna->addWidget(
        riga(tradotto("Paratie, diaframmi, pali e palancole, calcolati per fasi di scavo"),
             "descrizione", 1, false, this));
    colonna->addWidget(riga(tradotto("Gli autori di KORVEN 32"), "autori", 1, false, this));
    // Without a field to jump to a label shows every "&" as it is: the doubled one becomes one.
    QString aperto = qt(fileCorrente);
    if (const auto doppia = aperto.indexOf("&&"); doppia >= 0) aperto.remove(doppia, 1);
    auto* file = riga(aperto, "fileCorrente", 1, false, this);
    file->setTextInteractionFlags(Qt::TextSelectableByMouse);
    file->setVisible(!aperto.isEmpty());
    colonna->addWidget(file);
    auto* bottoni = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    bottoni->button(QDialogButtonBox::Ok)->setText("OK");
    bottoni->setCenterButtons(true);
    connect(bottoni, &QDialogButtonBox::accepted, this, &QDialog::accept);
    colonna->addWidget(bottoni);
    bottoni->button(QDialogButtonBox::Ok)->setFocus();
    colonna->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace korven::shell
