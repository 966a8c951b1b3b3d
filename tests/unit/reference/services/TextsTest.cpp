#include "zqbchwcx/reference/services/Texts.h"

#include "tests/support/Samples.h"
#include "zqbchwcx/foundation/VxError.h"

#include <gmock/gmock.h>

namespace zqbchwcx::reference {
namespace {

using namespace ::testing;

TextTable Shipped(const std::string& language)
{
    return LoadTextTable(zqbchwcx::testing::SourceFile("assets/texts/" + std::string(language) + ".json"), language);
}

TEST(ShippedTexts, AreTheSameInBothLanguages)
{
    const TextTable english = Shipped("en");
    const TextTable german = Shipped("de");
    EXPECT_EQ(english.size(), german.size());
    for (const auto& [number, text] : english) EXPECT_TRUE(german.contains(number)) << number;
    for (const std::int32_t number : {1000, 1001, 1007, 1016, 1017, 2006, 2017,  2018,  2019,  2020,  2021, 2026,
                                      2027, 2050, 2052, 3001, 3019, 3023, 4002,  4003,  4004,  4005,  4006, 6100,
                                      6101, 6106, 6107, 6112, 6117, 6119, 41001, 57632, 57634, 57635, 57637})
        EXPECT_TRUE(english.contains(number)) << number;
}

TEST(Texts, SpeakTheLanguageThatIsSet)
{
    Texts texts({{4002, "Delete"}, {4003, "Cut"}}, {{4002, "Löschen"}}, nullptr);
    const TextModulePtr module = texts.Open("zqhwuim");
    EXPECT_EQ(module->Text(4002), "Delete");
    int changes = 0;
    const auto connection = texts.LanguageChange.Connect([&] { ++changes; });
    texts.CurrentLanguage(Language::German);
    texts.CurrentLanguage(Language::German);
    EXPECT_EQ(module->Text(4002), "Löschen");
    EXPECT_EQ(changes, 1);
    EXPECT_THAT([&] { module->Text(4003); },
                Throws<VxError>(Field(&VxError::description, HasSubstr("German text 4003"))));
    texts.Release("zqhwuim");
    EXPECT_EQ(module->Text(4002), "Löschen") << "a module that is kept goes on";
    EXPECT_THROW(texts.Release("zqhwuim"), VxError);
    EXPECT_THROW(texts.Open("other"), VxError);
}

TEST(TextTable, RefusesDamagedFiles)
{
    const auto error = [](const std::string& text) { return ErrorOf([&] { ParseTextTable(text, "de.json", "de"); }); };
    const std::string head = R"({"format": "quillon-texts", "version": 1, "language": "de", "texts": )";
    EXPECT_EQ(error(head + R"({"4002": "Löschen"}})").reason, "no error");
    EXPECT_EQ(error(head + R"({"4002a": "Löschen"}})").pointer, "/texts/4002a");
    EXPECT_EQ(error(head + R"({"4002": "Löschen", "04002": "Weg"}})").pointer, "/texts/4002");
    EXPECT_EQ(error(head + R"({"4002": ""}})").pointer, "/texts/4002");
    EXPECT_EQ(ErrorOf([&] { ParseTextTable(head + "{}}", "en.json", "en"); }).pointer, "/language");
}

} // namespace
} // namespace zqbchwcx::reference
