#include "app/host/ShippedData.h"

#include "zqbchwcx/reference/catalogue/CatalogueReader.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QDir>
#include <QFile>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

const QString CatalogueDirectory = QStringLiteral(":/catalogue");
const QString TextsDirectory = QStringLiteral(":/texts");
const QString ExamplesDirectory = QStringLiteral(":/examples");

QStringList ResourcesIn(const QString& directory)
{
    QStringList names;
    for (const QString& name : QDir(directory).entryList(QDir::Files, QDir::Name)) {
        names << directory + u'/' + name;
    }
    return names;
}

} // namespace

QByteArray ReadWhole(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        throw FileError(fileName.toStdString(), {}, file.errorString().toStdString());
    }
    return file.readAll();
}

Catalogue ShippedCatalogue()
{
    std::vector<JsonDocument> documents;
    for (const QString& name : ResourcesIn(CatalogueDirectory)) {
        const QByteArray text = ReadWhole(name);
        documents.push_back(ParseStrictJson({text.data(), static_cast<std::size_t>(text.size())}, name.toStdString()));
    }
    return ReadCatalogue(documents);
}

TextTable ShippedTexts(Language language)
{
    const std::string_view code = language == Language::German ? "de" : "en";
    const QString name = QStringLiteral("%1/%2.json").arg(TextsDirectory, QLatin1String(code.data(), 2));
    const QByteArray text = ReadWhole(name);
    return ParseTextTable({text.data(), static_cast<std::size_t>(text.size())}, name.toStdString(), code);
}

QStringList ShippedExamples()
{
    return ResourcesIn(ExamplesDirectory);
}

} // namespace quillon_ed
