#include "shell/report/preview_lines.hpp"

#include <QFontMetrics>
#include <QSize>
#include <algorithm>

namespace korven::shell {

namespace {

constexpr int margine = 8;  // that the list keeps beside its texts [pixels]

}  // namespace

void RigheAnteprima::aggiungi(const std::vector<QString>& righe) {
    if (righe.empty()) return;
    const QFontMetrics misure(font_);
    const int prima = static_cast<int>(righe_.size());
    beginInsertRows({}, prima, prima + static_cast<int>(righe.size()) - 1);
    for (const QString& riga : righe) {
        larghezza_ = std::max(larghezza_, misure.horizontalAdvance(riga) + margine);
        righe_.push_back(riga);
    }
    endInsertRows();
}

void RigheAnteprima::svuota() {
    beginResetModel();
    righe_.clear();
    larghezza_ = 0;
    endResetModel();
}

int RigheAnteprima::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(righe_.size());
}

QVariant RigheAnteprima::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid()) return {};
    if (ruolo == Qt::DisplayRole) return righe_[static_cast<std::size_t>(indice.row())];
    if (ruolo == Qt::SizeHintRole) return QSize(larghezza_, QFontMetrics(font_).height());
    return {};
}

}  // namespace korven::shell
