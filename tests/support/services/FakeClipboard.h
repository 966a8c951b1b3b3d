#pragma once

#include "platform/DataObject.h"

namespace zqbchwcx::testing {

/// What the host's exchange data objects put on the clipboard.
struct FakeClipboard {
    ByteArray content;
};

} // namespace zqbchwcx::testing
