#pragma once

#include "app/export/PaperItem.h"
#include "zqbchwcx/platform/PictureBox.h"

#include <functional>
#include <vector>

namespace quillon_ed {

class PaperSite;

/// A picture that keeps every drawing step, so that it can be painted anew, in vectors, on any device.
///
/// Paper shows what a station is, not what is selected or dragged: blended images are drawn plain, and focus
/// rectangles not at all.
class PaperPicture : public zqbchwcx::PictureBox, public PaperItem {
public:
    PaperPicture(PaperSite& site, const zqbchwcx::Rect& rect);

    void Paint(QPainter& painter) const override;

    void FillBox(const zqbchwcx::Rect& rect, zqbchwcx::OleColor color) override;
    void DrawLine(zqbchwcx::Point from, zqbchwcx::Point to, zqbchwcx::OleColor color) override;
    void DrawCenteredText(std::string_view text, const zqbchwcx::Rect& box, zqbchwcx::FontWeight weight,
                          zqbchwcx::OleColor color) override;
    void DrawLeftText(std::string_view text, const zqbchwcx::Rect& box, zqbchwcx::OleColor color) override;
    void DrawListImage(const zqbchwcx::ImageList& list, std::string_view key, zqbchwcx::Point at,
                       zqbchwcx::DrawStyle style) override;
    void DrawImage(const zqbchwcx::Image& image, zqbchwcx::Point at, zqbchwcx::DrawStyle style) override;
    void DrawFocusRect(const zqbchwcx::Rect& rect) override;

    void Events(zqbchwcx::PictureBoxEvents* receiver) override;
    std::int32_t Left() const override { return mRect.left; }
    std::int32_t Top() const override { return mRect.top; }
    zqbchwcx::Size ScaleSize() const override { return {mRect.width(), mRect.height()}; }
    void Move(const zqbchwcx::Rect& rect) override { mRect = rect; }
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override { mbVisible = bVisible; }
    void BackColor(zqbchwcx::OleColor color) override;
    void Refresh() override;
    bool HasFocus() const override { return false; }
    void SetFocus() override;
    void OLEDrag() override;
    std::intptr_t hWnd() const override { return 0; }

private:
    const PaperSite& moSite;
    zqbchwcx::Rect mRect;
    bool mbVisible = true;
    zqbchwcx::OleColor mBackColor = zqbchwcx::vxColorWindowBackground;
    std::vector<std::function<void(QPainter&)>> mcolSteps;
};

} // namespace quillon_ed
