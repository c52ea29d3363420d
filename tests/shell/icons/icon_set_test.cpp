#include "shell/icons/icon_set.hpp"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "commands/menu_tree.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

// The points that a drawing colours, and the mean of their colours weighted by how they cover.
struct Tinta {
    int punti = 0;
    double rosso = 0, verde = 0, blu = 0;
};

Tinta tinta(const QImage& immagine) {
    Tinta t;
    double peso = 0;
    for (int y = 0; y < immagine.height(); ++y)
        for (int x = 0; x < immagine.width(); ++x) {
            const QColor c = immagine.pixelColor(x, y);
            if (c.alpha() == 0) continue;
            ++t.punti;
            peso += c.alphaF();
            t.rosso += c.redF() * 255.0 * c.alphaF();
            t.verde += c.greenF() * 255.0 * c.alphaF();
            t.blu += c.blueF() * 255.0 * c.alphaF();
        }
    if (peso > 0) {
        t.rosso /= peso;
        t.verde /= peso;
        t.blu /= peso;
    }
    return t;
}

class Icone : public ::testing::Test {
 protected:
    ~Icone() override { QGuiApplication::setPalette(prima_); }
    static void testoDi(const QColor& colore) {
        QPalette tavolozza = QGuiApplication::palette();
        tavolozza.setColor(QPalette::ButtonText, colore);
        QGuiApplication::setPalette(tavolozza);
    }
    QApplication& app = test::applicazione();

 private:
    QPalette prima_ = QGuiApplication::palette();
};

TEST_F(Icone, AreAllDrawnWithinTheirSquare) {
    const QStringList nomi = nomiIcone();
    EXPECT_GE(nomi.size(), 40);
    for (const QString& nome : nomi) {
        const QImage immagine =
            icona(nome.toStdString(), QColor(Qt::black)).pixmap(48, 48).toImage();
        EXPECT_GE(tinta(immagine).punti, 60) << nome.toStdString();
        for (int i = 0; i < 48; ++i)
            for (const QPoint bordo : {QPoint(i, 0), QPoint(i, 47), QPoint(0, i), QPoint(47, i)})
                EXPECT_EQ(immagine.pixelColor(bordo).alpha(), 0)
                    << nome.toStdString() << ' ' << bordo.x() << ',' << bordo.y();
    }
}

TEST_F(Icone, DifferFromOneAnother) {
    QList<QImage> viste;
    for (const QString& nome : nomiIcone()) {
        const QImage immagine =
            icona(nome.toStdString(), QColor(Qt::black)).pixmap(24, 24).toImage();
        EXPECT_FALSE(viste.contains(immagine)) << nome.toStdString();
        viste.append(immagine);
    }
}

TEST_F(Icone, BelongToEveryItemOfTheMenusAndToNoMenuOfTheBar) {
    const QStringList nomi = nomiIcone();
    for (const auto& voce : commands::albero()) {
        const auto nome = iconaVoce(voce.nome);
        const bool menuDellaBarra = voce.livello == 0 && commands::apreMenu(voce);
        EXPECT_EQ(nome.empty(), menuDellaBarra) << voce.nome;
        if (!nome.empty()) {
            EXPECT_TRUE(nomi.contains(QString::fromUtf8(nome.data(), nome.size()))) << nome;
        }
    }
}

TEST_F(Icone, TakeTheColourThatTextsHaveWhenTheyAreDrawn) {
    const QIcon una = icona("help");
    for (const QColor colore : {QColor(20, 30, 40), QColor(240, 230, 220)}) {
        testoDi(colore);
        const Tinta t = tinta(una.pixmap(48, 48).toImage());
        EXPECT_NEAR(t.rosso, colore.red(), 4);
        EXPECT_NEAR(t.verde, colore.green(), 4);
        EXPECT_NEAR(t.blu, colore.blue(), 4);
    }
}

TEST_F(Icone, ArePaleWhereTheyCannotBeChosen) {
    const QIcon una = icona("help", QColor(200, 0, 0));
    const Tinta spenta = tinta(una.pixmap(48, 48, QIcon::Disabled).toImage());
    const QColor testo = QGuiApplication::palette().color(QPalette::Disabled, QPalette::ButtonText);
    EXPECT_NEAR(spenta.rosso, testo.red(), 4);
    EXPECT_NEAR(spenta.verde, testo.green(), 4);
}

TEST_F(Icone, AreDrawnAnewForEveryDensityOfTheScreen) {
    for (const double scala : {1.0, 1.25, 1.5, 2.0}) {
        const QPixmap vista = icona("layers").pixmap(QSize(24, 24), scala);
        EXPECT_EQ(vista.width(), qRound(24 * scala));
        EXPECT_GT(tinta(vista.toImage()).punti, 60 * scala);
    }
}

}  // namespace
}  // namespace korven::shell
