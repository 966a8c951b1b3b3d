#pragma once

#include "zqbchwcx/reference/files/Journal.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QObject>
#include <QString>

#include <memory>

class QTimer;

namespace quillon_ed {

class Document;

/// Keeps the unsaved state of a document in a journal, some moments after each change, so that little is lost when
/// the program dies.
class AutoSave : public QObject {
    Q_OBJECT

public:
    static constexpr int DelayMilliseconds = 1500;

    /// The document outlives this.
    AutoSave(Document& document, std::string journalDirectory, QObject* parent);

    /// Writes what is due at once. False when that failed.
    bool Flush();
    /// The document is saved or given up: nothing is to be recovered.
    void Discard();

signals:
    /// The journal cannot be written or removed; told once until it works again.
    void failed(const zqbchwcx::reference::FileError& error);

private:
    void OnChanged();
    template <class Step>
    void Try(Step step);

    Document& moDocument;
    std::string msDirectory;
    std::unique_ptr<zqbchwcx::reference::Journal> moJournal;
    QTimer* moTimer;
    bool mbFailed = false;
};

} // namespace quillon_ed
