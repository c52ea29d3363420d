#include "shell/panels/force_table.hpp"

#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "base/number_text.hpp"
#include "safety/words.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

enum Colonna { fase, scavo, tiro, diUno, nota, numeroColonne };
constexpr int righeMinime = 2, righeComode = 6;

QStringList celle(int k, const panels::TiroInFase& qui, const panels::IngressiCalcolo& ingressi) {
    const auto forza = [](std::optional<double> kN) {
        return kN ? qt(base::testoDecimali(*kN, 1)) : QStringLiteral("–");
    };
    const auto uno = qui.tiro ? panels::forzaDiUno(ingressi, *qui.tiro) : std::nullopt;
    return {QString::number(k), qt(safety::metriAllineati(qui.scavo)), forza(qui.tiro), forza(uno),
            qt(qui.nota)};
}

}  // namespace

TabellaTiri::TabellaTiri(QWidget* genitore) : QTreeWidget(genitore) {
    setObjectName(QStringLiteral("tiriFasi"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setColumnCount(numeroColonne);
    setHeaderLabels({tradotto("Fase"), tradotto("Scavo [m]"), tradotto("Tiro [kN/m]"),
                     tradotto("Per elemento [kN]"), tradotto("Nota")});
    headerItem()->setToolTip(diUno, tradotto("Tiro per l'interasse, diviso per il coseno "
                                             "dell'inclinazione: con i valori del calcolo"));
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(true);
    for (int c = fase; c < nota; ++c) headerItem()->setTextAlignment(c, Qt::AlignRight);
}

void TabellaTiri::mostra(const panels::TiriTirante& tiri, const panels::IngressiCalcolo& ingressi) {
    const int fasi = static_cast<int>(tiri.fasi.size());
    while (topLevelItemCount() > fasi) delete takeTopLevelItem(fasi);
    while (topLevelItemCount() < fasi) addTopLevelItem(new QTreeWidgetItem);
    for (int k = 1; k <= fasi; ++k) {
        const auto& qui = tiri.fasi[static_cast<std::size_t>(k) - 1];
        auto& riga = *topLevelItem(k - 1);
        const QStringList testi = celle(k, qui, ingressi);
        QFont carattere = font();
        carattere.setBold(qui.massimo);
        for (int c = 0; c < numeroColonne; ++c) {
            riga.setText(c, testi[c]);
            riga.setFont(c, carattere);
            if (c < nota) riga.setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

QSize TabellaTiri::sizeHint() const {
    constexpr int griglia = 6;  // that a header adds to what its sections ask for
    int larghezza = 2 * frameWidth() + numeroColonne * griglia;
    larghezza += verticalScrollBar()->sizeHint().width();
    for (int c = 0; c < numeroColonne; ++c)
        larghezza += std::max(sizeHintForColumn(c), header()->sectionSizeHint(c));
    const int riga = fontMetrics().height() + 4;
    const int righe = std::clamp(topLevelItemCount(), righeMinime, righeComode);
    return {larghezza, header()->sizeHint().height() + righe * riga + 2 * frameWidth()};
}

QSize TabellaTiri::minimumSizeHint() const {
    return {sizeHint().width(),
            header()->sizeHint().height() + righeMinime * (fontMetrics().height() + 4)};
}

}  // namespace korven::shell
