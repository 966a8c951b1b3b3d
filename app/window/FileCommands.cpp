#include "app/window/FileCommands.h"

#include "app/dialogs/NewStationDialog.h"
#include "app/dialogs/RecoveryDialog.h"
#include "app/document/JournalDirectory.h"
#include "app/document/LastFolder.h"
#include "app/document/ProposedName.h"
#include "app/host/ShippedData.h"
#include "app/host/Strings.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

const QString StationSuffix = QStringLiteral("station.json");

/// Under the text that names the file: where in it and why, or why as a sentence of its own.
QString ReasonOf(const FileError& error, Language language)
{
    const QString reason = ToQString(error.Reason(language));
    if (!error.pointer.empty()) return QStringLiteral("%1: %2").arg(ToQString(error.pointer), reason);
    return reason.left(1).toUpper() + reason.mid(1) + QStringLiteral(".");
}

} // namespace

FileCommands::FileCommands(AppServices& services, RecentFiles& recentFiles, StationServices asked, QWidget& window)
    : moServices(services), moRecentFiles(recentFiles), moAsked(std::move(asked)), moWindow(window)
{
    moAsked.clipboard = services.Clipboard();
}

FileCommands::~FileCommands() = default;

std::unique_ptr<Document> FileCommands::MakeDocument(StationData data, JournalOrigin origin) const
{
    return std::make_unique<Document>(moServices.Context(), std::move(data), std::move(origin), moAsked);
}

void FileCommands::Adopt(std::unique_ptr<Document> document)
{
    if (moDocument) emit aboutToClose();
    if (moAutoSave) moAutoSave->Discard();
    moAutoSave.reset();
    moServices.Errors().Actions({});
    moDocument = std::move(document);
    if (moDocument) {
        moServices.Errors().Actions(moDocument->Actions());
        connect(moDocument.get(), &Document::changed, this, &FileCommands::changed);
        moAutoSave = std::make_unique<AutoSave>(*moDocument, JournalDirectory(), nullptr);
        connect(moAutoSave.get(), &AutoSave::failed, this, [this](const FileError& error) {
            emit warned(tr("Unsaved changes cannot be kept for a recovery: %1")
                            .arg(ToQString(error.Message(moServices.CurrentLanguage()))));
        });
    }
    emit opened();
}

void FileCommands::Tell(const QString& what, const QString& reason)
{
    QMessageBox box(QMessageBox::Critical, tr("Quillon Ed"), what, QMessageBox::Close, &moWindow);
    box.setInformativeText(reason);
    box.exec();
}

void FileCommands::New()
{
    if (!MayLeave()) return;
    NewStationDialog dialog(&moWindow);
    if (dialog.exec() == QDialog::Accepted) Adopt(MakeDocument(dialog.Station(), {}));
}

void FileCommands::Open()
{
    const QString fileName =
        QFileDialog::getOpenFileName(&moWindow, tr("Open station"), LastFolder(moServices.Settings()),
                                     tr("Stations (*.station.json *.json);;All files (*)"));
    if (!fileName.isEmpty()) OpenFile(fileName);
}

bool FileCommands::OpenFile(const QString& fileName)
{
    if (!MayLeave()) return false;
    const QString path = QFileInfo(fileName).absoluteFilePath();
    try {
        LoadedStation loaded = LoadStation(path.toStdString(), moServices.Catalogue());
        Adopt(MakeDocument(std::move(loaded.data), {path.toStdString(), loaded.stamp}));
        Remember(path);
        return true;
    } catch (const FileError& error) {
        if (!QFileInfo::exists(path)) moRecentFiles.Remove(path);
        Tell(tr("“%1” cannot be opened.").arg(QDir::toNativeSeparators(path)),
             ReasonOf(error, moServices.CurrentLanguage()));
        return false;
    }
}

