#pragma once

#include "tests/support/SourceFile.h"
#include "zqbchwcx/reference/catalogue/CatalogueReader.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace zqbchwcx::reference {

/// The modules that Quillon Ed ships, read once.
inline const std::shared_ptr<const Catalogue>& SharedCatalogue()
{
    static const auto catalogue =
        std::make_shared<const Catalogue>(LoadCatalogueDirectory(zqbchwcx::testing::SourceFile("assets/catalogue")));
    return catalogue;
}

inline const Catalogue& ShippedCatalogue()
{
    return *SharedCatalogue();
}

/// The paths of the stations that are shipped.
inline std::vector<std::string> ExampleFiles()
{
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(zqbchwcx::testing::SourceFile("examples")))
        if (entry.path().string().ends_with(".station.json")) files.push_back(entry.path().string());
    return files;
}

inline StationData ExampleStation(const std::string& name)
{
    return LoadStation(zqbchwcx::testing::SourceFile("examples/" + name + ".station.json"), ShippedCatalogue()).data;
}

inline ModuleData MakeModule(const std::string& orderNumber, const std::string& name = {},
                             const std::string& comment = {})
{
    ModuleData module;
    module.orderNumber = orderNumber;
    module.name = name;
    module.comment = comment;
    return module;
}

/// A central station in which every place of every rack holds a module.
inline StationData FullStation(std::int32_t racks, std::int32_t places)
{
    StationData station;
    station.name = "Full";
    std::int32_t address = 0;
    for (std::int32_t r = 0; r < racks; ++r) {
        auto rack = std::make_shared<RackData>();
        for (std::int32_t p = 0; p < places; ++p) {
            ModuleData module = MakeModule("Q3-AI08-A", "Module", "Comment of a usual length");
            module.inputAddress = address += 16;
            module.parameters["highLimit"] = 12.5;
            module.parameters["limitInterrupt"] = true;
            rack->places.push_back({1, std::make_shared<const ModuleData>(std::move(module))});
        }
        station.racks.push_back(std::move(rack));
    }
    return station;
}

/// The error that a function throws; one without a file name when it throws none.
template <class Function>
FileError ErrorOf(Function&& function)
{
    try {
        function();
    } catch (const FileError& error) {
        return error;
    }
    return {"", "", "no error"};
}

} // namespace zqbchwcx::reference
