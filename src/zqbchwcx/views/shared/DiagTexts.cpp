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

std::vector<std::int32_t> Failures(const VxHWDiagService& oDiagService, const VxHWRackPlacePtr& oPlace,
                                   std::int32_t lTextWithoutFailure)
{
    std::vector<std::int32_t> texts;
    if (oDiagService.HasFailure(oPlace) == 0) {
        if (lTextWithoutFailure != NoText) texts.push_back(lTextWithoutFailure);
        return texts;
    }
    for (const Category& category : Categories)
        if (oDiagService.HasDiagState(oPlace, category.lCategory)) texts.push_back(category.lText);
    return texts;
}

std::string Description(const VxHWDiagService& oDiagService, const VxHWRackPlacePtr& oPlace, TextModule& texts,
                        std::int32_t lTextWithoutFailure)
{
    std::string text;
    const std::int32_t lCpuState = CpuStateText(oDiagService.CpuState(oPlace));
    if (lCpuState != NoText) text = texts.Text(lCpuState);
    for (const std::int32_t lText : Failures(oDiagService, oPlace, lTextWithoutFailure))
        G_AppendLine(text, texts.Text(lText));
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
