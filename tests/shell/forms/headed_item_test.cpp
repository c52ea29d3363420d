#include "shell/forms/headed_item.hpp"

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPainter>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

constexpr int datoTesto = Qt::UserRole + 1;

class VoceIntestata : public ::testing::Test {
 protected:
    void aggiungi(const QString& titolo, const QString& testo) {
        auto* voce = new QListWidgetItem(titolo, &lista);
        voce->setData(datoTesto, testo);
    }
    int altezza(const DelegatoIntestato::Forma& forma, int quale) {
        DelegatoIntestato delegato(forma);
        lista.setItemDelegate(&delegato);
        const int alta = lista.sizeHintForRow(quale);
        lista.setItemDelegate(nullptr);
        return alta;
    }
    VoceIntestata() {
        lista.resize(300, 200);
        lista.show();  // gives the items their width
        aggiungi("Uno", "corto");
        aggiungi("Due", QStringLiteral("parola ").repeated(60));
    }
    QApplication& app = test::applicazione();
    QListWidget lista;
    const int riga = QFontMetrics(lista.font()).height();
};

TEST_F(VoceIntestata, IsAsHighAsTheLinesOfItsText) {
    const DelegatoIntestato::Forma forma{.titolo = Qt::DisplayRole, .testo = datoTesto};
    EXPECT_GE(altezza(forma, 0), 2 * riga);
    EXPECT_GE(altezza(forma, 1) - altezza(forma, 0), 5 * riga);  // 420 letters in 300 pixels
}

TEST_F(VoceIntestata, ShowsNoMoreLinesThanAskedFor) {
    const DelegatoIntestato::Forma forma{.titolo = Qt::DisplayRole, .testo = datoTesto, .righe = 3};
    EXPECT_EQ(altezza(forma, 1) - altezza(forma, 0), 2 * riga);
}

TEST_F(VoceIntestata, LeavesTheMarginAtTheLeftToItsOrnament) {
    struct Ornato : DelegatoIntestato {
        using DelegatoIntestato::DelegatoIntestato;
        void orna(QPainter& pittore, const QRect& margine, const QModelIndex&,
                  bool) const override {
            pittore.fillRect(margine, Qt::green);
            visti.push_back(margine);
        }
        mutable std::vector<QRect> visti;
    };
    Ornato delegato({.titolo = Qt::DisplayRole, .testo = datoTesto, .margineSinistro = 10});
    lista.setItemDelegate(&delegato);
    const QImage vista = lista.grab().toImage();
    ASSERT_GE(delegato.visti.size(), 2u);
    const QRect margine = delegato.visti[0];
    EXPECT_EQ(margine.width(), 10);
    EXPECT_EQ(vista.pixelColor(lista.viewport()->pos() + margine.center()), QColor(Qt::green));
    lista.setItemDelegate(nullptr);
}

}  // namespace
}  // namespace korven::shell
