#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/Geometry.h"

#include <QPlainTextEdit>

namespace zqbchwcx::qt {

/// The window of an info box: text to read, select and copy by mouse and keyboard. What is cut off is in its tooltip.
class InfoBoxWidget : public QPlainTextEdit {
    Q_OBJECT
public:
    InfoBoxWidget(QWidget& parent, const QString& name);

    /// Plain text, in lines. An equal text leaves the selection.
    void ShowText(const QString& text);
    void BackColor(OleColor color) { mBackColor = color; }
    /// Takes over the colours of the desktop of now.
    void Redraw();
    void Move(const Rect& rect);

protected:
    bool event(QEvent* event) override;

private:
    OleColor mBackColor = vxColorWindowBackground;
};

} // namespace zqbchwcx::qt
