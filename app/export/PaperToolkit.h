#pragma once

#include "zqbchwcx/platform/Toolkit.h"

#include <memory>

namespace quillon_ed {

/// Makes controls that lie on paper. The desktop and the pictures are those of the screen's toolkit; timers, menus,
/// tooltips and notifications exist, but nothing ever happens to them. Every parent is a `PaperSite`.
class PaperToolkit : public zqbchwcx::Toolkit {
public:
    explicit PaperToolkit(std::shared_ptr<zqbchwcx::Toolkit> screen);
    ~PaperToolkit() override;

    zqbchwcx::PictureBoxPtr CreatePictureBox(zqbchwcx::UserControl& parent, std::string_view name,
                                             const zqbchwcx::Rect& rect) override;
    zqbchwcx::ChildControlPtr CreateChildControl(zqbchwcx::UserControl& parent, std::string_view name,
                                                 const zqbchwcx::Rect& rect) override;
    zqbchwcx::FramePtr CreateFrame(zqbchwcx::UserControl& parent, std::string_view name,
                                   const zqbchwcx::Rect& rect) override;
    zqbchwcx::ShapePtr CreateShape(zqbchwcx::UserControl& parent, std::string_view name,
                                   const zqbchwcx::Rect& rect) override;
    zqbchwcx::PopupMenuPtr CreatePopupMenu(zqbchwcx::UserControl& parent, std::string_view name) override;
    zqbchwcx::SysInfoPtr CreateSysInfo(zqbchwcx::UserControl& parent) override;
    zqbchwcx::TimerPtr CreateTimer() override;

    zqbchwcx::Desktop& GetDesktop() override;
    zqbchwcx::TooltipService& GetTooltipService() override;
    zqbchwcx::ImageListFactory& GetImageListFactory() override;

private:
    std::shared_ptr<zqbchwcx::Toolkit> moScreen;
    std::unique_ptr<zqbchwcx::TooltipService> moTooltips;
};

} // namespace quillon_ed
