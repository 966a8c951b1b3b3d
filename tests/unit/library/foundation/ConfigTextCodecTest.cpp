#include "zqbchwcx/foundation/ConfigTextCodec.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace zqbchwcx {
namespace {

ByteArray Bytes(std::initializer_list<int> values)
{
    ByteArray bytes;
    for (const int value : values) bytes.push_back(static_cast<std::byte>(value));
    return bytes;
}

TEST(ConfigTextCodec, WritesLittleEndianUnitsAndATerminator)
{
    EXPECT_EQ(G_EncodeConfigText(""), Bytes({0, 0}));
    EXPECT_EQ(G_EncodeConfigText("A\xC3\xA4"), Bytes({0x41, 0, 0xE4, 0, 0, 0}));
    EXPECT_EQ(G_EncodeConfigText("\xF0\x9F\x94\x8C"), Bytes({0x3D, 0xD8, 0x0C, 0xDD, 0, 0}));
}

TEST(ConfigTextCodec, ReadsBackWhatItWrote)
{
    // The first and last character of each length in UTF-8, and the neighbours of the surrogates.
    const std::string text = "\x01\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF\xF0\x90\x80\x80"
                             "\xF4\x8F\xBF\xBF";
    EXPECT_EQ(G_DecodeConfigText(G_EncodeConfigText(text)), text);
}

TEST(ConfigTextCodec, ReadsToTheTerminatorOrTheEnd)
{
    EXPECT_EQ(G_DecodeConfigText({}), "");
    EXPECT_EQ(G_DecodeConfigText(Bytes({0x41})), "");
    EXPECT_EQ(G_DecodeConfigText(Bytes({0x41, 0, 0x42, 0})), "AB");
    EXPECT_EQ(G_DecodeConfigText(Bytes({0x41, 0, 0, 0, 0x42, 0})), "A");
    EXPECT_EQ(G_DecodeConfigText(Bytes({0x41, 0, 0x42})), "A");
}

TEST(ConfigTextCodec, ReplacesWhatIsMalformed)
{
    const std::string replaced = "\xEF\xBF\xBD";
    const auto roundTrip = [](std::string_view text) { return G_DecodeConfigText(G_EncodeConfigText(text)); };
    EXPECT_EQ(roundTrip("\x80X"), replaced + "X") << "a follower without a lead";
    EXPECT_EQ(roundTrip("\xE2\x82X"), replaced + "X") << "cut off before a character";
    EXPECT_EQ(roundTrip("\xE2\x82"), replaced) << "cut off at the end";
    EXPECT_EQ(roundTrip("\xC0\xAFX"), replaced + replaced + "X") << "longer than needed";
    EXPECT_EQ(roundTrip("\xE0\x80\xAF"), replaced) << "longer than needed";
    EXPECT_EQ(roundTrip("\xED\xA0\x80"), replaced) << "a surrogate";
    EXPECT_EQ(roundTrip("\xF4\x90\x80\x80"), replaced) << "beyond the last character";
    EXPECT_EQ(roundTrip("\xFF"), replaced);
    EXPECT_EQ(G_DecodeConfigText(Bytes({0x3D, 0xD8, 0x41, 0})), replaced + "A") << "a lead surrogate alone";
    EXPECT_EQ(G_DecodeConfigText(Bytes({0x0C, 0xDD, 0x41, 0})), replaced + "A") << "a trail surrogate alone";
    EXPECT_EQ(G_DecodeConfigText(Bytes({0x3D, 0xD8})), replaced) << "a lead surrogate at the end";
}

} // namespace
} // namespace zqbchwcx
