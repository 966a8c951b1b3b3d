#pragma once

#include <QApplication>
#include <QPalette>

namespace zqbchwcx::testing {

inline QPalette LightPalette()
{
    QPalette palette(QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8C, 0xC6));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x78, 0x78, 0x78));
    return palette;
}

inline QPalette DarkPalette()
{
    QPalette palette(QColor(0x35, 0x38, 0x3C));
    palette.setColor(QPalette::Base, QColor(0x24, 0x26, 0x2A));
    palette.setColor(QPalette::Text, QColor(0xF0, 0xF0, 0xF0));
    palette.setColor(QPalette::ButtonText, QColor(0xF0, 0xF0, 0xF0));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x8F, 0xD1));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x8C, 0x8C, 0x8C));
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
