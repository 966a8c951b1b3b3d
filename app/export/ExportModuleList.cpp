#include "app/export/ExportModuleList.h"

#include "app/export/WriteBytes.h"
#include "app/host/PlainText.h"
#include "app/host/Strings.h"
#include "zqbchwcx/reference/commands/ModuleListText.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QFileInfo>

#include <optional>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

std::optional<ListFormat> formatOf(const QString& fileName)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    if (ending == QLatin1String("csv")) return ListFormat::Csv;
    if (ending == QLatin1String("md")) return ListFormat::Markdown;
    return {};
}

QString placeText(const ModuleRow& row)
{
    const QString place = QStringLiteral("%1/%2").arg(row.rack).arg(row.place);
    return row.subModule == 0 ? place : place + QStringLiteral(".%1").arg(row.subModule);
}

} // namespace

void ExportModuleList(const StationData& station, const Catalogue& catalogue, Language language,
                      const QString& fileName)
{
    const auto format = formatOf(fileName);
    if (!format)
        throw FileError(fileName.toStdString(), {}, "the name of a module list ends in .csv or .md",
                        "der Name einer Baugruppenliste endet auf .csv oder .md");
    const std::string list = WriteModuleList(ListModules(station, catalogue, language), *format, language);
    WriteBytes(fileName, QByteArray::fromStdString(list));
}

PrintedTable ModuleListTable(const StationData& station, const Catalogue& catalogue, Language language)
{
    PrintedTable table;
    for (const LocalizedText& heading :
         {LocalizedText{"Place", "Platz"}, LocalizedText{"Module", "Baugruppe"},
          LocalizedText{"Order number", "Bestellnummer"}, LocalizedText{"I address", "E-Adresse"},
          LocalizedText{"O address", "A-Adresse"}, LocalizedText{"Comment", "Kommentar"}})
        table.headings << ToQString(heading, language);
    for (const ModuleRow& row : ListModules(station, catalogue, language))
        table.rows.push_back({placeText(row), PlainText(row.module), PlainText(row.orderNumber), PlainText(row.inputs),
                              PlainText(row.outputs), PlainText(row.comment)});
    return table;
}

} // namespace quillon_ed
