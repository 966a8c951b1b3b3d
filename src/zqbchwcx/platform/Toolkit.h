#pragma once

#include "zqbchwcx/platform/Button.h"
#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/platform/InfoControls.h"
#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/platform/PopupForm.h"
#include "zqbchwcx/platform/PopupMenu.h"
#include "zqbchwcx/platform/ScrollBar.h"
#include "zqbchwcx/platform/Shape.h"
#include "zqbchwcx/platform/SysInfo.h"
#include "zqbchwcx/platform/TabStrip.h"
#include "zqbchwcx/platform/Timer.h"
#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/platform/WindowWatch.h"

#include <string_view>

namespace zqbchwcx {

class Desktop;
class ImageListFactory;
class TooltipService;

/// Makes the child controls of views, and gives the desktop. Later children lie above earlier ones.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    virtual PictureBoxPtr CreatePictureBox(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual ChildControlPtr CreateChildControl(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual FramePtr CreateFrame(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual ShapePtr CreateShape(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual ScrollBarPtr CreateScrollBar(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual ButtonPtr CreateButton(UserControl& parent, std::string_view name, const Rect& rect,
                                   ButtonArrow eArrow) = 0;
    virtual PopupMenuPtr CreatePopupMenu(UserControl& parent, std::string_view name) = 0;
    virtual GridPtr CreateGrid(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual TabStripPtr CreateTabStrip(UserControl& parent, std::string_view name, const Rect& rect,
                                       std::int32_t lTabs) = 0;
    virtual PopupFormPtr CreatePopupForm(UserControl& parent, std::string_view name) = 0;
    virtual PanelPtr CreatePanel(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual LabelPtr CreateLabel(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual InfoBoxPtr CreateInfoBox(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual CommandButtonPtr CreateCommandButton(UserControl& parent, std::string_view name, const Rect& rect) = 0;
    virtual WindowSpyPtr CreateWindowSpy(std::intptr_t hWnd, WindowSpyHandler handler) = 0;
    virtual MouseHookPtr CreateMouseHook(MouseHookHandler handler) = 0;
    virtual SysInfoPtr CreateSysInfo(UserControl& parent) = 0;
    virtual TimerPtr CreateTimer() = 0;

    virtual Desktop& GetDesktop() = 0;
    virtual TooltipService& GetTooltipService() = 0;
    virtual ImageListFactory& GetImageListFactory() = 0;
};

} // namespace zqbchwcx