void FileCommands::OpenExample(const QString& resource)
{
    if (!MayLeave()) return;
    try {
        const QByteArray text = ReadWhole(resource);
        Adopt(MakeDocument(ParseStation({text.data(), static_cast<std::size_t>(text.size())}, resource.toStdString(),
                                        moServices.Catalogue()),
                           {}));
    } catch (const FileError& error) {
        Tell(tr("“%1” cannot be opened.").arg(resource), ReasonOf(error, moServices.CurrentLanguage()));
    }
}

void FileCommands::Remember(const QString& fileName)
{
    moRecentFiles.Add(fileName);
    RememberFolderOf(fileName, moServices.Settings());
}

bool FileCommands::Save()
{
    if (!moDocument) return false;
    if (moDocument->FileName().isEmpty()) return SaveAs();
    switch (AnswerBeforeOverwriting()) {
    case Overwriting::Allowed:
        return SaveTo(moDocument->FileName());
    case Overwriting::Elsewhere:
        return SaveAs();
    case Overwriting::Refused:
        break;
    }
    return false;
}

bool FileCommands::SaveAs()
{
    if (!moDocument) return false;
    const QFileInfo proposed(ProposedName(*moDocument, LastFolder(moServices.Settings())) + u'.' + StationSuffix);
    QFileDialog dialog(&moWindow, tr("Save station"), proposed.absolutePath(), tr("Stations (*.station.json)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(StationSuffix);
    const QString& file = moDocument->FileName();
    dialog.selectFile(file.isEmpty() ? proposed.fileName() : QFileInfo(file).fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
    return SaveTo(dialog.selectedFiles().front());
}

bool FileCommands::SaveTo(const QString& fileName)
{
    try {
        moDocument->Save(fileName);
        Remember(fileName);
        return true;
    } catch (const FileError& error) {
        QMessageBox box(QMessageBox::Critical, tr("Quillon Ed"),
                        tr("“%1” cannot be saved.").arg(QDir::toNativeSeparators(fileName)), QMessageBox::Close,
                        &moWindow);
        box.setInformativeText(ReasonOf(error, moServices.CurrentLanguage()));
        const QPushButton* elsewhere = box.addButton(tr("Save as…"), QMessageBox::AcceptRole);
        box.exec();
        return box.clickedButton() == elsewhere && SaveAs();
    }
}

FileCommands::Overwriting FileCommands::AnswerBeforeOverwriting()
{
    try {
        if (moDocument->FileChange() != FileChange::Changed) return Overwriting::Allowed;
    } catch (const FileError&) {
        return Overwriting::Allowed; // what is wrong with the file is told by the saving
    }
    QMessageBox box(QMessageBox::Warning, tr("Quillon Ed"),
                    tr("“%1” was changed by another program.").arg(moDocument->Title()), QMessageBox::Cancel,
                    &moWindow);
    box.setInformativeText(tr("Saving replaces that program's changes by yours."));
    const QPushButton* overwrite = box.addButton(tr("Overwrite"), QMessageBox::DestructiveRole);
    const QPushButton* elsewhere = box.addButton(tr("Save as…"), QMessageBox::AcceptRole);
    box.exec();
    if (box.clickedButton() == elsewhere) return Overwriting::Elsewhere;
    return box.clickedButton() == overwrite ? Overwriting::Allowed : Overwriting::Refused;
}

bool FileCommands::Close()
{
    if (!MayLeave()) return false;
    if (moDocument) Adopt(nullptr);
    return true;
}

bool FileCommands::MayLeave()
{
    if (!moDocument || !moDocument->IsModified()) return true;
    const QScopedValueRollback<bool> guard(mbAsking, true);
    QMessageBox box(QMessageBox::Question, tr("Quillon Ed"), tr("Save the changes to “%1”?").arg(moDocument->Title()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &moWindow);
    box.setInformativeText(tr("They are lost otherwise."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void FileCommands::CheckFile()
{
    // Another dialog or an open menu may be about the very station that the answer would replace.
    if (!moDocument || mbAsking || QApplication::activeModalWidget() || QApplication::activePopupWidget()) return;
    const QScopedValueRollback<bool> guard(mbAsking, true);
    try {
        const FileChange change = moDocument->FileChange();
        if (change != FileChange::Unchanged) AnswerForeignChange(change);
    } catch (const FileError& error) {
        emit warned(ToQString(error.Message(moServices.CurrentLanguage())));
    }
}

void FileCommands::AnswerForeignChange(FileChange change)
{
    const bool missing = change == FileChange::Missing;
    const QString title = moDocument->Title();
    QMessageBox box(QMessageBox::Warning, tr("Quillon Ed"),
                    missing ? tr("“%1” was removed or renamed by another program.").arg(title)
                            : tr("“%1” was changed by another program.").arg(title),
                    QMessageBox::NoButton, &moWindow);
    if (!missing && moDocument->IsModified()) box.setInformativeText(tr("Reloading drops your unsaved changes."));
    QPushButton* reload = missing ? nullptr : box.addButton(tr("Reload"), QMessageBox::DestructiveRole);
    QPushButton* keep = box.addButton(tr("Keep mine"), QMessageBox::RejectRole);
    const QPushButton* elsewhere = box.addButton(tr("Save as…"), QMessageBox::AcceptRole);
    box.setEscapeButton(keep);
    box.setDefaultButton(reload && !moDocument->IsModified() ? reload : keep);
    box.exec();
    if (reload && box.clickedButton() == reload) {
        try {
            Reload();
            return;
        } catch (const FileError& error) {
            Tell(tr("“%1” cannot be opened.").arg(title), ReasonOf(error, moServices.CurrentLanguage()));
        }
    }
    // Whatever comes next, the same change is not asked about twice.
    moDocument->KeepOwnContent();
    if (box.clickedButton() == elsewhere) SaveAs();
}

void FileCommands::Reload()
{
    LoadedStation loaded = LoadStation(moDocument->FileName().toStdString(), moServices.Catalogue());
    const ViewState view = moDocument->CaptureView();
    emit aboutToClose();
    moDocument->TakeOver(std::move(loaded));
    emit opened();
    moDocument->RestoreView(view);
}

void FileCommands::OfferRecovery(bool telling)
{
    try {
        std::vector<RecoverableJournal> journals = FindRecoverable(JournalDirectory());
        if (journals.empty()) {
            if (telling) emit warned(tr("There is nothing to recover."));
            return;
        }
        RecoveryDialog dialog(std::move(journals), &moWindow);
        connect(&dialog, &RecoveryDialog::recoverRequested, this, [&](const RecoverableJournal& journal) {
            dialog.accept();
            Recover(journal);
        });
        connect(&dialog, &RecoveryDialog::discardRequested, this, [this](const RecoverableJournal& journal) {
            try {
                DropJournal(journal.journalFile);
            } catch (const FileError& error) {
                emit warned(ToQString(error.Message(moServices.CurrentLanguage())));
            }
        });
        const QScopedValueRollback<bool> guard(mbAsking, true);
        dialog.exec();
    } catch (const FileError& error) {
        emit warned(ToQString(error.Message(moServices.CurrentLanguage())));
    }
}

void FileCommands::Recover(const RecoverableJournal& journal)
{
    if (!MayLeave()) return;
    try {
        RecoveredStation recovered = zqbchwcx::reference::Recover(journal.journalFile, moServices.Catalogue());
        Adopt(MakeDocument(std::move(recovered.data), recovered.origin));
        moDocument->MarkModified();
        // The old journal goes only when the new one holds the station.
        if (moAutoSave->Flush()) DropJournal(journal.journalFile);
    } catch (const FileError& error) {
        Tell(tr("The station cannot be recovered."), ReasonOf(error, moServices.CurrentLanguage()));
    }
}

} // namespace quillon_ed
