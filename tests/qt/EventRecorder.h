#pragma once

#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/qt/SourceDataObject.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

using Lines = std::vector<std::string>;

inline ByteArray Bytes(std::string_view text)
{
    return qt::ToByteArray(QByteArray(text.data(), static_cast<qsizetype>(text.size())));
}

/// Keeps every event of a picture box or a control as a line. A drag is answered with one effect.
class EventRecorder : public PictureBoxEvents, public UserControlEvents {
public:
    void KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept override
    {
        if (nKeyCode != ShiftKey) Note("key", nKeyCode, nShift);
    }
    void KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept override
    {
        if (nKeyCode != ShiftKey) Note("release", nKeyCode, nShift);
    }
    void Resize() noexcept override { Note("resize"); }
    void MouseDown(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept override
    {
        Note("down", nButton, nShift, x, y);
    }
    void MouseMove(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept override
    {
        Note("move", nButton, nShift, x, y);
    }
    void MouseUp(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept override
    {
        Note("up", nButton, nShift, x, y);
    }
    void DblClick() noexcept override { Note("double"); }
    void GotFocus() noexcept override { Note("focus"); }
    void LostFocus() noexcept override { Note("no focus"); }
    void OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept override
    {
        Note("start");
        if (onStart) onStart(*oData, lAllowedEffects);
    }
    void OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept override
    {
        Note("set data");
        oData->SetData(nDataFormat, Bytes("late"));
    }
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y, std::int16_t nState) noexcept override
    {
        Note("over " + TextIn(*oData), lEffect, nButton, nShift, x, y, nState);
        lEffect = lAnswer;
    }
    void OLEDragDrop(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y) noexcept override
    {
        Note("drop " + TextIn(*oData), lEffect, nButton, nShift, x, y);
        lEffect = lAnswer;
    }
    void OLECompleteDrag(std::int32_t& lEffect) noexcept override { Note("complete", lEffect); }

    Lines Take() { return std::exchange(lines, {}); }

    Lines lines;
    std::function<void(DataObject&, std::int32_t&)> onStart;
    std::int32_t lAnswer = vxDropEffectNone;

private:
    /// The test library presses it before a key with a modifier.
    static constexpr std::int16_t ShiftKey = 16;

    static std::string TextIn(const DataObject& data)
    {
        return qt::ToQByteArray(data.GetData(qt::ClipboardFormatNumber("VxHWConfigText"))).toStdString();
    }
    template <class... Numbers>
    void Note(std::string line, Numbers... numbers)
    {
        ((line += " " + std::to_string(static_cast<int>(numbers))), ...);
        lines.push_back(std::move(line));
    }
};

} // namespace zqbchwcx::testing
