#pragma once

#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/qt/PictureCatalog.h"
#include "zqbchwcx/qt/QtDesktop.h"
#include "zqbchwcx/qt/QtTooltips.h"

namespace zqbchwcx::qt {

/// The toolkit on Qt Widgets. It needs a QApplication, made before and ended after it. Parents are controls that it
/// made itself, or the site of one of the adapter's widgets; any other is refused with VxError.
class QtToolkit : public Toolkit {
public:
    PictureBoxPtr CreatePictureBox(UserControl& parent, std::string_view name, const Rect& rect) override;
    ChildControlPtr CreateChildControl(UserControl& parent, std::string_view name, const Rect& rect) override;
    FramePtr CreateFrame(UserControl& parent, std::string_view name, const Rect& rect) override;
    ShapePtr CreateShape(UserControl& parent, std::string_view name, const Rect& rect) override;
    ScrollBarPtr CreateScrollBar(UserControl& parent, std::string_view name, const Rect& rect) override;
    ButtonPtr CreateButton(UserControl& parent, std::string_view name, const Rect& rect, ButtonArrow eArrow) override;
    PopupMenuPtr CreatePopupMenu(UserControl& parent, std::string_view name) override;
    GridPtr CreateGrid(UserControl& parent, std::string_view name, const Rect& rect) override;
    TabStripPtr CreateTabStrip(UserControl& parent, std::string_view name, const Rect& rect,
                               std::int32_t lTabs) override;
    PopupFormPtr CreatePopupForm(UserControl& parent, std::string_view name) override;
    PanelPtr CreatePanel(UserControl& parent, std::string_view name, const Rect& rect) override;
    LabelPtr CreateLabel(UserControl& parent, std::string_view name, const Rect& rect) override;
    InfoBoxPtr CreateInfoBox(UserControl& parent, std::string_view name, const Rect& rect) override;
    CommandButtonPtr CreateCommandButton(UserControl& parent, std::string_view name, const Rect& rect) override;
    WindowSpyPtr CreateWindowSpy(std::intptr_t hWnd, WindowSpyHandler handler) override;
    MouseHookPtr CreateMouseHook(MouseHookHandler handler) override;
    SysInfoPtr CreateSysInfo(UserControl& parent) override;
    TimerPtr CreateTimer() override;

    Desktop& GetDesktop() override { return mDesktop; }
    TooltipService& GetTooltipService() override { return mTooltips; }
    ImageListFactory& GetImageListFactory() override { return mPictures; }
    /// The single pictures of the views, for the host's text module.
    PictureCatalog& Pictures() { return mPictures; }

private:
    QtDesktop mDesktop;
    QtTooltips mTooltips;
    PictureCatalog mPictures;
};

} // namespace zqbchwcx::qt
