#include "panels/grid_rows.hpp"

#include <gtest/gtest.h>

#include "support/dialog_double.hpp"
#include "support/mask_setup.hpp"

namespace korven::panels {
namespace {

using masks::ModelloGriglia;

class RigheDellaGriglia : public ::testing::Test {
 protected:
    void scrivi(masks::PostoGriglia posto, const char* testo) {
        ASSERT_TRUE(modello.scrivi(posto, testo, dialogo));
    }
    masks::Maschera maschera = test::mascheraGriglia();
    test::DialogoFinto dialogo;
    // Depths 8, 3 and 8 in rows 1, 2 and 4.
    ModelloGriglia modello{
        maschera, {"4", "8", "1", "", "", "3", "2", "", "", "", " ", "", "", "8", "4", "", ""}};
};

TEST_F(RigheDellaGriglia, AreCountedWithoutThoseThatHoldNothing) {
    EXPECT_EQ(rigaConDati(modello, 1), 1);
    EXPECT_EQ(rigaConDati(modello, 2), 2);
    EXPECT_FALSE(rigaConDati(modello, 3));
    EXPECT_EQ(rigaConDati(modello, 4), 3);
    EXPECT_FALSE(rigaConDati(modello, 500));
}

TEST_F(RigheDellaGriglia, LieBelowTheLastOneThatHoldsSomething) {
    EXPECT_FALSE(ultimaSopra(modello, 1));
    EXPECT_EQ(ultimaSopra(modello, 3), 2);
    EXPECT_EQ(ultimaSopra(modello, 4), 2);
    EXPECT_EQ(ultimaSopra(modello, 500), 3);
}

TEST_F(RigheDellaGriglia, BecomeAnchorsByDepthAndThenAsTyped) {
    EXPECT_EQ(tiranteDellaRiga(modello, 1), 2);
    EXPECT_EQ(tiranteDellaRiga(modello, 2), 1);
    EXPECT_FALSE(tiranteDellaRiga(modello, 3));
    EXPECT_EQ(tiranteDellaRiga(modello, 4), 3);
    scrivi({1, 1}, "9");
    EXPECT_EQ(tiranteDellaRiga(modello, 1), 3);
    EXPECT_EQ(tiranteDellaRiga(modello, 4), 2);
}

TEST_F(RigheDellaGriglia, CountWhatIsTypedIntoTheOpenEditor) {
    modello.comincia({3, 1});
    modello.apriEditore();
    modello.scriviEditore("1");
    EXPECT_EQ(rigaConDati(modello, 3), 3);
    EXPECT_EQ(rigaConDati(modello, 4), 4);
    EXPECT_EQ(tiranteDellaRiga(modello, 3), 1);
    EXPECT_EQ(tiranteDellaRiga(modello, 2), 2);
}

}  // namespace
}  // namespace korven::panels
