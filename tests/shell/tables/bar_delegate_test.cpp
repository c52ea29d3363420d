#include "shell/tables/bar_delegate.hpp"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>

#include "review/remark.hpp"
#include "shell/tables/table_model.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

// A cell of two lines, on white.
QImage dipinta(const QModelIndex& indice) {
    QTableView tabella;
    QStyleOptionViewItem opzioni;
    opzioni.initFrom(&tabella);
    opzioni.widget = &tabella;
    opzioni.rect = QRect(0, 0, 200, 60);
    opzioni.state = QStyle::State_Enabled | QStyle::State_Active;
    opzioni.palette.setColor(QPalette::Text, Qt::black);
    QImage immagine(200, 60, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pittore(&immagine);
    DelegatoBarre().paint(&pittore, opzioni, indice);
    return immagine;
}

TEST(DelegatoBarre, KeepsAMarkClearOfAllLines) {
    test::applicazione();
    QStandardItemModel modello(1, 1);
    const QModelIndex indice = modello.index(0, 0);
    modello.setData(indice, QStringLiteral("MMMM\nMMMM"), Qt::DisplayRole);
    modello.setData(indice, static_cast<int>(review::Peso::pericolo), datoPesoCella);
    const QImage immagine = dipinta(indice);
    const QRgb segno = immagine.pixel(2, 2);
    EXPECT_NE(segno, qRgb(255, 255, 255));
    bool testo = false;
    for (int y = 2; y < 58; ++y) {
        EXPECT_EQ(immagine.pixel(4, y), segno) << y;
        EXPECT_EQ(immagine.pixel(5, y), qRgb(255, 255, 255)) << y;
        for (int x = 6; x < 190; ++x) testo = testo || qGray(immagine.pixel(x, y)) < 100;
    }
    EXPECT_TRUE(testo);
}

}  // namespace
}  // namespace korven::shell
