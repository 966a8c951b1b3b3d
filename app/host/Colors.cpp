#include "app/host/Colors.h"

#include <QApplication>
#include <QStyle>

namespace quillon_ed {

namespace {

struct Tones {
    QRgb window;
    QRgb base;
    QRgb button;
    QRgb text;
    QRgb disabled;
    QRgb highlight;
    QRgb highlightText;
};

constexpr Tones DarkTones{0x35383C, 0x24262A, 0x3C4045, 0xF0F0F0, 0x8C8C8C, 0x2F74AA, 0xFFFFFF};
constexpr Tones ContrastTones{0x000000, 0x000000, 0x000000, 0xFFFFFF, 0x3FF23F, 0x1AEBFF, 0x000000};

QPalette PaletteOf(const Tones& tones)
{
    QPalette palette(QColor(tones.button), QColor(tones.window));
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::Highlight, tones.highlight);
    palette.setColor(QPalette::HighlightedText, tones.highlightText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, tones.text);
        palette.setColor(QPalette::Disabled, role, tones.disabled);
    }
    return palette;
}

} // namespace

QPalette PaletteOf(Colors colors)
{
    switch (colors) {
    case Colors::Dark:
        return PaletteOf(DarkTones);
    case Colors::Contrast:
        return PaletteOf(ContrastTones);
    case Colors::Light:
        break;
    }
    return QApplication::style()->standardPalette();
}

} // namespace quillon_ed
