#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>

namespace quillon_ed {

enum class PictureView { Overview, Table, Both };

/// What of a station a picture shows.
struct PictureContent {
    PictureView view = PictureView::Overview;
    std::int32_t rack = 0; ///< Table and Both: the rack in the table
    /// The state of the plant, which is shown then; null: the configuration.
    zqbchwcx::VxHWDiagServicePtr diagnostics = nullptr;

    bool HasOverview() const { return view != PictureView::Table; }
    bool HasTable() const { return view != PictureView::Overview; }
};

} // namespace quillon_ed
