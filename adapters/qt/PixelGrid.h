#pragma once

#include "zqbchwcx/platform/Geometry.h"

#include <QRect>

#include <cmath>
#include <cstdint>

namespace zqbchwcx::qt {

/// Logical pixels on a device of a given ratio. Every edge is rounded by one rule from its own logical coordinate, so
/// that two rectangles that share a logical edge share the device edge: neighbours meet without seam or overlap at
/// every ratio.
class PixelGrid {
public:
    explicit PixelGrid(double ratio = 1.0) : mRatio(ratio) {}

    bool operator==(const PixelGrid&) const = default;

    double Ratio() const { return mRatio; }
    int Edge(double logical) const { return static_cast<int>(std::floor(logical * mRatio + 0.5)); }
    QRect Device(const Rect& rect) const
    {
        const int left = Edge(rect.left);
        const int top = Edge(rect.top);
        return {left, top, Edge(rect.right) - left, Edge(rect.bottom) - top};
    }

private:
    double mRatio;
};

} // namespace zqbchwcx::qt
