#pragma once

#include <cstdint>
#include <vector>

namespace zqbchwcx::reference {

/// What was selected and focused, as place positions; -1 means none.
struct ViewState {
    std::vector<std::int32_t> selection;
    std::int32_t focus = -1;
    std::int32_t anchor = -1;

    bool operator==(const ViewState&) const = default;
};

} // namespace zqbchwcx::reference
