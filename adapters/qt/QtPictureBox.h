#pragma once

#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/qt/QtSurface.h"

namespace zqbchwcx::qt {

/// A picture box, as the views see it. Its window lives as long as it does, or shorter when the parent window ends
/// first; every operation is then without effect.
class QtPictureBox : public QtSurface<PictureBox, PictureBoxWidget> {
public:
    using QtSurface::QtSurface;
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
};

} // namespace zqbchwcx::qt
