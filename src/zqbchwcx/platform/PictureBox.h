#pragma once

#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/platform/Surface.h"

#include <cstdint>
#include <memory>

namespace zqbchwcx {

/// Receives what happens on a picture box. Coordinates are logical pixels of the box, not yet whole ones.
class PictureBoxEvents {
public:
    virtual ~PictureBoxEvents() = default;

    virtual void MouseDown(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept = 0;
    virtual void MouseMove(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept = 0;
    virtual void MouseUp(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept = 0;
    virtual void DblClick() noexcept = 0;
    virtual void GotFocus() noexcept = 0;
    virtual void LostFocus() noexcept = 0;
    virtual void OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept = 0;
    virtual void OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept = 0;
    virtual void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                             std::int16_t nShift, float x, float y, std::int16_t nState) noexcept = 0;
    virtual void OLEDragDrop(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                             std::int16_t nShift, float x, float y) noexcept = 0;
    virtual void OLECompleteDrag(std::int32_t& lEffect) noexcept = 0;
};

/// A child window with a persistent picture. It is a drawing surface, and the source and target of drags.
class PictureBox : public Surface {
public:
    /// Who receives the events; null for nobody. The receiver outlives the box or sets null before it ends.
    virtual void Events(PictureBoxEvents* receiver) = 0;

    virtual std::int32_t Left() const = 0;
    virtual std::int32_t Top() const = 0;
    virtual Size ScaleSize() const = 0;
    /// Moves and resizes the box, in logical pixels of its control. What was drawn stays at its place.
    virtual void Move(const Rect& rect) = 0;
    virtual bool Visible() const = 0;
    virtual void Visible(bool bVisible) = 0;
    /// Sets the background and erases the picture with it.
    virtual void BackColor(OleColor color) = 0;
    /// Shows what has been drawn.
    virtual void Refresh() = 0;
    virtual bool HasFocus() const = 0;
    virtual void SetFocus() = 0;
    /// Starts a drag with this box as its source; returns when it is over, `OLECompleteDrag` included.
    virtual void OLEDrag() = 0;
    /// Identifies the window to the tooltip service.
    virtual std::intptr_t hWnd() const = 0;
};
using PictureBoxPtr = std::unique_ptr<PictureBox>;

} // namespace zqbchwcx
