#include "zqbchwcx/reference/commands/ModuleDetails.h"

#include "zqbchwcx/reference/commands/TerminalLine.h"
#include "zqbchwcx/reference/compare/DifferenceText.h"
#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

namespace zqbchwcx::reference {
namespace {

class DetailsWriter {
public:
    DetailsWriter(const Catalogue& catalogue, Language language) : mCatalogue(catalogue), meLanguage(language) {}

    void Line(const std::string& line) { msText += TerminalLine(line) + "\n"; }

    void Rack(std::size_t number, const RackData& rack)
    {
        const std::string name = Word({"Rack", "Träger"}) + " " + std::to_string(number);
        Line(name + (rack.state != 0 ? "" : ": " + Word({"not present", "nicht vorhanden"})));
        for (std::size_t i = 0; i < rack.places.size(); ++i) {
            const PlaceData& place = rack.places[i];
            const std::string at = name + ", " + Word({"place", "Platz"}) + " " + std::to_string(i + 1);
            if (place.usability == 0) Line(at + ": " + Word({"inactive", "nicht aktiv"}));
            if (place.usability < 0) Line(at + ": " + Word({"not usable", "nicht nutzbar"}));
            if (place.module) Module(at + ": ", *place.module, "    ");
        }
    }

    std::string Word(const LocalizedText& word) const { return word.In(meLanguage); }
    std::string Take() && { return std::move(msText); }

private:
    void Module(const std::string& at, const ModuleData& module, const std::string& indentation)
    {
        const ModuleType* type = mCatalogue.Find(module.orderNumber);
        Line(at + module.orderNumber + (type ? " " + type->name.In(meLanguage) : std::string()));
        const auto value = [&](const LocalizedText& name, const std::string& text) {
            if (!text.empty()) Line(indentation + name.In(meLanguage) + ": " + text);
        };
        value({"Name", "Name"}, module.name);
        value({"Comment", "Kommentar"}, module.comment);
        value({"Inputs", "Eingänge"}, AddressText(AddressArea::Input, module, type));
        value({"Outputs", "Ausgänge"}, AddressText(AddressArea::Output, module, type));
        if (type)
            for (const ParameterDefinition& definition : type->parameters)
                value(definition.label, ReadableValue(&definition, ValueOf(module, definition), meLanguage));
        for (const auto& [key, own] : module.parameters)
            if (!type || !FindParameter(*type, key)) value({key, key}, ReadableValue(nullptr, own, meLanguage));
        for (std::size_t i = 0; i < module.subModules.size(); ++i)
            Module(indentation + Word({"Sub-module", "Submodul"}) + " " + std::to_string(i + 1) + ": ",
                   module.subModules[i], indentation + "    ");
    }

    const Catalogue& mCatalogue;
    Language meLanguage;
    std::string msText;
};

} // namespace

std::string WriteStationDetails(const StationData& station, const Catalogue& catalogue, Language language)
{
    DetailsWriter writer(catalogue, language);
    writer.Line(writer.Word({"Station", "Station"}) + ": " + station.name);
    writer.Line(writer.Word({"Kind", "Art"}) + ": " + StationKindText(station.kind).In(language));
    if (station.readOnly) writer.Line(writer.Word({"Locked against changes", "Gegen Änderungen gesperrt"}));
    for (std::size_t rack = 0; rack < station.racks.size(); ++rack) writer.Rack(rack, *station.racks[rack]);
    return std::move(writer).Take();
}

} // namespace zqbchwcx::reference
