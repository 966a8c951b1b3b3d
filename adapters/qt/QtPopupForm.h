#pragma once

#include "zqbchwcx/platform/PopupForm.h"
#include "zqbchwcx/qt/PopupFormWidget.h"
#include "zqbchwcx/qt/QtSurface.h"

namespace zqbchwcx::qt {

/// A popup form, as the views see it. Its window ends with it, or before it with the parent window; every operation is
/// then without effect.
class QtPopupForm : public QtSurface<PopupForm, PopupFormWidget> {
public:
    using QtSurface::QtSurface;
    ~QtPopupForm() override;
    QtPopupForm(const QtPopupForm&) = delete;
    QtPopupForm& operator=(const QtPopupForm&) = delete;

    void Events(PopupFormEvents* receiver) override;
    void Show(const Rect& onScreen) override;
    void Hide() override;
    void Tell(std::string_view text) override;
    bool Visible() const override;
    Size ScaleSize() const override;
    std::int32_t TextHeight() const override;
    Rect WorkArea(Point onScreen) const override;
    std::intptr_t hWnd() const override;
};

} // namespace zqbchwcx::qt
