#pragma once

#include <QApplication>
#include <QPalette>

namespace zqbchwcx::testing {

inline QPalette PaletteOf(QRgb window, QRgb base, QRgb text, QRgb highlight, QRgb disabled)
{
    QPalette palette{QColor(window)};
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::Disabled, QPalette::Text, disabled);
    return palette;
}

inline QPalette LightPalette()
{
    return PaletteOf(0xEFEFEF, 0xFFFFFF, 0x000000, 0x308CC6, 0x787878);
}

inline QPalette DarkPalette()
{
    return PaletteOf(0x35383C, 0x24262A, 0xF0F0F0, 0x3D8FD1, 0x8C8C8C);
}

inline QPalette ContrastPalette()
{
    QPalette palette = PaletteOf(0x000000, 0x000000, 0xFFFFFF, 0x1AEBFF, 0x3FF23F);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, 0x3FF23F);
    return palette;
}

/// Another palette of the application for as long as it lives.
class PaletteChange {
public:
    explicit PaletteChange(const QPalette& palette) : mPrevious(QApplication::palette())
    {
        QApplication::setPalette(palette);
    }
    ~PaletteChange() { QApplication::setPalette(mPrevious); }
    PaletteChange(const PaletteChange&) = delete;
    PaletteChange& operator=(const PaletteChange&) = delete;

private:
    QPalette mPrevious;
};

} // namespace zqbchwcx::testing
