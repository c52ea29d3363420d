#include "device/scene_files.hpp"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "device/graphics_session.hpp"
#include "device/scene_painter.hpp"
#include "scene/polygon.hpp"
#include "support/temporary_folder.hpp"

namespace korven::device {
namespace {

class FileScenaTest : public ::testing::Test {
 protected:
    FileScenaTest() {
        scena.larghezza = 192;  // two inches
        scena.altezza = 96;
        scena.primitive.push_back({});
        scena.primitive[0].figura =
            scene::Area{scene::rettangolo(0, 0, 96, 96), {scene::Ruolo::muro}};
    }
    [[nodiscard]] ScenaDaScrivere daScrivere() const {
        return {scena, QGuiApplication::font(), "muro", "un muro"};
    }
    SessioneGrafica sessione;
    test::CartellaProvvisoria cartella;
    scene::Scena scena;
};

TEST_F(FileScenaTest, WritesPngAtItsResolution) {
    const std::string file = cartella / "figura.png";
    scriviScenaPng(file, daScrivere(), 150);
    const QImage letta(QString::fromStdString(file));
    EXPECT_EQ(letta.size(), QSize(300, 150));
    EXPECT_NEAR(letta.dotsPerMeterX(), 5906, 1);  // 150 to the inch
    const QColor muro = qColore({scene::Ruolo::muro}, scene::Tavolozza::chiara);
    EXPECT_EQ(letta.pixelColor(60, 60), muro);
    EXPECT_EQ(letta.pixelColor(250, 60), QColor(Qt::white));
}

TEST_F(FileScenaTest, WritesPdfAsLargeAsThePicture) {
    const std::string file = cartella / "figura.pdf";
    scriviScenaPdf(file, daScrivere());
    const std::string pdf = base::leggiFile(file);
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    // Two inches by one are 144 by 72 points.
    const auto da = pdf.find("/MediaBox [");
    ASSERT_NE(da, std::string::npos);
    double x = 0, y = 0, larga = 0, alta = 0;
    ASSERT_EQ(std::sscanf(pdf.c_str() + da, "/MediaBox [%lf %lf %lf %lf", &x, &y, &larga, &alta),
              4);
    EXPECT_NEAR(larga, 144, 1);
    EXPECT_NEAR(alta, 72, 1);
}

TEST_F(FileScenaTest, WritesSvg) {
    const std::string file = cartella / "figura.svg";
    scriviScenaSvg(file, daScrivere());
    EXPECT_EQ(base::leggiFile(file), testoSvg(daScrivere()));
    EXPECT_NE(testoSvg(daScrivere()).find("<desc>un muro</desc>"), std::string::npos);
}

TEST_F(FileScenaTest, LeavesNothingWhereTheFolderIsMissing) {
    EXPECT_THROW(scriviScenaSvg(cartella / "manca/figura.svg", daScrivere()), base::ErroreFile);
    EXPECT_THROW(scriviScenaPdf(cartella / "manca/figura.pdf", daScrivere()), base::ErroreFile);
    EXPECT_THROW(scriviScenaPng(cartella / "manca/figura.png", daScrivere(), 96), base::ErroreFile);
}

}  // namespace
}  // namespace korven::device
