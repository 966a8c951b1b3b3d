#include "app/dialogs/ParameterText.h"

#include <gtest/gtest.h>

namespace quillon_ed {
namespace {

using namespace zqbchwcx::reference;

ParameterDefinition Definition(ParameterKind kind, double minimum, double maximum)
{
    ParameterDefinition definition;
    definition.kind = kind;
    definition.minimum = minimum;
    definition.maximum = maximum;
    return definition;
}

const QLocale English(QLocale::English);
const QLocale German(QLocale::German);

TEST(ParameterText, TakesIntegersInTheirRangeOnly)
{
    const auto definition = Definition(ParameterKind::Integer, -5, 100);
    EXPECT_EQ(ParseParameter(definition, QStringLiteral(" -5 "), English).value, ParameterValue(std::int64_t{-5}));
    EXPECT_EQ(ParseParameter(definition, QStringLiteral("100"), English).value, ParameterValue(std::int64_t{100}));
    for (const char* text : {"101", "-6", "", "1.5", "1,000", "ten", "0x10", "99999999999999999999"}) {
        const ParsedParameter parsed = ParseParameter(definition, QString::fromLatin1(text), English);
        EXPECT_FALSE(parsed.value) << text;
        EXPECT_FALSE(parsed.reason.isEmpty()) << text;
    }
}

TEST(ParameterText, TakesRealNumbersAsTheLocaleAndTheCatalogueWriteThem)
{
    const auto definition = Definition(ParameterKind::Real, 0.5, 20);
    EXPECT_EQ(ParseParameter(definition, QStringLiteral("1,5"), German).value, ParameterValue(1.5));
    EXPECT_EQ(ParseParameter(definition, QStringLiteral("1.5"), German).value, ParameterValue(1.5));
    EXPECT_EQ(ParseParameter(definition, QStringLiteral("1.5"), English).value, ParameterValue(1.5));
    for (const char* text : {"1,5", "0.49", "20.01", "nan", "inf", "1.000,5", ""}) {
        EXPECT_FALSE(ParseParameter(definition, QString::fromLatin1(text), English).value) << text;
    }
}

TEST(ParameterText, WritesWhatItReadsBackTheSame)
{
    const auto definition = Definition(ParameterKind::Real, -1e9, 1e9);
    for (const double value : {0.1, -2.5, 123456.789, 1e-7}) {
        for (const QLocale& locale : {English, German}) {
            const QString text = FormatParameter(value, locale);
            EXPECT_EQ(ParseParameter(definition, text, locale).value, ParameterValue(value)) << text.toStdString();
        }
    }
}

TEST(ParameterText, CountsTheCharactersOfTextsAndTheBytesThatFilesTake)
{
    const auto definition = Definition(ParameterKind::Text, 2, 4);
    EXPECT_TRUE(ParseParameter(definition, QStringLiteral("äöüß"), German).value);
    EXPECT_TRUE(ParseParameter(definition, QString::fromUtf8("😀😀😀😀"), German).value);
    EXPECT_FALSE(ParseParameter(definition, QStringLiteral("a"), German).value);
    EXPECT_FALSE(ParseParameter(definition, QStringLiteral("abcde"), German).value);
    const auto unbounded = Definition(ParameterKind::Text, 0, 0);
    EXPECT_TRUE(ParseParameter(unbounded, QString(MaxTextBytes, u'x'), German).value);
    EXPECT_FALSE(ParseParameter(unbounded, QString(MaxTextBytes, u'ä'), German).value);
}

TEST(ParameterText, KeepsAddressesSoLowThatTheLastByteStillHasOne)
{
    EXPECT_EQ(ParseAddress(QString::number(MaxAddress - 1), 2).address, MaxAddress - 1);
    EXPECT_FALSE(ParseAddress(QString::number(MaxAddress), 2).address);
    EXPECT_FALSE(ParseAddress(QStringLiteral("-1"), 1).address);
    EXPECT_FALSE(ParseAddress(QString(), 1).address);
}

} // namespace
} // namespace quillon_ed
