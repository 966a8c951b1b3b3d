#pragma once

#include "zqbchwcx/platform/DataObject.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx::qt {

/// The desktop's clipboard, by format number.
class QtClipboard {
public:
    struct Entry {
        std::int16_t nFormat = 0;
        ByteArray data;
    };

    static bool GetFormat(std::int16_t nFormat);
    /// Empty when the clipboard has nothing under the format.
    static ByteArray GetData(std::int16_t nFormat);
    /// Replaces the whole content. Nothing clears the clipboard.
    static void SetData(const std::vector<Entry>& entries);
};

} // namespace zqbchwcx::qt
