#pragma once

#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/platform/ImageList.h"

#include <string>
#include <vector>

namespace zqbchwcx::testing {

/// A picture known by its key.
struct FakeImage : Image {
    explicit FakeImage(std::string sKey);

    std::string key;
    /// The parts that are not transparent, as in the real pictures: the rail lets places and rack number through, a
    /// place or module its number, a frame everything inside its line.
    std::vector<Rect> opaque;
};

} // namespace zqbchwcx::testing
