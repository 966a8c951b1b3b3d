#include "zqbchwcx/foundation/UpperCase.h"

#include <gtest/gtest.h>

namespace zqbchwcx {
namespace {

TEST(UpperCase, RaisesLettersAndNothingElse)
{
    const std::string outsideUtf8 = "\xC3g\xA4\xF5\xE4\x84\xC3";
    for (const auto& [text, upper] : {
             std::pair<std::string, std::string>{"gerät-16_ß.a{`z", "GERÄT-16_ß.A{`Z"},
             {"÷þøÿāńžŉŋ", "÷ÞØŸĀŃŽŉŊ"},
             {"άέίόύώ ας σϋ", "ΆΈΊΌΎΏ ΑΣ ΣΫ"},
             {"азяёџ ѡ", "АЗЯЁЏ Ѡ"},
             {"ĀŁΩЖ€😀", "ĀŁΩЖ€😀"},
             {outsideUtf8, "\xC3G\xA4\xF5\xE4\x84\xC3"},
         })
        EXPECT_EQ(G_UpperCase(text), upper);
}

} // namespace
} // namespace zqbchwcx
