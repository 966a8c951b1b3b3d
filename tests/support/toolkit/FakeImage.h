#pragma once

#include "platform/Geometry.h"
#include "platform/ImageList.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zqbchwcx::testing {

/// A picture known by its key. Its size and its transparent pixels are those of the real pictures: the rail lets
/// places and rack number through, a place or module its number, a frame everything inside its line.
class FakeImage : public Image {
public:
    explicit FakeImage(std::string key);

    const std::string& Key() const { return msKey; }
    Size PictureSize() const { return mSize; }
    bool IsOpaque(Point at) const
    {
        return mcolOpaque[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(mSize.width) +
                          static_cast<std::size_t>(at.x)];
    }

private:
    bool HasInkAt(Point at) const;
    bool IsFrameLine(Point at) const;

    std::string msKey;
    Size mSize;
    std::vector<bool> mcolOpaque;
};

} // namespace zqbchwcx::testing
