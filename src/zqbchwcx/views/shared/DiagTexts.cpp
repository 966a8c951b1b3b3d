#include "zqbchwcx/views/shared/DiagTexts.h"

#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"

namespace zqbchwcx {
namespace DiagTexts {
namespace {

struct Category {
    std::int32_t lCategory;
    std::int32_t lText;
};
constexpr Category Categories[] = {{vxDiagCategory1, 2021}, {vxDiagCategory4, 2026}, {vxDiagCategory2, 2027}};

} // namespace

std::int32_t CpuStateText(std::int32_t lCpuState)
{
    switch (lCpuState) {
    case vxCpuStateRun:
        return 6101;
    case vxCpuStateStop:
        return 6102;
    case vxCpuStateHold:
        return 6103;
    default:
        return NoText;
    }
}

std::string_view CpuStatePicture(std::int32_t lCpuState)
{
    switch (lCpuState) {
    case vxCpuStateRun:
        return "IDB_DIAG_CPU_RUN";
    case vxCpuStateStop:
        return "IDB_DIAG_CPU_STOP";
    case vxCpuStateHold:
        return "IDB_DIAG_CPU_HOLD";
    default:
        return {};
    }
}

std::string Description(const VxHWDiagService& oDiagService, const VxHWRackPlacePtr& oPlace, TextModule& texts,
                        std::int32_t lTextWithoutFailure)
{
    std::string text;
    const auto append = [&](std::int32_t lText) {
        if (lText != NoText) G_AppendLine(text, texts.Text(lText));
    };
    append(CpuStateText(oDiagService.CpuState(oPlace)));
    if (oDiagService.HasFailure(oPlace) == 0) {
        append(lTextWithoutFailure);
        return text;
    }
    for (const Category& category : Categories)
        if (oDiagService.HasDiagState(oPlace, category.lCategory)) append(category.lText);
    return text;
}

} // namespace DiagTexts

void G_AppendLine(std::string& text, std::string_view line)
{
    if (line.empty()) return;
    if (!text.empty()) text += "\r\n";
    text += line;
}

} // namespace zqbchwcx
