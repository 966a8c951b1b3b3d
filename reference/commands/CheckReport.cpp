#include "zqbchwcx/reference/commands/CheckReport.h"

namespace zqbchwcx::reference {

std::string WriteCheckReport(const std::vector<Refusal>& found, std::string_view fileName, Language language)
{
    std::string report;
    for (const Refusal& refusal : found) {
        report.append(fileName).append(": ");
        if (refusal.place.rack >= 0) report.append(PlaceText(refusal.place).In(language)).append(": ");
        report.append(RuleId(refusal.rule)).append(": ").append(refusal.text.In(language)).append("\n");
    }
    return report;
}

} // namespace zqbchwcx::reference
