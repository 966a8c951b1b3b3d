#pragma once

#include "app/document/AutoSave.h"
#include "app/document/Document.h"
#include "app/document/RecentFiles.h"
#include "app/host/AppServices.h"
#include "zqbchwcx/reference/files/Recovery.h"

#include <QObject>

#include <memory>

class QWidget;

namespace quillon_ed {

/// New, open, save and what belongs to them: the questions before something is lost, and the telling of what failed.
/// Holds the one document of a window.
class FileCommands : public QObject {
    Q_OBJECT

public:
    /// The first two outlive the commands. What stations ask of the window is given without a clipboard. The window is
    /// the parent of the dialogs.
    FileCommands(AppServices& services, RecentFiles& recentFiles, zqbchwcx::reference::StationServices asked,
                 QWidget& window);
    ~FileCommands() override;

    /// Null while no station is open.
    Document* Current() { return moDocument.get(); }

    void New();
    void Open();
    /// False when the file could not be opened or the user kept the present station.
    bool OpenFile(const QString& fileName);
    /// Opens a copy that has no file of its own.
    void OpenExample(const QString& resource);
    /// False when the station was not saved after all.
    bool Save();
    bool SaveAs();
    /// False when the user wants to stay.
    bool Close();
    /// Asks what to do when another program has changed the file.
    void CheckFile();
    /// Offers what a program that died has left; says so when there is nothing and `telling` is set.
    void OfferRecovery(bool telling);

signals:
    void aboutToClose();
    /// Another document is open, another content of the same one, or none.
    void opened();
    /// Title, modified mark, undo or redo of the document have changed.
    void changed();
    void warned(const QString& text);

private:
    /// Asks when something would be lost. False when the user wants to stay.
    bool MayLeave();
    void Adopt(std::unique_ptr<Document> document);
    std::unique_ptr<Document> MakeDocument(zqbchwcx::reference::StationData data,
                                           zqbchwcx::reference::JournalOrigin origin) const;
    bool SaveTo(const QString& fileName);
    enum class Overwriting { Allowed, Elsewhere, Refused };
    Overwriting AnswerBeforeOverwriting();
    void Reload();
    void AnswerForeignChange(zqbchwcx::reference::FileChange change);
    void Recover(const zqbchwcx::reference::RecoverableJournal& journal);
    void Tell(const QString& what, const QString& reason);
    /// The file is the one that the user works with now.
    void Remember(const QString& fileName);

    AppServices& moServices;
    RecentFiles& moRecentFiles;
    zqbchwcx::reference::StationServices moAsked;
    QWidget& moWindow;
    std::unique_ptr<Document> moDocument;
    std::unique_ptr<AutoSave> moAutoSave;
    bool mbAsking = false;
};

} // namespace quillon_ed
