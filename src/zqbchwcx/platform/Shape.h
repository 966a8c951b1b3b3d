#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/Geometry.h"

#include <memory>

namespace zqbchwcx {

/// A windowless rectangle without input, in logical pixels of its control: the pieces of the arrow (filled in the
/// system button-text colour) and the thin bars between the racks.
class Shape {
public:
    virtual ~Shape() = default;

    virtual Rect Bounds() const = 0;
    virtual void Move(const Rect& rect) = 0;
    virtual bool Visible() const = 0;
    virtual void Visible(bool bVisible) = 0;
    /// The shape is a step of a stair that narrows towards its right end, where it is this high. A window with several
    /// device pixels to a logical one may draw a slope instead, within the bounds.
    virtual void Slope(std::int32_t /*lRightHeight*/) {}
};
using ShapePtr = std::unique_ptr<Shape>;

/// A frame control: a thin bar, or what shows around a button. It starts in the system button-shadow colour.
class Frame : public Shape {
public:
    virtual void BackColor(OleColor color) = 0;
};
using FramePtr = std::unique_ptr<Frame>;

} // namespace zqbchwcx
