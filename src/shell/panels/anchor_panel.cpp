#include "shell/panels/anchor_panel.hpp"

#include <QLabel>
#include <QVBoxLayout>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "panels/anchor_forces.hpp"
#include "panels/anchor_kind.hpp"
#include "panels/grid_rows.hpp"
#include "shell/forms/history_keys.hpp"
#include "shell/panels/anchor_fields.hpp"
#include "shell/panels/force_table.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

// Columns of the table of anchors.
constexpr int rigidezza = 2, pretensione = 3;

QLabel* fareTesto(const char* nome, QWidget* genitore) {
    auto* testo = new QLabel(genitore);
    testo->setObjectName(QLatin1String(nome));
    testo->setWordWrap(true);
    return testo;
}

std::string titoloTiri(const masks::ModelloGriglia& griglia) {
    const int riga = griglia.corrente().riga;
    const auto tirante = panels::tiranteDellaRiga(griglia, riga);
    if (tirante && *tirante != riga)
        return base::riempito(
            base::traduttore("Tiro della riga %1 in ogni fase (alla conferma sarà il tirante %2)"),
            {std::to_string(riga), std::to_string(*tirante)});
    return base::riempito(base::traduttore("Tiro della riga %1 in ogni fase"),
                          {std::to_string(riga)});
}

}  // namespace

PannelloTiranti::PannelloTiranti(Base2_32& forma, VitaProgetto& vita,
                                 panels::IngressiCalcolo& ingressi)
    : PannelloLaterale(QStringLiteral("pannelloTiranti"), tradotto("Calcolo e tiri")),
      forma_(forma),
      vita_(vita),
      ingressi_(ingressi),
      discorde_(fareTesto("calcoloTipologia", this)),
      campi_(new CampiTirante(ingressi)),
      titolo_(fareTesto("tiriTitolo", this)),
      tiri_(new TabellaTiri(this)),
      perche_(fareTesto("tiriPerche", this)) {
    riempi(fareCalcolo(), fareTiri());
    connect(campi_, &CampiTirante::scriviRigidezza, this,
            [this](const std::string& testo) { scrivi(rigidezza, testo); });
    connect(campi_, &CampiTirante::scriviPretensione, this,
            [this](const std::string& testo) { scrivi(pretensione, testo); });
    // One of the two histories speaks at a time.
    connect(campi_, &CampiTirante::digitata, this, [this] {
        forma_.taci();
        aggiorna();
    });
    const auto tabella = [this] {
        campi_->storia().taci();
        aggiorna();
    };
    connect(&forma, &FormaMaschera::digitata, this, tabella);
    connect(&forma, &Base2_32::postoCambiato, this, tabella);
    connect(&forma, &Base2_32::tornata, this, tabella);
    connect(&vita, &VitaProgetto::cambiata, this, &PannelloTiranti::aggiorna);
    new TastiStoria(
        *campi_, [this] { torna(false); }, [this] { torna(true); });
    aggiorna();
}

QWidget* PannelloTiranti::fareCalcolo() {
    auto* calcolo = new QWidget(this);
    auto* colonna = new QVBoxLayout(calcolo);
    colonna->setContentsMargins(0, 0, 0, 0);
    auto* significato = fareTesto("calcoloSignificato", calcolo);
    // One line or two: on a small screen what is calculated needs the room.
    significato->setText(tradotto("Valori per metro di paratia e in orizzontale, per la tabella."));
    significato->setToolTip(inRighe(base::traduttore(
        "La tabella chiede valori per metro di paratia, in direzione orizzontale: il programma non "
        "divide per l'interasse e non moltiplica per il coseno, lo fa questo calcolo.")));
    significato->setAccessibleDescription(significato->toolTip());
    colonna->addWidget(significato);
    colonna->addWidget(discorde_);
    colonna->addWidget(campi_);
    colonna->addStretch();
    return calcolo;
}

QWidget* PannelloTiranti::fareTiri() {
    auto* tiri = new QWidget(this);
    auto* colonna = new QVBoxLayout(tiri);
    colonna->setContentsMargins(0, 0, 0, 0);
    QFont grassetto = font();
    grassetto.setBold(true);
    titolo_->setFont(grassetto);
    for (QWidget* pezzo : std::initializer_list<QWidget*>{titolo_, perche_, tiri_})
        colonna->addWidget(pezzo);
    return tiri;
}

void PannelloTiranti::scrivi(int colonna, const std::string& testo) {
    const auto prima = forma_.modello().valoriDigitati();
    static_cast<void>(forma_.scrivi({forma_.modello().corrente().riga, colonna}, testo));
    if (forma_.modello().valoriDigitati() != prima) campi_->storia().usata();
}

// First what was typed into the calculator, then the steps of the table; done again the other way
// round. The keyboard stays here: what is typed next is meant for the calculation.
void PannelloTiranti::torna(bool avanti) {
    const auto& griglia = forma_.modello();
    if (avanti ? campi_->ripeti(griglia.ripetibile()) : campi_->annulla()) return;
    QWidget* fuoco = forma_.focusWidget();
    if (!avanti && griglia.annullabile()) campi_->storia().annullatoInTabella();
    avanti ? forma_.ripeti() : forma_.annulla();
    if (fuoco != nullptr) fuoco->setFocus();
    campi_->storia().taci();
    aggiorna();
}

void PannelloTiranti::aggiorna() {
    const auto& griglia = forma_.modello();
    const int riga = griglia.corrente().riga;
    campi_->perRiga(riga);
    const std::string discorde = panels::tipologiaDiscorde(griglia, riga, ingressi_.genere);
    discorde_->setText(qt(discorde));
    discorde_->setVisible(!discorde.empty());
    forma_.nota(qt(campi_->storia().detto()));
    const std::string titolo = titoloTiri(griglia);
    titolo_->setText(qt(titolo));
    tiri_->setAccessibleName(qt(titolo));
    const auto tiri = panels::tiriDellaRiga(vita_.vivo(), griglia, riga);
    tiri_->mostra(tiri, ingressi_);
    perche_->setText(inRighe(tiri.perche));
    perche_->setVisible(!tiri.perche.empty());
}

}  // namespace korven::shell
