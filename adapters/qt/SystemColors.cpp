#include "zqbchwcx/qt/SystemColors.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <cmath>

namespace zqbchwcx::qt {
namespace {

struct PaletteEntry {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};

constexpr auto Active = QPalette::Active;
constexpr auto Inactive = QPalette::Inactive;
constexpr auto Disabled = QPalette::Disabled;

/// By system colour index.
constexpr std::array<PaletteEntry, 31> Entries{{
    {Active, QPalette::Button},          // scroll bar
    {Active, QPalette::Window},          // desktop
    {Active, QPalette::Highlight},       // active caption
    {Inactive, QPalette::Window},        // inactive caption
    {Active, QPalette::Window},          // menu
    {Active, QPalette::Base},            // window background
    {Active, QPalette::Shadow},          // window frame
    {Active, QPalette::WindowText},      // menu text
    {Active, QPalette::Text},            // window text
    {Active, QPalette::HighlightedText}, // caption text
    {Active, QPalette::Button},          // active border
    {Inactive, QPalette::Button},        // inactive border
    {Active, QPalette::Mid},             // application workspace
    {Active, QPalette::Highlight},       // highlight
    {Active, QPalette::HighlightedText}, // highlight text
    {Active, QPalette::Button},          // button face
    {Active, QPalette::Dark},            // button shadow
    {Disabled, QPalette::Text},          // grey text
    {Active, QPalette::ButtonText},      // button text
    {Disabled, QPalette::WindowText},    // inactive caption text
    {Active, QPalette::Light},           // button highlight
    {Active, QPalette::Shadow},          // dark 3-D shadow
    {Active, QPalette::Midlight},        // light 3-D
    {Active, QPalette::ToolTipText},     // info text
    {Active, QPalette::ToolTipBase},     // info background
    {Active, QPalette::Button},          // not assigned
    {Active, QPalette::Link},            // hot item
    {Active, QPalette::Highlight},       // gradient, active caption
    {Inactive, QPalette::Window},        // gradient, inactive caption
    {Active, QPalette::Highlight},       // menu highlight
    {Active, QPalette::Window},          // menu bar
}};
constexpr std::uint32_t UnassignedIndex = 25;

constexpr double SmallestContrast = 2.0;

bool IsSystemColor(OleColor color)
{
    return (static_cast<std::uint32_t>(color) >> 24U) == 0x80U;
}

/// The same hue, as far from the dark base as the colour is from white.
QColor Deep(const QColor& pale, const QColor& base)
{
    constexpr double Distance = 0.6;
    constexpr double Saturation = 0.45;
    constexpr double DarkestBase = 0.08; // on black, too, it is told from the ground
    const double ground = std::max(double(base.lightnessF()), DarkestBase);
    const double lightness = ground + (1 - pale.lightnessF()) * Distance;
    return QColor::fromHslF(std::max(pale.hslHueF(), 0.0F), pale.hslSaturationF() * float(Saturation),
                            float(std::min(lightness, 1.0)));
}

QColor FromRgb(std::uint32_t value)
{
    return QColor::fromRgb(static_cast<int>(value & 0xFFU), static_cast<int>((value >> 8U) & 0xFFU),
                           static_cast<int>((value >> 16U) & 0xFFU));
}

double LinearChannel(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * LinearChannel(color.redF()) + 0.7152 * LinearChannel(color.greenF()) +
           0.0722 * LinearChannel(color.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

std::optional<QColor> ToQColor(OleColor color)
{
    const auto value = static_cast<std::uint32_t>(color);
    const std::uint32_t kind = value >> 24U;
    constexpr std::uint32_t PaletteRgb = 0x02;
    if (kind == 0 || kind == PaletteRgb) return FromRgb(value);
    const std::uint32_t index = value & 0xFFFFFFU;
    if (!IsSystemColor(color) || index >= Entries.size() || index == UnassignedIndex) return std::nullopt;
    const PaletteEntry entry = Entries.at(index);
    return QGuiApplication::palette().color(entry.group, entry.role);
}

std::optional<QColor> ToGround(OleColor color)
{
    const std::optional<QColor> translated = ToQColor(color);
    const QColor base = QGuiApplication::palette().color(Active, QPalette::Base);
    constexpr double Half = 0.5;
    const bool bPaleOnDark =
        translated && IsFixedColor(color) && base.lightnessF() < Half && translated->lightnessF() > Half;
    return bPaleOnDark ? Deep(*translated, base) : translated;
}

bool IsFixedColor(OleColor color)
{
    return (static_cast<std::uint32_t>(color) & 0x80000000U) == 0;
}

OleColor ToOleColor(const QColor& color)
{
    return G_Rgb(color.red(), color.green(), color.blue());
}

QColor ReadableOn(OleColor color, const QColor& background)
{
    const QColor wanted = ToQColor(color).value_or(QColor(Qt::black));
    if (!IsSystemColor(color) || Contrast(wanted, background) >= SmallestContrast) return wanted;
    const bool isGrey = color == vxColorGrayText || color == vxColorButtonShadow;
    const QColor dark = isGrey ? QColor(0x6E, 0x6E, 0x6E) : QColor(Qt::black);
    const QColor light = isGrey ? QColor(0xA8, 0xA8, 0xA8) : QColor(Qt::white);
    return Contrast(dark, background) >= Contrast(light, background) ? dark : light;
}

} // namespace zqbchwcx::qt
