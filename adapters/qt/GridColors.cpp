#include "zqbchwcx/qt/GridColors.h"

#include "zqbchwcx/qt/SystemColors.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace zqbchwcx::qt {
namespace {

constexpr double Half = 0.5;

/// Shares of the text's colour.
constexpr double CellLine = 0.17;
constexpr double HeaderLine = 0.22;
constexpr double StrongLine = 0.5;

} // namespace

void GridColors::Follow()
{
    const QPalette palette = QGuiApplication::palette();
    if (palette.cacheKey() == mPaletteKey) return;
    mPaletteKey = palette.cacheKey();
    mcolBacks.clear();
    mcolTexts.clear();
    base = palette.color(QPalette::Active, QPalette::Base);
    highlight = palette.color(QPalette::Active, QPalette::Highlight);
    highlightText = palette.color(QPalette::Active, QPalette::HighlightedText);
    button = palette.color(QPalette::Active, QPalette::Button);
    buttonText = palette.color(QPalette::Active, QPalette::ButtonText);
    // Where a header is like the ground, as in high contrast, lines are all that tells cells apart.
    const bool bOnlyLines = button == base;
    line = Mixed(base, palette.color(QPalette::Active, QPalette::Text), bOnlyLines ? StrongLine : CellLine);
    headerLine = Mixed(button, buttonText, bOnlyLines ? StrongLine : HeaderLine);
}

QColor GridColors::Back(OleColor color)
{
    for (const auto& [known, translated] : mcolBacks)
        if (known == color) return translated;
    return mcolBacks.emplace_back(color, ToGround(color).value_or(base)).second;
}

QColor GridColors::Text(OleColor color, const QColor& back)
{
    for (const auto& known : mcolTexts)
        if (known.color == color && known.back == back.rgb()) return known.translated;
    QColor translated = ReadableOn(color, back);
    // What is made for a pale ground would be lost on a deep one.
    constexpr double Lighter = 0.35;
    if (IsFixedColor(color) && base.lightnessF() < Half) {
        const float lightness = std::max(translated.lightnessF(), 1 - translated.lightnessF());
        translated.setHslF(std::max(translated.hslHueF(), 0.0F), translated.hslSaturationF(), lightness);
        translated = Mixed(translated, Qt::white, Lighter);
    }
    return mcolTexts.emplace_back(TextOnBack{color, back.rgb(), translated}).translated;
}

QColor Mixed(const QColor& first, const QColor& second, double share)
{
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()), mix(first.blue(), second.blue())};
}

} // namespace zqbchwcx::qt
