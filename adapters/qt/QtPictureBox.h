#pragma once

#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"

#include <QPointer>

namespace zqbchwcx::qt {

/// A picture box, as the views see it. Its window lives as long as it does, or shorter when the parent window ends
/// first; every operation is then without effect.
class QtPictureBox : public PictureBox {
public:
    explicit QtPictureBox(PictureBoxWidget& widget) : mWidget(&widget) {}
    ~QtPictureBox() override;
    QtPictureBox(const QtPictureBox&) = delete;
    QtPictureBox& operator=(const QtPictureBox&) = delete;

    void Events(PictureBoxEvents* receiver) override;
    std::int32_t Left() const override;
    std::int32_t Top() const override;
    Size ScaleSize() const override;
    void Move(const Rect& rect) override;
    bool Visible() const override;
    void Visible(bool bVisible) override;
    void BackColor(OleColor color) override;
    void Refresh() override;
    bool HasFocus() const override;
    void SetFocus() override;
    void OLEDrag() override;
    std::intptr_t hWnd() const override;

    void FillBox(const Rect& rect, OleColor color) override;
    void DrawLine(Point from, Point to, OleColor color) override;
    void FillTriangle(const Rect& square, Corner corner, OleColor color) override;
    void DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color) override;
    void DrawLeftText(std::string_view text, const Rect& box, OleColor color) override;
    void DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style) override;
    void DrawImage(const Image& image, Point at, DrawStyle style) override;
    void DrawFocusRect(const Rect& rect) override;

private:
    QPointer<PictureBoxWidget> mWidget;
};

} // namespace zqbchwcx::qt
