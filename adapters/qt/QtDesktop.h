#pragma once

#include "zqbchwcx/platform/Desktop.h"

namespace zqbchwcx::qt {

class QtDesktop : public Desktop {
public:
    QtDesktop() = default;
    ~QtDesktop() override;
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;

    std::optional<OleColor> TranslateColor(OleColor color, std::intptr_t hPalette) const override;
    void ScreenMousePointer(MousePointer pointer) override;
    std::int16_t RegisterClipboardFormat(std::string_view name) override;

private:
    bool mbHourglass = false;
};

} // namespace zqbchwcx::qt
