#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/HostServices.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx {

/// How a state of the diagnostics is told: text numbers and pictures, the same in tooltips, tables and panel.
namespace DiagTexts {

inline constexpr std::int32_t NoText = 0;

/// The text of the operating state of a controller (10 RUN, 11 STOP, 12 HOLD); `NoText` for another value.
std::int32_t CpuStateText(std::int32_t lCpuState);
/// The picture of the operating state; empty for another value.
std::string_view CpuStatePicture(std::int32_t lCpuState);

inline constexpr std::string_view FailurePicture = "IDB_DIAG_FAILURE";

/// The numbers of the texts about what fails in the place: of the categories 1, 4 and 2, in that order, that the
/// service reports; of `lTextWithoutFailure` alone, unless that is `NoText`, when it reports no failure.
std::vector<std::int32_t> Failures(const VxHWDiagService& oDiagService, const VxHWRackPlacePtr& oPlace,
                                   std::int32_t lTextWithoutFailure);

/// What the service says about a module, a line each ("\r\n" between them): the operating state of a controller, then
/// the `Failures`.
std::string Description(const VxHWDiagService& oDiagService, const VxHWRackPlacePtr& oPlace, TextModule& texts,
                        std::int32_t lTextWithoutFailure);

} // namespace DiagTexts

/// Appends a line after "\r\n"; an empty line is left out.
void G_AppendLine(std::string& text, std::string_view line);

} // namespace zqbchwcx
