#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/views/diag/PanelLayout.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace zqbchwcx {

/// A row of the version grid.
struct VersionRow {
    std::string orderNumber;
    std::string component;
    std::string version;

    bool operator==(const VersionRow&) const = default;
};

/// What the panel shows. What could not be found out is empty.
struct PanelContent {
    ByPanelField<std::string> values; ///< that of the version is not used
    std::vector<VersionRow> versions;
    bool bHasModule = false;
    bool bHasDiagnosticInfo = false;
};

/// Reads what the panel shows, and reports its errors under the procedures of the panel.
class PanelReader {
public:
    explicit PanelReader(const ViewContext& context) : mContext(context) {}

    /// The texts of the values; a number that is not in it has no text.
    void Texts(std::map<std::int32_t, std::string> texts) { mcolTexts = std::move(texts); }
    static constexpr std::int32_t TextNumbers[] = {2020, 2021, 2026, 2027, 2050, 2051, 2052};

    /// Empty for a focus that names nothing of the station. The rack itself is told by its number alone.
    PanelContent Read(std::int32_t lFocus) const;

private:
    void P_SetModuleInfo(PanelContent& content, const VxHWRackPlacePtr& oPlace) const noexcept;
    void P_FillVersionInfoGrid(PanelContent& content, const VxHWRackPlacePtr& oPlace) const noexcept;
    std::string Status(const VxHWRackPlacePtr& oPlace) const;
    std::string Text(std::int32_t lText) const;

    const ViewContext& mContext;
    std::map<std::int32_t, std::string> mcolTexts;
};

} // namespace zqbchwcx
