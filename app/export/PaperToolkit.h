#pragma once

#include "zqbchwcx/platform/Toolkit.h"

#include <memory>

namespace quillon_ed {

/// Makes controls that lie on paper. The desktop and the pictures are those of the screen's toolkit; timers, menus,
/// tooltips and notifications exist, but nothing ever happens to them. Every parent is a `PaperSite`. Grids, tab
/// strips, popup forms and what panels are made of are refused with VxError: a table is printed as a text table.
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
    zqbchwcx::ScrollBarPtr CreateScrollBar(zqbchwcx::UserControl& parent, std::string_view name,
                                           const zqbchwcx::Rect& rect) override;
    zqbchwcx::ButtonPtr CreateButton(zqbchwcx::UserControl& parent, std::string_view name, const zqbchwcx::Rect& rect,
                                     zqbchwcx::ButtonArrow eArrow) override;
    zqbchwcx::PopupMenuPtr CreatePopupMenu(zqbchwcx::UserControl& parent, std::string_view name) override;
    zqbchwcx::GridPtr CreateGrid(zqbchwcx::UserControl& parent, std::string_view name,
                                 const zqbchwcx::Rect& rect) override;
    zqbchwcx::TabStripPtr CreateTabStrip(zqbchwcx::UserControl& parent, std::string_view name,
                                         const zqbchwcx::Rect& rect, std::int32_t lTabs) override;
    zqbchwcx::PopupFormPtr CreatePopupForm(zqbchwcx::UserControl& parent, std::string_view name) override;
    zqbchwcx::PanelPtr CreatePanel(zqbchwcx::UserControl& parent, std::string_view name,
                                   const zqbchwcx::Rect& rect) override;
    zqbchwcx::LabelPtr CreateLabel(zqbchwcx::UserControl& parent, std::string_view name,
                                   const zqbchwcx::Rect& rect) override;
    zqbchwcx::InfoBoxPtr CreateInfoBox(zqbchwcx::UserControl& parent, std::string_view name,
                                       const zqbchwcx::Rect& rect) override;
    zqbchwcx::CommandButtonPtr CreateCommandButton(zqbchwcx::UserControl& parent, std::string_view name,
                                                   const zqbchwcx::Rect& rect) override;
    zqbchwcx::WindowSpyPtr CreateWindowSpy(std::intptr_t hWnd, zqbchwcx::WindowSpyHandler handler) override;
    zqbchwcx::MouseHookPtr CreateMouseHook(zqbchwcx::MouseHookHandler handler) override;
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
