#include "project/code_words.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

TEST(VoceTradotta, IsTheItemOfTheEditorWhereNothingIsTranslated) {
    for (const Campo& campo : campi())
        for (const Codice& codice : campo.codici)
            EXPECT_EQ(voceTradotta(campo, codice), codice.voce) << campo.nome;
}

}  // namespace
}  // namespace korven::project
