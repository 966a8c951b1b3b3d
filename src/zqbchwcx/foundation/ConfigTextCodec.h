#pragma once

#include "zqbchwcx/platform/DataObject.h"

#include <string>
#include <string_view>

namespace zqbchwcx {

/// UTF-8 text as the byte array of the "VxHWConfigText" format: UTF-16LE code units and one terminating 0.
/// Malformed UTF-8 becomes U+FFFD.
ByteArray G_EncodeConfigText(std::string_view text);

/// The text up to the first 0 or the end; an odd last byte is ignored, an unpaired surrogate becomes U+FFFD.
std::string G_DecodeConfigText(const ByteArray& bytes);

} // namespace zqbchwcx
