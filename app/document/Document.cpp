#include "app/document/Document.h"

#include "app/host/Strings.h"
#include "zqbchwcx/reference/files/AtomicWrite.h"
#include "zqbchwcx/reference/files/StationWriter.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QFileInfo>

namespace quillon_ed {

using namespace zqbchwcx::reference;

Document::Document(ModelContextPtr context, StationData data, JournalOrigin origin, StationServices services,
                   FileSystem& files)
    : moFiles(files), moStation(std::make_shared<zqbchwcx::reference::Station>(std::move(context), std::move(data),
                                                                               std::move(services))),
      moOrigin(std::move(origin))
{
    HistoryServices asked;
    asked.editName = [this](EditKind kind) { return EditName(kind); };
    asked.captureView = [this] { return CaptureView(); };
    asked.restoreView = [this](const ViewState& state) { RestoreView(state); };
    moHistory = std::make_shared<zqbchwcx::reference::History>(moStation, std::move(asked));
    moHistoryChanged = moHistory->Changed.Connect([this] { emit changed(); });
}

Document::~Document() = default;

ViewState Document::CaptureView() const
{
    return moView.capture ? moView.capture() : ViewState();
}

void Document::RestoreView(const ViewState& state) const
{
    if (moView.restore) moView.restore(state);
}

std::string Document::EditName(EditKind kind) const
{
    switch (kind) {
    case EditKind::Insert:
        return tr("Insert").toStdString();
    case EditKind::Move:
        return tr("Move").toStdString();
    case EditKind::Delete:
        return tr("Delete").toStdString();
    case EditKind::Attribute:
        return tr("Edit").toStdString();
    case EditKind::Parameters:
        return tr("Parameters").toStdString();
    }
    return {};
}

QString Document::FileName() const
{
    return ToQString(moOrigin.stationFile);
}

QString Document::Title() const
{
    if (!moOrigin.stationFile.empty()) return QFileInfo(FileName()).fileName();
    return moStation->Data().name.empty() ? tr("New station") : ToQString(moStation->Data().name);
}

bool Document::IsModified() const
{
    return mbModifiedAnyway || moHistory->IsModified();
}

bool Document::IsFileWriteProtected() const
{
    const QFileInfo file(FileName());
    return !moOrigin.stationFile.empty() && file.exists() && !file.isWritable();
}

void Document::MarkModified()
{
    mbModifiedAnyway = true;
    emit changed();
}

void Document::Save(const QString& fileName)
{
    const std::string path = fileName.toStdString();
    const std::string text = WriteStation(moStation->Data(), path);
    try {
        AtomicWrite(moFiles, path, text);
        moOrigin = {path, MakeStamp(ReadStatus(moFiles, path), text)};
    } catch (const FileError&) {
        if (path == moOrigin.stationFile) RecogniseOwnFile(text);
        throw;
    }
    mbModifiedAnyway = false;
    moHistory->MarkSaved();
    emit changed();
}

void Document::RecogniseOwnFile(const std::string& text)
{
    try {
        if (ReadFile(moFiles, moOrigin.stationFile, LargestStationFile) != text) return;
        moOrigin.stamp = MakeStamp(ReadStatus(moFiles, moOrigin.stationFile), text);
    } catch (const FileError&) { // NOLINT(bugprone-empty-catch): the failure of the save is the one to tell
    }
}

FileChange Document::FileChange() const
{
    using Change = zqbchwcx::reference::FileChange;
    if (moOrigin.stationFile.empty()) return Change::Unchanged;
    // Known to be gone: whoever puts a file there again has changed it.
    if (!moOrigin.stamp) return ReadStatus(moFiles, moOrigin.stationFile) ? Change::Changed : Change::Unchanged;
    return ChangeSince(*moOrigin.stamp, moOrigin.stationFile, moFiles);
}

void Document::KeepOwnContent()
{
    MarkModified();
    moOrigin.stamp.reset();
    const auto status = ReadStatus(moFiles, moOrigin.stationFile);
    if (!status) return;
    // What cannot be read, as a folder of that name, is known by its size and time at least.
    moOrigin.stamp = FileStamp{status->bytes, status->modifiedNanoseconds, 0};
    moOrigin.stamp = MakeStamp(status, ReadFile(moFiles, moOrigin.stationFile, LargestStationFile));
}

void Document::TakeOver(LoadedStation loaded)
{
    moOrigin.stamp = loaded.stamp;
    mbModifiedAnyway = false;
    moStation->Restore(std::move(loaded.data));
    moHistory->Reset();
    emit changed();
}

} // namespace quillon_ed
