#pragma once

#include "platform/Geometry.h"
#include "platform/ImageList.h"

#include <string>
#include <utility>

namespace zqbchwcx::testing {

/// A picture known by its key. Its size and its transparent pixels are those of the real pictures: the rail lets
/// places and rack number through, a place or module its number, a frame everything inside its line.
class FakeImage : public Image {
public:
    explicit FakeImage(std::string key) : msKey(std::move(key)) {}

    const std::string& Key() const { return msKey; }
    Size PictureSize() const;
    bool IsOpaque(Point at) const;

private:
    bool IsFrameLine(Point at) const;

    std::string msKey;
};

} // namespace zqbchwcx::testing
