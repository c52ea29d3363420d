// The mask files as the build has laid them into the program folder: that the program can work with
// them in every language, and that their texts have room.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "masks/column_keys.hpp"
#include "masks/edited_fields.hpp"
#include "masks/editing.hpp"
#include "masks/field_check.hpp"
#include "masks/field_model.hpp"
#include "masks/field_type.hpp"
#include "masks/grid_model.hpp"
#include "masks/values.hpp"
#include "support/wall_builder.hpp"
#include "tools/mask_source.hpp"
#include "tools/text_source.hpp"

namespace korven {
namespace {

using masks::Maschera;
using masks::NumeroMaschera;

constexpr NumeroMaschera allMasks[] = {NumeroMaschera::titoli, NumeroMaschera::paratia,
                                       NumeroMaschera::strati, NumeroMaschera::tiranti,
                                       NumeroMaschera::fasi};

std::vector<tools::MaskSource> source() {
    const std::string path = KORVEN_DATA_FOLDER "/maschere.txt";
    return tools::readMaskSource(path, base::leggiFile(path));
}

class DeliveredMasks : public ::testing::Test {
 protected:
    void SetUp() override { base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER); }
    void TearDown() override {
        base::impostaCartellaProgramma("");
        base::impostaLingua(1);
        base::tabellaTesti = {};
    }
    // The masks in a language, with the texts of the program folder.
    masks::Maschere masks(int language) {
        base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"),
                          base::fileProgramma("texts32.txt"));
        base::impostaLingua(language);
        masks::Maschere all;
        all.leggiMaschereProgramma();
        return all;
    }
    template <class Check>
    void forEachMask(Check check) {
        for (int language = 1; language <= 6; ++language) {
            auto all = masks(language);
            for (const auto number : allMasks) {
                all.selezionaMaschera(static_cast<int>(number));
                check(all.corrente(), language);
                all.rilasciaForm();
            }
        }
    }
};

TEST_F(DeliveredMasks, TakeHeadingsAsLongAsWhoeverSetsThemWithoutAForm) {
    auto all = masks(1);
    all.selezionaMaschera(static_cast<int>(NumeroMaschera::titoli));
    for (int i = 0; i < project::numeroTitoli; ++i)
        EXPECT_EQ(
            masks::tipoCampo(all.corrente().campi.at(static_cast<std::size_t>(i)).tipo).lunghezza,
            std::size_t{project::caratteriTitolo});
}

TEST_F(DeliveredMasks, HaveARecordInTheTableForEachOfTheirTexts) {
    const std::string path = KORVEN_DATA_FOLDER "/texts.txt";
    std::set<std::string> keys;
    for (const auto& record : tools::readTextSource(path, base::leggiFile(path)))
        keys.insert(base::chiaveTesto(record.text[0]));
    int looked = 0;
    for (const auto& mask : source())
        for (const auto& text : tools::maskTexts(mask)) {
            ++looked;
            EXPECT_TRUE(keys.contains(base::chiaveTesto(text))) << mask.file << ": " << text;
        }
    EXPECT_GT(looked, 100);
}

TEST_F(DeliveredMasks, AreReadInEveryLanguageWithTheFieldsOfTheirEditors) {
    std::map<int, std::set<std::string>> titles;
    forEachMask([&](const Maschera& mask, int language) {
        EXPECT_TRUE(titles[language].insert(mask.titolo).second) << mask.titolo;
    });
    EXPECT_EQ(titles.size(), 6u);
    for (const auto& [language, all] : titles) EXPECT_EQ(all.size(), 5u) << language;
}

TEST_F(DeliveredMasks, HaveRoomForTheirTextsInEveryLanguage) {
    forEachMask([](const Maschera& mask, int language) {
        EXPECT_LE(base::numeroCaratteri(mask.titolo), 60u);
        for (const auto& field : mask.campi) {
            // A label keeps a blank and three dots at least; a help is a sentence or two.
            EXPECT_LE(base::numeroCaratteri(field.etichetta), 116u) << field.etichetta;
            EXPECT_LE(base::numeroCaratteri(field.aiuto), 200u) << language << ' ' << field.aiuto;
        }
        for (const auto& caption : mask.pulsanti) EXPECT_LE(base::numeroCaratteri(caption), 22u);
    });
}

TEST_F(DeliveredMasks, ExplainEveryFieldThatCanBeTypedInto) {
    forEachMask([](const Maschera& mask, int) {
        const bool grid = mask.genere != masks::GenereMaschera::campi;
        for (std::size_t i = grid ? 1 : 0; i < mask.campi.size(); ++i)
            EXPECT_FALSE(mask.campi[i].aiuto.empty()) << mask.campi[i].etichetta;
    });
}

TEST_F(DeliveredMasks, KeepUnitsAndKeysInEveryLanguage) {
    auto italian = masks(1);
    for (int language = 2; language <= 6; ++language) {
        auto other = masks(language);
        for (const auto number : allMasks) {
            italian.selezionaMaschera(static_cast<int>(number));
            other.selezionaMaschera(static_cast<int>(number));
            const auto& a = italian.corrente().campi;
            const auto& b = other.corrente().campi;
            ASSERT_EQ(a.size(), b.size());
            for (std::size_t i = 0; i < a.size(); ++i) {
                const auto unit = [](const std::string& label) {
                    const auto start = label.find('[');
                    return start == std::string::npos ? std::string() : label.substr(start);
                };
                EXPECT_EQ(unit(a[i].etichetta), unit(b[i].etichetta));
                EXPECT_EQ(masks::chiaviColonna(a[i].aiuto), masks::chiaviColonna(b[i].aiuto));
            }
        }
    }
}

