#include "app/document/AutoSave.h"

#include "app/document/Document.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QTimer>

namespace quillon_ed {

using namespace zqbchwcx::reference;

AutoSave::AutoSave(Document& document, std::string journalDirectory, QObject* parent)
    : QObject(parent), moDocument(document), msDirectory(std::move(journalDirectory)), moTimer(new QTimer(this))
{
    moTimer->setSingleShot(true);
    moTimer->setInterval(DelayMilliseconds);
    connect(moTimer, &QTimer::timeout, this, &AutoSave::Flush);
    connect(&document, &Document::changed, this, &AutoSave::OnChanged);
    OnChanged();
}

void AutoSave::OnChanged()
{
    // The timer is not started anew by further changes: one who never pauses is saved all the same.
    if (moDocument.IsModified()) {
        if (!moTimer->isActive()) moTimer->start();
    } else {
        Discard();
    }
}

template <class Step>
void AutoSave::Try(Step step)
{
    try {
        step();
        mbFailed = false;
    } catch (const FileError& error) {
        if (!mbFailed) emit failed(error);
        mbFailed = true;
    }
}

bool AutoSave::Flush()
{
    moTimer->stop();
    if (!moDocument.IsModified()) return true;
    Try([this] {
        if (!moJournal) moJournal = std::make_unique<Journal>(msDirectory);
        moJournal->Write(moDocument.Station()->Data(), moDocument.Origin());
    });
    return !mbFailed;
}

void AutoSave::Discard()
{
    moTimer->stop();
    if (!moJournal) return;
    Try([this] { moJournal->Discard(); });
}

} // namespace quillon_ed
