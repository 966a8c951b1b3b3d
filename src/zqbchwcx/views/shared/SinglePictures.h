#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Surface.h"

#include <string_view>

namespace zqbchwcx {

/// Draws the single pictures of the text module.
class SinglePictures {
public:
    /// The text module outlives this object.
    SinglePictures(std::string_view className, const TextModuleUse& texts) : msClassName(className), mTexts(texts) {}

    /// An error is reported under the class.
    void Draw(Surface& surface, std::string_view name, Point at, DrawStyle eStyle) const noexcept;

private:
    std::string_view msClassName;
    const TextModuleUse& mTexts;
};

} // namespace zqbchwcx
