#pragma once

#include "zqbchwcx/reference/files/FileStamp.h"
#include "zqbchwcx/reference/files/JournalEntry.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/history/History.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QObject>

#include <memory>
#include <optional>

namespace quillon_ed {

/// A station that is open: its model, its history, and the file that it came from.
class Document : public QObject {
    Q_OBJECT

public:
    /// The selection and focus that undo and redo bring back; an empty function is left out.
    struct View {
        std::function<zqbchwcx::reference::ViewState()> capture;
        std::function<void(const zqbchwcx::reference::ViewState&)> restore;
    };

    /// The origin's file is empty for a station that was never saved.
    Document(zqbchwcx::reference::ModelContextPtr context, zqbchwcx::reference::StationData data,
             zqbchwcx::reference::JournalOrigin origin, zqbchwcx::reference::StationServices services,
             zqbchwcx::reference::FileSystem& files = zqbchwcx::reference::SystemFiles());
    ~Document() override;

    const zqbchwcx::reference::StationPtr& Station() const { return moStation; }
    zqbchwcx::reference::History& History() { return *moHistory; }
    const zqbchwcx::reference::History& History() const { return *moHistory; }
    /// What the host's error service passes user actions to.
    std::weak_ptr<zqbchwcx::reference::History> Actions() const { return moHistory; }
    void ShownBy(View view) { moView = std::move(view); }
    /// The selection and focus of whoever shows the document.
    zqbchwcx::reference::ViewState CaptureView() const;
    void RestoreView(const zqbchwcx::reference::ViewState& state) const;

    const zqbchwcx::reference::JournalOrigin& Origin() const { return moOrigin; }
    /// Empty when the station was never saved.
    QString FileName() const;
    /// The file's name, or the station's.
    QString Title() const;
    bool IsModified() const;
    /// Whether the file is there but may not be written.
    bool IsFileWriteProtected() const;

    /// Counts as modified whatever the history says, as after a recovery.
    void MarkModified();
    /// Writes the file and takes its name over. Throws FileError; the file then has its old content or, when the
    /// failure came last, the new one, and the station stays modified.
    void Save(const QString& fileName);
    /// What another program did to the file since it was read or written. Throws FileError.
    zqbchwcx::reference::FileChange FileChange() const;
    /// Makes the file's present state the one to compare with, and keeps the own content as a change of it.
    void KeepOwnContent();
    /// What was read from its file again becomes its content, without history. It can be another kind of station, or
    /// have other racks: whoever shows the document begins anew.
    void TakeOver(zqbchwcx::reference::LoadedStation loaded);

signals:
    /// Modified mark, file name, undo or redo have changed.
    void changed();

private:
    std::string EditName(zqbchwcx::reference::EditKind kind) const;
    /// Knows the file again when a save failed only after its content had come into place.
    void RecogniseOwnFile(const std::string& text);

    zqbchwcx::reference::FileSystem& moFiles;
    zqbchwcx::reference::StationPtr moStation;
    zqbchwcx::reference::JournalOrigin moOrigin;
    View moView;
    std::shared_ptr<zqbchwcx::reference::History> moHistory;
    zqbchwcx::EventConnection moHistoryChanged;
    bool mbModifiedAnyway = false;
};

} // namespace quillon_ed
