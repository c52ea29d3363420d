#include "shell/tables/table_model.hpp"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <numeric>
#include <utility>

#include "base/colon.hpp"
#include "shell/qt_text.hpp"
#include "tables/table_order.hpp"

namespace korven::shell {

namespace {

using tables::Cella;
using tables::Colonna;

// Three fifths of the way from the ground to the text: grey, and still to be read.
QColor grigio() {
    const QPalette colori = QGuiApplication::palette();
    const QColor testo = colori.color(QPalette::Text), fondo = colori.color(QPalette::Base);
    const auto fra = [](int a, int b) { return (3 * a + 2 * b) / 5; };
    return {fra(testo.red(), fondo.red()), fra(testo.green(), fondo.green()),
            fra(testo.blue(), fondo.blue())};
}

// What a screen reader says of a cell: "Momento -12.30 kN m/m".
QString detta(const Colonna& colonna, const Cella& cella) {
    QString testo = qt(colonna.titolo) + QLatin1Char(' ') + qt(cella.testo);
    if (!colonna.unita.empty()) testo += QLatin1Char(' ') + qt(colonna.unita);
    if (!cella.perche.empty()) testo += qt(base::duePunti() + cella.perche);
    if (cella.peso) testo += QStringLiteral(", ") + tradotto(parolaMostrata(*cella.peso));
    return testo;
}

QVariant datoCella(const Colonna& colonna, const Cella& cella, int ruolo) {
    switch (ruolo) {
        case Qt::DisplayRole:
            return qt(cella.testo);
        case Qt::ToolTipRole:  // words may be cut
            if (!cella.perche.empty()) return qt(cella.perche);
            return colonna.numerica ? QVariant() : QVariant(qt(cella.testo));
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter |
                                       (colonna.numerica ? Qt::AlignRight : Qt::AlignLeft));
        case Qt::AccessibleTextRole:
            return detta(colonna, cella);
        case Qt::FontRole: {
            if (cella.peso != review::Peso::pericolo) return {};
            QFont grassetto = QGuiApplication::font();
            grassetto.setBold(true);
            return grassetto;
        }
        case datoBarra:
            return cella.barra ? QVariant(*cella.barra) : QVariant();
        case datoPesoCella:
            return cella.peso ? QVariant(static_cast<int>(*cella.peso)) : QVariant();
        default:
            return {};
    }
}

}  // namespace

void ModelloProspetto::mostra(tables::Prospetto prospetto) {
    if (prospetto == prospetto_) return;
    if (prospetto.colonne.size() != prospetto_.colonne.size()) {
        beginResetModel();
        prospetto_ = std::move(prospetto);
        teste_.clear();
        if (colonna_ >= columnCount()) colonna_ = -1;
        ordine_ = ordinate();
        endResetModel();
        return;
    }
    const bool teste = prospetto.colonne != prospetto_.colonne;
    const int prima = rowCount(), dopo = static_cast<int>(prospetto.righe.size());
    if (dopo > prima) beginInsertRows({}, prima, dopo - 1);
    if (dopo < prima) beginRemoveRows({}, dopo, prima - 1);
    prospetto_ = std::move(prospetto);
    if (dopo != prima) ordine_ = ordinate();
    if (dopo > prima) endInsertRows();
    if (dopo < prima) endRemoveRows();
    riordina();
    if (teste) {
        teste_.clear();
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
    cambiateTutte();
}

void ModelloProspetto::mostraTeste(QStringList teste) {
    if (teste == teste_) return;
    teste_ = std::move(teste);
    if (columnCount() > 0) emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void ModelloProspetto::sospendi(bool sospeso) {
    if (sospeso == sospeso_) return;
    sospeso_ = sospeso;
    cambiateTutte();
}

void ModelloProspetto::cambiateTutte() {
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

std::vector<std::size_t> ModelloProspetto::ordinate() const {
    if (colonna_ >= 0)
        return tables::ordine(prospetto_, static_cast<std::size_t>(colonna_), crescente_);
    std::vector<std::size_t> righe(prospetto_.righe.size());
    std::iota(righe.begin(), righe.end(), std::size_t{0});
    return righe;
}

// What is selected goes with its row.
void ModelloProspetto::riordina() {
    std::vector<std::size_t> nuovo = ordinate();
    if (nuovo == ordine_) return;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<int> posto(nuovo.size());
    for (std::size_t i = 0; i < nuovo.size(); ++i) posto[nuovo[i]] = static_cast<int>(i);
    const QModelIndexList vecchi = persistentIndexList();
    QModelIndexList nuovi;
    for (const QModelIndex& uno : vecchi)
        nuovi.append(index(posto[ordine_[static_cast<std::size_t>(uno.row())]], uno.column()));
    ordine_ = std::move(nuovo);
    changePersistentIndexList(vecchi, nuovi);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

std::size_t ModelloProspetto::riga(int vista) const {
    return ordine_.at(static_cast<std::size_t>(vista));
}

int ModelloProspetto::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(prospetto_.righe.size());
}

int ModelloProspetto::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(prospetto_.colonne.size());
}

QVariant ModelloProspetto::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid()) return {};
    if (ruolo == Qt::ForegroundRole) return sospeso_ ? QVariant(grigio()) : QVariant();
    const auto colonna = static_cast<std::size_t>(indice.column());
    return datoCella(prospetto_.colonne[colonna], prospetto_.righe[riga(indice.row())][colonna],
                     ruolo);
}

// The first column names its row, for those who can't see it.
QVariant ModelloProspetto::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    if (verso == Qt::Vertical) {
        if (sezione < 0 || sezione >= rowCount()) return {};
        const QModelIndex prima = index(sezione, 0);
        if (ruolo == Qt::DisplayRole) return data(prima, Qt::DisplayRole);
        return ruolo == Qt::AccessibleTextRole ? data(prima, ruolo) : QVariant();
    }
    if (sezione < 0 || sezione >= columnCount()) return {};
    const Colonna& colonna = prospetto_.colonne[static_cast<std::size_t>(sezione)];
    switch (ruolo) {
        case Qt::DisplayRole:
            if (sezione < teste_.size()) return teste_[sezione];
            [[fallthrough]];
        case Qt::AccessibleTextRole:
            return qt(colonna.testa());
        case Qt::ToolTipRole:
        case Qt::AccessibleDescriptionRole:
            return qt(colonna.spiegazione);
        default:
            return {};
    }
}

void ModelloProspetto::sort(int colonna, Qt::SortOrder verso) {
    colonna_ = colonna < columnCount() ? colonna : -1;
    crescente_ = verso == Qt::AscendingOrder;
    riordina();
}

}  // namespace korven::shell
