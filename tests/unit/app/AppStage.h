#pragma once

#include "app/document/Document.h"
#include "app/host/AppServices.h"
#include "app/host/ShippedData.h"
#include "zqbchwcx/reference/files/StationReader.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace quillon_ed::testing {

inline constexpr char Waterworks[] = ":/examples/waterworks.station.json";

/// The program's own host services, with settings and files of one test.
class AppStage : public ::testing::Test {
protected:
    AppStage() : settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat), services(settings)
    {
        // Journals of a test must not be offered to whoever runs it.
        QStandardPaths::setTestModeEnabled(true);
        services.ShowLanguage(zqbchwcx::reference::Language::English);
    }

    void TearDown() override
    {
        for (const auto& entry : services.Errors().Entries())
            ADD_FAILURE() << entry.source << ": " << entry.description;
    }

    QString Path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    void WriteFile(const QString& path, const QByteArray& content) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    std::unique_ptr<Document> MakeDocument(zqbchwcx::reference::StationData data,
                                           zqbchwcx::reference::JournalOrigin origin = {})
    {
        auto document =
            std::make_unique<Document>(services.Context(), std::move(data), std::move(origin),
                                       zqbchwcx::reference::StationServices{services.Clipboard(), {}, {}, {}, {}});
        services.Errors().Actions(document->Actions());
        return document;
    }

    std::unique_ptr<Document> OpenExample(const char* resource = Waterworks)
    {
        const QByteArray text = ReadWhole(QString::fromLatin1(resource));
        return MakeDocument(zqbchwcx::reference::ParseStation({text.data(), static_cast<std::size_t>(text.size())},
                                                              resource, services.Catalogue()));
    }

    std::unique_ptr<Document> OpenFile(const QString& path)
    {
        auto loaded = zqbchwcx::reference::LoadStation(path.toStdString(), services.Catalogue());
        return MakeDocument(std::move(loaded.data), {path.toStdString(), loaded.stamp});
    }

    static bool SetComment(Document& document, zqbchwcx::reference::PlaceRef place, std::string_view text)
    {
        return document.Station()->SetModuleAttribute(document.Station()->PlaceAt(place), "COMMENT", text);
    }

    QTemporaryDir folder;
    QSettings settings;
    AppServices services;
};

} // namespace quillon_ed::testing
