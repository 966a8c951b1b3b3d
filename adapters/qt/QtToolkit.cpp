#include "zqbchwcx/qt/QtToolkit.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/QtButton.h"
#include "zqbchwcx/qt/QtGrid.h"
#include "zqbchwcx/qt/QtInfoControls.h"
#include "zqbchwcx/qt/QtPictureBox.h"
#include "zqbchwcx/qt/QtPopupForm.h"
#include "zqbchwcx/qt/QtPopupMenu.h"
#include "zqbchwcx/qt/QtScrollBar.h"
#include "zqbchwcx/qt/QtShape.h"
#include "zqbchwcx/qt/QtSysInfo.h"
#include "zqbchwcx/qt/QtTabStrip.h"
#include "zqbchwcx/qt/QtTimer.h"
#include "zqbchwcx/qt/QtUserControl.h"
#include "zqbchwcx/qt/QtWindowWatch.h"
#include "zqbchwcx/qt/ShapeWidget.h"

#include <utility>

namespace zqbchwcx::qt {
namespace {

ControlWidget& WindowOf(UserControl& control)
{
    auto* widget = qobject_cast<ControlWidget*>(WidgetOf(control.hWnd()));
    if (widget == nullptr) throw VxError(vxErrorNothing, "The control has no window");
    return *widget;
}

template <class Made>
std::unique_ptr<Made> MakeShape(UserControl& parent, std::string_view name, const Rect& rect, OleColor color)
{
    auto* window = new ShapeWidget(WindowOf(parent), ToQString(name), rect, color);
    window->show();
    return std::make_unique<Made>(*window);
}

/// The keyboard goes to the first window of a view that takes it, in controls within the view's control, too.
void OfferFocus(ControlWidget& window, QWidget& first)
{
    QWidget* proxy = &first;
    for (ControlWidget* control = &window; control != nullptr && control->focusProxy() == nullptr;
         control = qobject_cast<ControlWidget*>(control->parentWidget())) {
        control->setFocusProxy(proxy);
        proxy = control;
    }
}

} // namespace

PictureBoxPtr QtToolkit::CreatePictureBox(UserControl& parent, std::string_view name, const Rect& rect)
{
    ControlWidget& window = WindowOf(parent);
    auto* box = new PictureBoxWidget(window, ToQString(name), rect);
    window.HoldsInput();
    box->Picture().Font(window.TextFont());
    box->Picture().Ratio(window.Ratio());
    box->show();
    OfferFocus(window, *box);
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
    return MakeShape<QtFrame>(parent, name, rect, vxColorButtonShadow);
}

ShapePtr QtToolkit::CreateShape(UserControl& parent, std::string_view name, const Rect& rect)
{
    return MakeShape<QtShape<Shape>>(parent, name, rect, vxColorButtonText);
}

ScrollBarPtr QtToolkit::CreateScrollBar(UserControl& parent, std::string_view name, const Rect& rect)
{
    auto* bar = new QScrollBar(Qt::Vertical, &WindowOf(parent));
    bar->setObjectName(ToQString(name));
    bar->setFocusPolicy(Qt::NoFocus);
    auto scrollBar = std::make_unique<QtScrollBar>(*bar);
    scrollBar->Move(rect);
    bar->show();
    return scrollBar;
}

ButtonPtr QtToolkit::CreateButton(UserControl& parent, std::string_view name, const Rect& rect, ButtonArrow eArrow)
{
    auto* button = new ScrollButtonWidget(WindowOf(parent), ToQString(name), rect, eArrow);
    button->show();
    return std::make_unique<QtButton>(*button);
}

PopupMenuPtr QtToolkit::CreatePopupMenu(UserControl& parent, std::string_view name)
{
    return std::make_unique<QtPopupMenu>(WindowOf(parent), ToQString(name));
}

GridPtr QtToolkit::CreateGrid(UserControl& parent, std::string_view name, const Rect& rect)
{
    ControlWidget& window = WindowOf(parent);
    auto* grid = new GridWidget(window, ToQString(name), rect);
    grid->TextFont(window.TextFont());
    grid->show();
    OfferFocus(window, *grid);
    return std::make_unique<QtGrid>(*grid);
}

TabStripPtr QtToolkit::CreateTabStrip(UserControl& parent, std::string_view name, const Rect& rect, std::int32_t lTabs)
{
    ControlWidget& window = WindowOf(parent);
    auto* tabs = new TabStripWidget(window, ToQString(name), lTabs);
    tabs->setFont(window.TextFont());
    auto strip = std::make_unique<QtTabStrip>(*tabs, rect);
    tabs->show();
    return strip;
}

PopupFormPtr QtToolkit::CreatePopupForm(UserControl& parent, std::string_view name)
{
    return std::make_unique<QtPopupForm>(*new PopupFormWidget(WindowOf(parent), ToQString(name)));
}

PanelPtr QtToolkit::CreatePanel(UserControl& parent, std::string_view name, const Rect& rect)
{
    ControlWidget& window = WindowOf(parent);
    auto* widget = new PanelWidget(window, ToQString(name));
    window.HoldsInput();
    auto panel = std::make_unique<QtPanel>(*widget);
    panel->Move(rect);
    widget->show();
    return panel;
}

LabelPtr QtToolkit::CreateLabel(UserControl& parent, std::string_view name, const Rect& rect)
{
    auto* widget = new QLabel(&WindowOf(parent));
    widget->setObjectName(ToQString(name));
    widget->setTextFormat(Qt::PlainText);
    auto label = std::make_unique<QtLabel>(*widget);
    label->Move(rect);
    widget->show();
    return label;
}

InfoBoxPtr QtToolkit::CreateInfoBox(UserControl& parent, std::string_view name, const Rect& rect)
{
    ControlWidget& window = WindowOf(parent);
    auto* widget = new InfoBoxWidget(window, ToQString(name));
    auto box = std::make_unique<QtInfoBox>(*widget);
    box->Move(rect);
    widget->show();
    OfferFocus(window, *widget);
    return box;
}

CommandButtonPtr QtToolkit::CreateCommandButton(UserControl& parent, std::string_view name, const Rect& rect)
{
    auto* widget = new QPushButton(&WindowOf(parent));
    widget->setObjectName(ToQString(name));
    widget->setAutoDefault(false);
    auto button = std::make_unique<QtCommandButton>(*widget);
    button->Move(rect);
    widget->show();
    return button;
}

WindowSpyPtr QtToolkit::CreateWindowSpy(std::intptr_t hWnd, WindowSpyHandler handler)
{
    return std::make_unique<QtWindowSpy>(hWnd, std::move(handler));
}

MouseHookPtr QtToolkit::CreateMouseHook(MouseHookHandler handler)
{
    return std::make_unique<QtMouseHook>(std::move(handler));
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
