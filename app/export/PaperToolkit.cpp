#include "app/export/PaperToolkit.h"

#include "app/export/PaperColors.h"
#include "app/export/PaperPicture.h"
#include "app/export/PaperShape.h"
#include "app/export/PaperSite.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/platform/Tooltips.h"

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

PaperSite& SiteOf(UserControl& parent)
{
    return dynamic_cast<PaperSite&>(parent);
}

VxError NotOnPaper(std::string_view name)
{
    return {vxErrorInvalidArgument, "Paper has no control of the kind of " + std::string(name)};
}

class PaperMenu : public PopupMenu {
public:
    std::int32_t Add(std::string_view /*name*/, std::string_view /*caption*/) override { return mlItems++; }
    void Caption(std::int32_t /*lItem*/, std::string_view /*caption*/) override {}
    bool Enabled(std::int32_t /*lItem*/) const override { return false; }
    void Enabled(std::int32_t /*lItem*/, bool /*bEnabled*/) override {}
    void OnClick(std::function<void(std::int32_t)> /*handler*/) override {}
    void Show(std::optional<Point> /*at*/, std::optional<std::int32_t> /*lDefaultItem*/) override {}

private:
    std::int32_t mlItems = 0;
};

class PaperSysInfo : public SysInfo {
public:
    void OnSysColorsChanged(std::function<void()> /*handler*/) override {}
    void OnSettingChanged(std::function<void(std::int32_t)> /*handler*/) override {}
    std::int32_t ScrollBarSize() const override { return 0; }
};

/// Nothing scrolls on paper: bars and buttons are not seen.
class PaperScrollBar : public ScrollBar {
public:
    void Events(ScrollBarEvents* /*receiver*/) override {}
    void Range(std::int32_t /*lMaximum*/, std::int32_t /*lPage*/) override {}
    std::int32_t Value() const override { return 0; }
    void Value(std::int32_t /*lValue*/) override {}
    void Move(const Rect& /*rect*/) override {}
    bool Visible() const override { return false; }
    void Visible(bool /*bVisible*/) override {}
};

class PaperButton : public Button {
public:
    void Events(ButtonEvents* /*receiver*/) override {}
    bool Pressed() const override { return false; }
    void Pressed(bool /*bPressed*/) override {}
    void ArrowColor(OleColor /*color*/) override {}
    void Move(const Rect& /*rect*/) override {}
    bool Visible() const override { return false; }
    void Visible(bool /*bVisible*/) override {}
};

class PaperTimer : public Timer {
public:
    void Interval(std::int32_t /*lMilliseconds*/) override {}
    bool Enabled() const override { return mbEnabled; }
    void Enabled(bool bEnabled) override { mbEnabled = bEnabled; }
    void OnTimer(std::function<void()> /*handler*/) override {}

private:
    bool mbEnabled = false;
};

class PaperTooltips : public TooltipService {
public:
    TooltipConnectionPtr Connect(std::intptr_t /*hWnd*/, TooltipCallback& /*callback*/) override
    {
        return std::make_unique<TooltipConnection>();
    }
};

} // namespace

PaperToolkit::PaperToolkit(std::shared_ptr<Toolkit> screen)
    : moScreen(std::move(screen)), moTooltips(std::make_unique<PaperTooltips>())
{
}

PaperToolkit::~PaperToolkit() = default;

PictureBoxPtr PaperToolkit::CreatePictureBox(UserControl& parent, std::string_view /*name*/, const Rect& rect)
{
    return std::make_unique<PaperPicture>(SiteOf(parent), rect);
}

ChildControlPtr PaperToolkit::CreateChildControl(UserControl& parent, std::string_view /*name*/, const Rect& rect)
{
    return std::make_unique<PaperSite>(&SiteOf(parent), rect);
}

FramePtr PaperToolkit::CreateFrame(UserControl& parent, std::string_view /*name*/, const Rect& rect)
{
    return std::make_unique<PaperShape>(SiteOf(parent), rect, PaperColor(vxColorButtonShadow));
}

ShapePtr PaperToolkit::CreateShape(UserControl& parent, std::string_view /*name*/, const Rect& rect)
{
    return std::make_unique<PaperShape>(SiteOf(parent), rect, PaperColor(vxColorButtonText));
}

ScrollBarPtr PaperToolkit::CreateScrollBar(UserControl& /*parent*/, std::string_view /*name*/, const Rect& /*rect*/)
{
    return std::make_unique<PaperScrollBar>();
}

ButtonPtr PaperToolkit::CreateButton(UserControl& /*parent*/, std::string_view /*name*/, const Rect& /*rect*/,
                                     ButtonArrow /*eArrow*/)
{
    return std::make_unique<PaperButton>();
}

PopupMenuPtr PaperToolkit::CreatePopupMenu(UserControl& /*parent*/, std::string_view /*name*/)
{
    return std::make_unique<PaperMenu>();
}

GridPtr PaperToolkit::CreateGrid(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/)
{
    throw NotOnPaper(name);
}

TabStripPtr PaperToolkit::CreateTabStrip(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/,
                                         std::int32_t /*lTabs*/)
{
    throw NotOnPaper(name);
}

PopupFormPtr PaperToolkit::CreatePopupForm(UserControl& /*parent*/, std::string_view name)
{
    throw NotOnPaper(name);
}

PanelPtr PaperToolkit::CreatePanel(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/)
{
    throw NotOnPaper(name);
}

LabelPtr PaperToolkit::CreateLabel(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/)
{
    throw NotOnPaper(name);
}

InfoBoxPtr PaperToolkit::CreateInfoBox(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/)
{
    throw NotOnPaper(name);
}

CommandButtonPtr PaperToolkit::CreateCommandButton(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/)
{
    throw NotOnPaper(name);
}

WindowSpyPtr PaperToolkit::CreateWindowSpy(std::intptr_t /*hWnd*/, WindowSpyHandler /*handler*/)
{
    return std::make_unique<WindowSpy>();
}

MouseHookPtr PaperToolkit::CreateMouseHook(MouseHookHandler /*handler*/)
{
    return std::make_unique<MouseHook>();
}

SysInfoPtr PaperToolkit::CreateSysInfo(UserControl& /*parent*/)
{
    return std::make_unique<PaperSysInfo>();
}

TimerPtr PaperToolkit::CreateTimer()
{
    return std::make_unique<PaperTimer>();
}

Desktop& PaperToolkit::GetDesktop()
{
    return moScreen->GetDesktop();
}

TooltipService& PaperToolkit::GetTooltipService()
{
    return *moTooltips;
}

ImageListFactory& PaperToolkit::GetImageListFactory()
{
    return moScreen->GetImageListFactory();
}

} // namespace quillon_ed
