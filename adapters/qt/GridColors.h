#pragma once

#include "zqbchwcx/platform/Color.h"

#include <QColor>
#include <QtGlobal>

#include <utility>
#include <vector>

namespace zqbchwcx::qt {

/// The colours of a grid in the desktop's palette of the moment.
class GridColors {
public:
    /// Takes over the palette when it is another one.
    void Follow();

    /// A background. In a dark palette a pale colour becomes a deep one of the same hue.
    QColor Back(OleColor color);
    /// A text colour that can be read on that background.
    QColor Text(OleColor color, const QColor& back);

    QColor base;
    QColor line; ///< between cells
    QColor headerLine;
    QColor highlight;
    QColor highlightText;
    QColor button;
    QColor buttonText;

private:
    struct TextOnBack {
        OleColor color;
        QRgb back;
        QColor translated;
    };

    std::vector<std::pair<OleColor, QColor>> mcolBacks;
    std::vector<TextOnBack> mcolTexts;
    qint64 mPaletteKey = -1;
};

/// So much of the second colour in the first.
QColor Mixed(const QColor& first, const QColor& second, double share);

} // namespace zqbchwcx::qt
