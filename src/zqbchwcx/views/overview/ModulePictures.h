#pragma once

#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/views/overview/PictureStrip.h"

#include <set>
#include <string>
#include <string_view>

namespace zqbchwcx {

/// The pictures of places and modules: a strip of the host's resources, and picture files that are added to it when a
/// module first needs them.
class ModulePictures {
public:
    explicit ModulePictures(std::string_view className) : msClassName(className) {}

    /// Starts over with the pictures of the strip.
    void Load(TextModule& textModule, const PictureStrip& strip);
    /// Has no pictures any more.
    void Forget() { moImages.reset(); }
    /// Throws VxError before `Load`.
    const ImageList& List() const;

    /// The key of the module's picture; the default key when the module's picture file yields none.
    std::string KeyOf(const VxHWModule& oModule, std::string_view defaultKey) noexcept;

private:
    bool AddFile(const std::string& name);

    std::string_view msClassName;
    ImageListPtr moImages;
    std::set<std::string> mcolWithoutPicture; ///< a missing file is looked for once, not on every drawing
};

} // namespace zqbchwcx
