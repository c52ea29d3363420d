#include "shell/masks/grid_table.hpp"

#include "shell/qt_text.hpp"

namespace korven::shell {

void TabellaGriglia::cambiate() {
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int TabellaGriglia::rowCount(const QModelIndex& sotto) const {
    return sotto.isValid() ? 0 : masks::CelleGriglia::righe;
}

int TabellaGriglia::columnCount(const QModelIndex& sotto) const {
    return sotto.isValid() ? 0 : modello_.colonne();
}

QVariant TabellaGriglia::data(const QModelIndex& indice, int ruolo) const {
    const masks::PostoGriglia qui = posto(indice);
    const bool numero = modello_.numerica(qui.colonna);
    switch (ruolo) {
        case Qt::DisplayRole:
            return qt(modello_.testo(qui));
        // A description may be longer than its column.
        case Qt::ToolTipRole:
            return numero ? QVariant() : qt(modello_.testo(qui));
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter |
                                       (numero ? Qt::AlignRight : Qt::AlignLeft));
        default:
            return {};
    }
}

QVariant TabellaGriglia::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    if (ruolo != Qt::DisplayRole) return {};
    if (verso == Qt::Vertical) return sezione + 1;
    return qt(modello_.etichetta(sezione + 1));
}

// Editable, so that what is typed through an input method arrives; the view itself opens no editor.
Qt::ItemFlags TabellaGriglia::flags(const QModelIndex& indice) const {
    Qt::ItemFlags segni = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (indice.isValid() && !modello_.soloLettura(posto(indice).colonna))
        segni |= Qt::ItemIsEditable;
    return segni;
}

}  // namespace korven::shell
