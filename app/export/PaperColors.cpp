#include "app/export/PaperColors.h"

namespace quillon_ed {

using namespace zqbchwcx;

QColor PaperColor(OleColor color)
{
    if (color >= 0) return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
    switch (color) {
    case vxColorWindowBackground:
    case vxColorHighlightText:
    case vxColorButtonHighlight:
        return Qt::white;
    case vxColorButtonFace:
    case vxColorLight3D:
        return QColor(0xE8, 0xE8, 0xE8);
    case vxColorButtonShadow:
        return QColor(0x90, 0x90, 0x90);
    case vxColorGrayText:
        return QColor(0x70, 0x70, 0x70);
    case vxColorHighlight:
        return QColor(0x30, 0x6F, 0xC0);
    default:
        return Qt::black;
    }
}

} // namespace quillon_ed
