#include "zqbchwcx/reference/commands/CheckReport.h"

#include "zqbchwcx/reference/commands/TerminalLine.h"

namespace zqbchwcx::reference {

std::string WriteCheckReport(const std::vector<Refusal>& found, std::string_view fileName, Language language)
{
    std::string report;
    for (const Refusal& refusal : found) {
        std::string line = std::string(fileName).append(": ");
        if (refusal.place.rack >= 0) line.append(PlaceText(refusal.place).In(language)).append(": ");
        line.append(RuleId(refusal.rule)).append(": ").append(refusal.text.In(language));
        report.append(TerminalLine(line)).append("\n");
    }
    return report;
}

} // namespace zqbchwcx::reference
