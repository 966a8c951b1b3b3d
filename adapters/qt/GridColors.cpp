#include "zqbchwcx/qt/GridColors.h"

#include "zqbchwcx/qt/SystemColors.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace zqbchwcx::qt {
namespace {

constexpr double Half = 0.5;

/// Not a colour of the desktop.
bool IsFixed(OleColor color)
{
    return (static_cast<std::uint32_t>(color) & 0x80000000U) == 0;
}

/// The same hue, as far from the dark base as the colour is from white.
QColor Deep(const QColor& pale, const QColor& base)
{
    constexpr double Distance = 0.6;
    constexpr double Saturation = 0.45;
    const double lightness = base.lightnessF() + (1 - pale.lightnessF()) * Distance;
    return QColor::fromHslF(std::max(pale.hslHueF(), 0.0F), pale.hslSaturationF() * float(Saturation),
                            float(std::min(lightness, 1.0)));
}

} // namespace

void GridColors::Follow()
{
    const QPalette palette = QGuiApplication::palette();
    if (palette.cacheKey() == mPaletteKey) return;
    mPaletteKey = palette.cacheKey();
    mcolBacks.clear();
    mcolTexts.clear();
    constexpr double LineShare = 0.17;
    base = palette.color(QPalette::Active, QPalette::Base);
    line = Mixed(base, palette.color(QPalette::Active, QPalette::Text), LineShare);
    highlight = palette.color(QPalette::Active, QPalette::Highlight);
    highlightText = palette.color(QPalette::Active, QPalette::HighlightedText);
    button = palette.color(QPalette::Active, QPalette::Button);
    buttonText = palette.color(QPalette::Active, QPalette::ButtonText);
}

QColor GridColors::Back(OleColor color)
{
    for (const auto& [known, translated] : mcolBacks)
        if (known == color) return translated;
    QColor translated = ToQColor(color).value_or(base);
    if (IsFixed(color) && base.lightnessF() < Half && translated.lightnessF() > Half)
        translated = Deep(translated, base);
    mcolBacks.emplace_back(color, translated);
    return translated;
}

QColor GridColors::Text(OleColor color, const QColor& back)
{
    for (const auto& known : mcolTexts)
        if (known.color == color && known.back == back.rgb()) return known.translated;
    QColor translated = ReadableOn(color, back);
    // What is made for a pale ground would be lost on a deep one.
    constexpr double Lighter = 0.35;
    if (IsFixed(color) && base.lightnessF() < Half) {
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
