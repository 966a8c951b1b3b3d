#pragma once

#include "zqbchwcx/platform/Surface.h"

#include <QPointer>

namespace zqbchwcx::qt {

/// The drawing surface of a window that shows a persistent picture. After the window has ended, drawing is without
/// effect. `Interface` is what the views know the window as.
template <class Interface, class Widget>
class QtSurface : public Interface {
public:
    explicit QtSurface(Widget& widget) : mWidget(&widget) {}

    void FillBox(const Rect& rect, OleColor color) override
    {
        if (mWidget) mWidget->Picture().FillBox(rect, color);
    }
    void DrawLine(Point from, Point to, OleColor color) override
    {
        if (mWidget) mWidget->Picture().DrawLine(from, to, color);
    }
    void FillTriangle(const Rect& square, Corner corner, OleColor color) override
    {
        if (mWidget) mWidget->Picture().FillTriangle(square, corner, color);
    }
    void DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color) override
    {
        if (mWidget) mWidget->Picture().DrawCenteredText(text, box, weight, color);
    }
    void DrawLeftText(std::string_view text, const Rect& box, OleColor color) override
    {
        if (mWidget) mWidget->Picture().DrawLeftText(text, box, color);
    }
    void DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style) override
    {
        if (mWidget) mWidget->Picture().DrawListImage(list, key, at, style);
    }
    void DrawImage(const Image& image, Point at, DrawStyle style) override
    {
        if (mWidget) mWidget->Picture().DrawImage(image, at, style);
    }
    void DrawFocusRect(const Rect& rect) override
    {
        if (mWidget) mWidget->Picture().DrawFocusRect(rect);
    }

protected:
    QPointer<Widget> mWidget;
};

} // namespace zqbchwcx::qt
