#include "device/dated_pdf.hpp"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <cstdlib>
#include <string>

#include "device/graphics_session.hpp"

namespace korven::device {
namespace {

class PdfDatato : public testing::Test {
 protected:
    PdfDatato() { ::setenv("SOURCE_DATE_EPOCH", "1700000000", 1); }
    ~PdfDatato() override { ::unsetenv("SOURCE_DATE_EPOCH"); }

    // A page with two texts, as Qt writes it now.
    static std::string pagina() {
        QBuffer byte;
        byte.open(QIODevice::WriteOnly);
        {
            QPdfWriter scrittore(&byte);
            scrittore.setTitle(QStringLiteral("Muro"));
            QPainter pittore(&scrittore);
            pittore.drawText(100, 200, QStringLiteral("M 10"));
        }
        return byte.data().toStdString();
    }

    const SessioneGrafica sessione;
};

TEST_F(PdfDatato, BearsTheMomentOfTheEnvironmentAndItsOwnTitle) {
    EXPECT_TRUE(haDataVoluta());
    const std::string pdf = conDataVoluta(pagina());
    EXPECT_NE(pdf.find("/CreationDate (D:20231114221320Z)"), std::string::npos);
    EXPECT_NE(pdf.find("/Title"), std::string::npos);
    EXPECT_NE(pdf.find("/ID"), std::string::npos);
}

// The clock that Qt reads can't be turned: what it wrote in another second is the same page with
// another date.
TEST_F(PdfDatato, IsTheSameWhenQtHasWrittenItAtAnotherMoment) {
    const std::string ora = pagina();
    std::string allora = ora;
    const std::string chiave = "/CreationDate (D:";
    const std::size_t data = allora.find(chiave);
    ASSERT_NE(data, std::string::npos);
    allora.replace(data + chiave.size(), 4, "1999");
    ASSERT_NE(ora, allora);
    EXPECT_EQ(conDataVoluta(ora), conDataVoluta(allora));
}

TEST_F(PdfDatato, StaysAsItCameWhereTheEnvironmentSaysNothingThatCanBeRead) {
    const std::string pdf = pagina();
    ::setenv("SOURCE_DATE_EPOCH", "ieri", 1);
    EXPECT_FALSE(haDataVoluta());
    EXPECT_EQ(conDataVoluta(pdf), pdf);
    ::unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_EQ(conDataVoluta(pdf), pdf);
}

TEST_F(PdfDatato, CanBeMadeOfNoOtherFile) {
    EXPECT_THROW((void)conDataVoluta("nessun PDF"), std::exception);
}

}  // namespace
}  // namespace korven::device
