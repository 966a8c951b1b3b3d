#include "zqbchwcx/qt/InputTranslation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace zqbchwcx::qt {
namespace {

constexpr std::array<std::pair<int, std::int16_t>, 25> SpecialKeys{{
    {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9},   {Qt::Key_Clear, vxKeyClear},
    {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},       {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},         {Qt::Key_Pause, 19},       {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},       {Qt::Key_PageUp, 33},      {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},
    {Qt::Key_Home, 36},        {Qt::Key_Left, vxKeyLeft}, {Qt::Key_Up, vxKeyUp},  {Qt::Key_Right, vxKeyRight},
    {Qt::Key_Down, vxKeyDown}, {Qt::Key_Print, 44},       {Qt::Key_Insert, 45},   {Qt::Key_Delete, vxKeyDelete},
    {Qt::Key_Menu, vxKeyApps},
}};

constexpr std::int16_t KeyF1 = 112;

} // namespace

QPointF ToPixel(QPointF position)
{
    return {std::floor(position.x()), std::floor(position.y())};
}

std::int16_t ToButtons(Qt::MouseButtons buttons)
{
    int result = 0;
    if (buttons.testFlag(Qt::LeftButton)) result |= vxButtonLeft;
    if (buttons.testFlag(Qt::RightButton)) result |= vxButtonRight;
    if (buttons.testFlag(Qt::MiddleButton)) result |= vxButtonMiddle;
    return static_cast<std::int16_t>(result);
}

std::int16_t ToShift(Qt::KeyboardModifiers modifiers)
{
    int result = 0;
    if (modifiers.testFlag(Qt::ShiftModifier)) result |= vxShiftMask;
    if (modifiers.testFlag(Qt::ControlModifier)) result |= vxCtrlMask;
    if (modifiers.testFlag(Qt::AltModifier)) result |= vxAltMask;
    return static_cast<std::int16_t>(result);
}

std::int16_t ToKeyCode(int key)
{
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return static_cast<std::int16_t>(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return static_cast<std::int16_t>(KeyF1 + (key - Qt::Key_F1));
    const auto found =
        std::find_if(SpecialKeys.begin(), SpecialKeys.end(), [key](const auto& entry) { return entry.first == key; });
    return found == SpecialKeys.end() ? std::int16_t{0} : found->second;
}

std::int32_t ToEffects(Qt::DropActions actions)
{
    std::int32_t lEffects = vxDropEffectNone;
    if (actions.testFlag(Qt::CopyAction)) lEffects |= vxDropEffectCopy;
    if (actions.testFlag(Qt::MoveAction)) lEffects |= vxDropEffectMove;
    return lEffects;
}

Qt::DropActions ToActions(std::int32_t lEffects)
{
    Qt::DropActions actions = Qt::IgnoreAction;
    if ((lEffects & vxDropEffectCopy) != 0) actions |= Qt::CopyAction;
    if ((lEffects & vxDropEffectMove) != 0) actions |= Qt::MoveAction;
    return actions;
}

Qt::DropAction ToAction(std::int32_t lEffect)
{
    if ((lEffect & vxDropEffectCopy) != 0) return Qt::CopyAction;
    return (lEffect & vxDropEffectMove) != 0 ? Qt::MoveAction : Qt::IgnoreAction;
}

} // namespace zqbchwcx::qt