TEST_F(DeliveredMasks, GiveTheButtonsOfAFormDifferentAccessKeys) {
    forEachMask([](const Maschera& mask, int language) {
        std::set<std::string> keys;
        for (const auto& caption : mask.pulsanti) {
            const auto mark = caption.find('&');
            ASSERT_NE(mark, std::string::npos);
            const auto key = base::maiuscolo(caption).substr(
                mark + 1,
                base::lunghezzaPrimoCarattere(std::string_view(caption).substr(mark + 1)));
            EXPECT_TRUE(keys.insert(key).second) << language << ' ' << caption;
        }
    });
}

TEST_F(DeliveredMasks, OfferConfirmCancelRowsAndHelp) {
    forEachMask([](const Maschera& mask, int) {
        const bool grid = mask.genere != masks::GenereMaschera::campi;
        EXPECT_EQ(mask.pulsanti.size(), grid ? 5u : 3u);
        if (grid) {
            EXPECT_EQ(masks::azionePulsante(mask, 4), masks::AzioneGriglia::guida);
        }
        EXPECT_EQ(masks::voceGuida(mask), mask.contesto);
    });
    auto all = masks(1);
    std::vector<int> contexts;
    for (const auto number : allMasks) {
        all.selezionaMaschera(static_cast<int>(number));
        contexts.push_back(all.corrente().contesto);
    }
    // The entries of the menu items that open these editors.
    EXPECT_EQ(contexts, (std::vector<int>{10, 6, 5, 8, 9}));
}

// A value that is refused holds the user in its field.
TEST_F(DeliveredMasks, AcceptWhatANewProjectHolds) {
    auto all = masks(1);
    project::DatiProgetto fresh = test::progettoVuoto();
    for (const auto number : {NumeroMaschera::titoli, NumeroMaschera::paratia}) {
        masks::preparaMaschera(all, number, fresh, 0);
        const auto& mask = all.corrente();
        const masks::ModelloCampi form(mask, all.valoriCombo(), all.valoriTesto());
        for (std::size_t i = mask.scelte.size(); i < mask.campi.size(); ++i)
            EXPECT_EQ(masks::controllaCampo(mask.campi[i], form.testo(i)), masks::Vizio::nessuno)
                << mask.campi[i].etichetta;
    }
}

// The forms are built from the mask files alone; what these say of a field is what the table of
// fields says.
TEST_F(DeliveredMasks, SayOfEachFieldWhatTheTableOfFieldsSays) {
    auto all = masks(1);
    for (const auto number : allMasks) {
        all.selezionaMaschera(static_cast<int>(number));
        const auto& mask = all.corrente();
        auto fields = masks::campiEditati(number);
        const bool headings = number == NumeroMaschera::titoli;
        if (headings) fields.resize(project::numeroTitoli, fields[0]);  // one column, line by line
        const std::size_t first = mask.genere == masks::GenereMaschera::campi ? 0 : 1;
        ASSERT_EQ(mask.campi.size(), first + fields.size() + (headings ? 1 : 0));
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const auto& shown = mask.campi[first + i];
            const auto& field = *fields[i];
            const auto label =
                headings ? "Titolo [" + std::to_string(i + 1) + "]" : project::etichetta(field);
            EXPECT_EQ(shown.etichetta, label);
            const auto limits = field.limiti.value_or(project::Limiti{0, 0});
            const bool choice = i < mask.scelte.size();
            std::vector<std::string> items, keys;
            for (const auto& code : field.codici) {
                items.emplace_back(code.voce);
                keys.push_back(base::testoNumero(code.valore));
            }
            if (choice) {
                EXPECT_EQ(mask.scelte[i], items) << label;
                continue;
            }
            EXPECT_EQ(shown.minimo, limits.minimo) << label;
            EXPECT_EQ(shown.massimo, limits.massimo) << label;
            EXPECT_EQ(masks::chiaviColonna(shown.aiuto), keys) << label;
        }
    }
}

TEST_F(DeliveredMasks, LetALayerHaveNoDescription) {
    auto all = masks(1);
    all.selezionaMaschera(static_cast<int>(NumeroMaschera::strati));
    EXPECT_EQ(all.corrente().genere, masks::GenereMaschera::grigliaLibera);
    const auto& description = all.corrente().campi.back();
    EXPECT_EQ(masks::controllaCella(description, std::string(500, 'x')), masks::Vizio::nessuno);
}

TEST_F(DeliveredMasks, TakeTheKindOfAnAnchorByItsKeysAlone) {
    auto all = masks(5);
    all.selezionaMaschera(static_cast<int>(NumeroMaschera::tiranti));
    const auto& kind = all.corrente().campi.back();
    EXPECT_EQ(masks::controllaCella(kind, "0"), masks::Vizio::nessuno);
    EXPECT_EQ(masks::controllaCella(kind, "1"), masks::Vizio::nessuno);
    EXPECT_EQ(masks::controllaCella(kind, "2"), masks::Vizio::chiave);
}

}  // namespace
}  // namespace korven
