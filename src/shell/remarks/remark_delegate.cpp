#include "shell/remarks/remark_delegate.hpp"

#include <QPainter>

namespace korven::shell {

namespace {

constexpr int segno = 4;                   // width of the bar [px]
constexpr QColor rosso(0xB0, 0x10, 0x10);  // of what prevents a run, and of a danger
constexpr QColor ambra(0xC0, 0x80, 0x00);  // of what is to be looked at

}  // namespace

DelegatoOsservazioni::DelegatoOsservazioni(QObject* padre)
    : DelegatoIntestato(
          {.titolo = datoPeso, .testo = Qt::DisplayRole, .righe = 0, .margineSinistro = segno},
          padre) {}

void DelegatoOsservazioni::orna(QPainter& pittore, const QRect& margine,
                                const QModelIndex& indice) const {
    pittore.fillRect(margine, indice.data(datoGrave).toBool() ? rosso : ambra);
}

}  // namespace korven::shell
