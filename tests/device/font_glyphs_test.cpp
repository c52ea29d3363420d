#include "device/font_glyphs.hpp"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <numeric>

#include "device/graphics_session.hpp"
#include "device/report_fonts.hpp"
#include "device/text_painting.hpp"

namespace korven::device {
namespace {

class Glifi : public testing::Test {
 protected:
    const SessioneGrafica sessione;
    CaratteriRelazione caratteri;
    CarattereRelazione& arial = caratteri.carattere({"Arial", 9, false, false});

    [[nodiscard]] static qsizetype quanti(const std::vector<QGlyphRun>& righe) {
        return std::accumulate(
            righe.begin(), righe.end(), qsizetype{0},
            [](qsizetype n, const QGlyphRun& riga) { return n + riga.glyphIndexes().size(); });
    }
    // Black on white, as a page is painted at twelve times its size.
    [[nodiscard]] QImage dipinto(const char* testo, GlifiFont* glifi) {
        QImage immagine(1200, 240, QImage::Format_Grayscale8);
        immagine.fill(Qt::white);
        QPainter pittore(&immagine);
        pittore.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        pittore.scale(12, 12);
        PennaTesti(pittore).scrivi(
            {QPointF(2, 14), arial.font, 10, 0, false, plot::Colore{0}, testo, 1, glifi});
        return immagine;
    }
};

TEST_F(Glifi, StandWhereTheWidthsOfTheirCharactersPutThem) {
    QFont font = arial.font;
    font.setPixelSize(GlifiFont::corpo);
    const QString testo = "φ' = 32.5° ≤ 1,25 kN/m² → àß";
    const auto& righe = arial.glifi.righe(testo);
    ASSERT_EQ(quanti(righe), testo.size());
    double x = 0;
    qsizetype i = 0;
    for (const QGlyphRun& riga : righe)
        for (const QPointF& posto : riga.positions()) {
            EXPECT_NEAR(posto.x(), x, 1e-9) << i;
            EXPECT_EQ(posto.y(), 0);
            x += QFontMetricsF(font).horizontalAdvance(testo[i++]);
        }
}

TEST_F(Glifi, AreLeftToTheToolkitWhereCharactersAreNoRow) {
    EXPECT_EQ(quanti(arial.glifi.righe("abc")), 3);
    for (const char* testo : {"", "e\u0301", "\u05d0\u05d1", "a\u200bb", "\U0001d6fc"})
        EXPECT_EQ(quanti(arial.glifi.righe(testo)), 0) << testo;
}

TEST_F(Glifi, PaintATextAsTheToolkitDoes) {
    const char* testo = "Taglio 12.34 ≤ φ Ä";
    const QImage uno = dipinto(testo, nullptr), altro = dipinto(testo, &arial.glifi);
    constexpr int bianco = 255;
    long neri = 0, diversi = 0;
    for (int y = 0; y < uno.height(); ++y)
        for (int x = 0; x < uno.width(); ++x) {
            neri += bianco - qGray(uno.pixel(x, y));
            diversi += std::abs(qGray(uno.pixel(x, y)) - qGray(altro.pixel(x, y)));
        }
    ASSERT_GT(neri, 0);
    EXPECT_LT(diversi, neri / 50);  // edges, where rounding shifts them by parts of a pixel
}

}  // namespace
}  // namespace korven::device
