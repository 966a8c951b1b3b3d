#include "zqbchwcx/qt/QtToolkit.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/QtPictureBox.h"
#include "zqbchwcx/qt/QtPopupMenu.h"
#include "zqbchwcx/qt/QtShape.h"
#include "zqbchwcx/qt/QtSysInfo.h"
#include "zqbchwcx/qt/QtTimer.h"
#include "zqbchwcx/qt/QtUserControl.h"
#include "zqbchwcx/qt/ShapeWidget.h"

namespace zqbchwcx::qt {
namespace {

ControlWidget& WindowOf(UserControl& control)
{
    auto* widget = qobject_cast<ControlWidget*>(WidgetOf(control.hWnd()));
    if (widget == nullptr) throw VxError(vxErrorNothing, "The control has no window");
    return *widget;
}

QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <class Interface>
std::unique_ptr<Interface> MakeShape(UserControl& parent, std::string_view name, const Rect& rect, OleColor color)
{
    auto* window = new ShapeWidget(WindowOf(parent), ToQString(name), rect, color);
    window->show();
    return std::make_unique<QtShape<Interface>>(*window);
}

} // namespace

PictureBoxPtr QtToolkit::CreatePictureBox(UserControl& parent, std::string_view name, const Rect& rect)
{
    ControlWidget& window = WindowOf(parent);
    auto* box = new PictureBoxWidget(window, ToQString(name), rect);
    box->Picture().Font(window.TextFont());
    box->Picture().Ratio(window.Ratio());
    box->show();
    if (window.focusProxy() == nullptr) window.setFocusProxy(box);
    return std::make_unique<QtPictureBox>(*box);
}

ChildControlPtr QtToolkit::CreateChildControl(UserControl& parent, std::string_view name, const Rect& rect)
{
    auto* child = new ControlWidget(&WindowOf(parent), ControlWidget::Backdrop::Parent);
    child->setObjectName(ToQString(name));
    auto control = std::make_unique<QtChildControl>(*child);
    control->Move(rect);
    child->show();
    return control;
}

FramePtr QtToolkit::CreateFrame(UserControl& parent, std::string_view name, const Rect& rect)
{
    return MakeShape<Frame>(parent, name, rect, vxColorButtonShadow);
}

ShapePtr QtToolkit::CreateShape(UserControl& parent, std::string_view name, const Rect& rect)
{
    return MakeShape<Shape>(parent, name, rect, vxColorButtonText);
}

PopupMenuPtr QtToolkit::CreatePopupMenu(UserControl& parent, std::string_view name)
{
    return std::make_unique<QtPopupMenu>(WindowOf(parent), ToQString(name));
}

GridPtr QtToolkit::CreateGrid(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/)
{
    throw VxError(vxErrorInvalidArgument, "There is no grid for " + std::string(name));
}

TabStripPtr QtToolkit::CreateTabStrip(UserControl& /*parent*/, std::string_view name, const Rect& /*rect*/,
                                      std::int32_t /*lTabs*/)
{
    throw VxError(vxErrorInvalidArgument, "There is no tab strip for " + std::string(name));
}

PopupFormPtr QtToolkit::CreatePopupForm(UserControl& /*parent*/, std::string_view name)
{
    throw VxError(vxErrorInvalidArgument, "There is no popup form for " + std::string(name));
}

WindowSpyPtr QtToolkit::CreateWindowSpy(std::intptr_t /*hWnd*/, WindowSpyHandler /*handler*/)
{
    return std::make_unique<WindowSpy>();
}

MouseHookPtr QtToolkit::CreateMouseHook(MouseHookHandler /*handler*/)
{
    return std::make_unique<MouseHook>();
}

SysInfoPtr QtToolkit::CreateSysInfo(UserControl& parent)
{
    return std::make_unique<QtSysInfo>(WindowOf(parent));
}

TimerPtr QtToolkit::CreateTimer()
{
    return std::make_unique<QtTimer>();
}

} // namespace zqbchwcx::qt
