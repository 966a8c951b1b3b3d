#include "zqbchwcx/reference/commands/Convert.h"

#include "zqbchwcx/reference/commands/ModuleListText.h"
#include "zqbchwcx/reference/files/AtomicWrite.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/files/StationWriter.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <optional>

namespace zqbchwcx::reference {

void ConvertStation(const std::string& sourceFile, const std::string& targetFile, const Catalogue& catalogue,
                    Language language, FileSystem& files)
{
    std::optional<ListFormat> list;
    if (targetFile.ends_with(".csv")) list = ListFormat::Csv;
    else if (targetFile.ends_with(".md")) list = ListFormat::Markdown;
    else if (!targetFile.ends_with(".json"))
        throw FileError(targetFile, "", "the name must end in .json, .csv or .md to say what is to be written",
                        "der Name muss auf .json, .csv oder .md enden, damit klar ist, was geschrieben wird");

    const StationData station = LoadStation(sourceFile, catalogue, files).data;
    AtomicWrite(files, targetFile,
                list ? WriteModuleList(ListModules(station, catalogue, language), *list, language)
                     : WriteStation(station, targetFile));
}

} // namespace zqbchwcx::reference
