#include "zqbchwcx/reference/model/contract/Tooltips.h"

#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

#include <string_view>

namespace zqbchwcx::reference {
namespace {

void AddLine(std::string& text, std::string_view line)
{
    if (line.empty()) return;
    if (!text.empty()) text += "\r\n";
    text += line;
}

void AddAddresses(std::string& text, const ModuleData& module, const ModuleType* type, Language language)
{
    const LocalizedText inputs{"Inputs ", "Eingänge "};
    const LocalizedText outputs{"Outputs ", "Ausgänge "};
    if (module.inputAddress) AddLine(text, inputs.In(language) + AddressText(AddressArea::Input, module, type));
    if (module.outputAddress) AddLine(text, outputs.In(language) + AddressText(AddressArea::Output, module, type));
}

} // namespace

LocalizedText EmptyPlaceText(const PlaceData& data, PlaceRef place)
{
    const std::string number = std::to_string(place.place);
    if (data.usability == vxPlaceActive) return {"Place " + number + ": free", "Platz " + number + ": frei"};
    if (data.usability == vxPlaceInactive)
        return {"Place " + number + ": inactive", "Platz " + number + ": nicht aktiv"};
    return {"Place " + number + ": not usable", "Platz " + number + ": nicht nutzbar"};
}

std::string ModuleText(const ModuleData& module, const Catalogue& catalogue, Language language)
{
    const ModuleType* type = catalogue.Find(module.orderNumber);
    std::string text = ReadableName(module, catalogue, language);
    if (text != module.orderNumber) AddLine(text, module.orderNumber);
    if (type) AddLine(text, type->description.In(language));
    AddAddresses(text, module, type, language);
    for (const ModuleData& subModule : module.subModules)
        AddLine(text, "- " + ReadableName(subModule, catalogue, language));
    AddLine(text, module.comment);
    return text;
}

} // namespace zqbchwcx::reference
