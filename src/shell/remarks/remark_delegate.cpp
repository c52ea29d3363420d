#include "shell/remarks/remark_delegate.hpp"

#include <QGuiApplication>
#include <QPainter>

#include "review/remark.hpp"
#include "shell/icons/icon_set.hpp"

namespace korven::shell {

namespace {

constexpr int lato = 20;  // of the sign [px]

struct Segno {
    const char* icona;
    QColor chiaro, scuro;  // on a light ground, on a dark one: both stand out by 4.5 : 1
};
const QColor rosso(0xB0, 0x10, 0x10), rossoChiaro(0xFF, 0x8A, 0x80);
const QColor ambra(0x8A, 0x5A, 0x00), ambraChiara(0xF0, 0xB8, 0x4A);

Segno segnoDi(review::Peso peso) {
    switch (peso) {
        case review::Peso::impedisce:
            return {"stop", rosso, rossoChiaro};
        case review::Peso::pericolo:
            return {"danger", rosso, rossoChiaro};
        case review::Peso::daVedere:
            break;
    }
    return {"look", ambra, ambraChiara};
}

}  // namespace

DelegatoOsservazioni::DelegatoOsservazioni(QObject* padre)
    : DelegatoIntestato(
          {.titolo = datoPeso, .testo = Qt::DisplayRole, .righe = 0, .margineSinistro = lato},
          padre) {}

void DelegatoOsservazioni::orna(QPainter& pittore, const QRect& margine, const QModelIndex& indice,
                                bool scelta) const {
    const Segno segno = segnoDi(static_cast<review::Peso>(indice.data(datoNumeroPeso).toInt()));
    const bool scuro = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    const QIcon figura = scelta ? icona(segno.icona, QPalette::HighlightedText)
                                : icona(segno.icona, scuro ? segno.scuro : segno.chiaro);
    figura.paint(&pittore, QRect(margine.topLeft(), QSize(lato, lato)));
}

}  // namespace korven::shell
