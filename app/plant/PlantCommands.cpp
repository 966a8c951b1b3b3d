#include "app/plant/PlantCommands.h"

#include "app/document/Document.h"
#include "app/document/LastFolder.h"
#include "app/document/ProposedName.h"
#include "app/host/AppServices.h"
#include "app/host/PlainText.h"
#include "app/host/Strings.h"
#include "app/plant/ConnectDialog.h"
#include "app/plant/DetailsWindow.h"
#include "app/plant/LocalTime.h"
#include "app/plant/SourceName.h"
#include "zqbchwcx/reference/diag/RecordedSource.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSettings>

#include <chrono>
#include <cmath>
#include <utility>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

const QString SourcesKey = QStringLiteral("PlantSources");
constexpr int MostSources = 8;
constexpr std::chrono::milliseconds Beat{100};

class KnownController : public ControllerInfo {
public:
    explicit KnownController(std::vector<ControllerComponent> components) : mcolComponents(std::move(components)) {}

    std::vector<ControllerComponent> Components() const override { return mcolComponents; }

private:
    std::vector<ControllerComponent> mcolComponents;
};

} // namespace

PlantCommands::PlantCommands(AppServices& services, QWidget& window)
    : moServices(services), moWindow(window), moLog(nullptr)
{
    moServices.ControllerInfoFrom([this] { return ControllerVersions(); });
    moPlaying.setInterval(Beat);
    connect(&moPlaying, &QTimer::timeout, this, &PlantCommands::Advance);
}

PlantCommands::~PlantCommands()
{
    moServices.ControllerInfoFrom({});
}

ControllerInfoPtr PlantCommands::ControllerVersions() const
{
    if (!moSession || !moSession->Plant()) return nullptr;
    std::vector<ControllerComponent> components;
    for (const reference::ComponentVersion& version : moSession->Plant()->ComponentVersions())
        components.push_back({version.component.In(moServices.CurrentLanguage()), version.version});
    return std::make_shared<KnownController>(std::move(components));
}

void PlantCommands::Use(Document* document)
{
    for (auto* details : moWindow.findChildren<DetailsWindow*>()) delete details;
    moPlaying.stop();
    moRecorder.reset();
    moChanged = {};
    moLogged = {};
    moSession.reset();
    moDocument = document;
    moLog.Clear();
}

bool PlantCommands::Begin()
{
    if (!moSession) {
        moSession = std::make_unique<PlantSession>(moServices.Context()->catalogue);
        connect(moSession.get(), &PlantSession::sourceChanged, this, &PlantCommands::changed);
        moLogged = moSession->Logged.Connect(
            [this](const std::vector<reference::PlantLogEntry>& entries) { moLog.Add(entries); });
        moChanged = moSession->Changed.Connect([this](const reference::PlantChange& change) { TakeChange(change); });
    }
    try {
        const bool hadPlant = moSession->Plant() != nullptr;
        const auto former = moSession->Plant();
        moSession->Fit(moDocument->Station()->Data());
        // What was recorded, or is shown, belongs to another arrangement of modules.
        if (hadPlant && former != moSession->Plant()) {
            moRecorder.reset();
            for (auto* details : moWindow.findChildren<DetailsWindow*>()) delete details;
        }
    } catch (const reference::FileError& error) {
        TellFailure(tr("There is no diagnostics for this station."), error);
    }
    emit changed();
    return moSession->Plant() != nullptr;
}

void PlantCommands::TellFailure(const QString& what, const reference::FileError& error)
{
    QMessageBox box(QMessageBox::Critical, tr("Quillon Ed"), what, QMessageBox::Close, &moWindow);
    box.setInformativeText(BreakableText(ToQString(error.Message(moServices.CurrentLanguage()))));
    box.exec();
}

void PlantCommands::AskForSource()
{
    ConnectDialog dialog(LastSources(), LastFolder(moServices.Settings()), moServices.CurrentLanguage(), &moWindow);
    if (dialog.exec() == QDialog::Accepted) Connect(dialog.Source());
}

void PlantCommands::Connect(const QString& sourceName)
{
    const auto name = ParseSourceName(sourceName);
    const auto* choice = std::get_if<SourceChoice>(&name);
    if (!choice) {
        emit warned(
            PlainText(std::get<reference::LocalizedText>(name), moServices.CurrentLanguage(), LongestDescription));
        return;
    }
    moPlaying.stop();
    try {
        moSession->Connect(sourceName, SourceMaker(*choice));
        Remember(sourceName);
        Play(IsPlayed());
        if (const auto* played = dynamic_cast<reference::RecordedSource*>(moSession->Source()))
            for (const reference::FileError& damage : played->Damages())
                emit warned(PlainText(ToQString(damage.Message(moServices.CurrentLanguage())), LongestDescription));
    } catch (const reference::FileError& error) {
        TellFailure(tr("“%1” cannot be used.").arg(PlainText(sourceName)), error);
    }
    emit changed();
}

void PlantCommands::Disconnect()
{
    moPlaying.stop();
    moSession->Disconnect();
}

void PlantCommands::Poll()
{
    if (moSession) moSession->Poll();
}

void PlantCommands::Record(bool bOn)
{
    if (!bOn && moRecorder) {
        moRecorder.reset();
        emit told(tr("“%1” was written.").arg(QDir::toNativeSeparators(msRecording)));
    }
    if (bOn && !moRecorder) {
        const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
        const QString proposed =
            QStringLiteral("%1-%2.jsonl").arg(ProposedName(*moDocument, LastFolder(moServices.Settings())), now);
        // Recordings are not replaced; that there is one is told when it is tried.
        const QString file =
            QFileDialog::getSaveFileName(&moWindow, tr("Record the plant"), proposed, tr("Recordings (*.jsonl)"),
                                         nullptr, QFileDialog::DontConfirmOverwrite);
        if (!file.isEmpty()) BeginRecording(file);
    }
    emit changed();
}

void PlantCommands::BeginRecording(const QString& fileName)
{
    try {
        moRecorder = std::make_unique<reference::RecordingFile>(fileName.toStdString(), *moSession->Plant(),
                                                                moDocument->Station()->Data().name, SystemTime());
        msRecording = fileName;
        RememberFolderOf(fileName, moServices.Settings());
    } catch (const reference::FileError& error) {
        TellFailure(tr("“%1” cannot be written.").arg(QDir::toNativeSeparators(fileName)), error);
    }
}

void PlantCommands::TakeChange(const reference::PlantChange& change)
{
    if (moRecorder) {
        try {
            moRecorder->Write(*moSession->Plant(), change);
        } catch (const reference::FileError& error) {
            moRecorder.reset();
            emit warned(PlainText(ToQString(error.Message(moServices.CurrentLanguage())), LongestDescription));
            emit changed();
        }
    }
    if (change.connection) emit changed();
}

bool PlantCommands::IsPlayed() const
{
    return moSession && dynamic_cast<reference::RecordedSource*>(moSession->Source()) != nullptr;
}

void PlantCommands::Play(bool bOn)
{
    if (bOn && IsPlayed()) moPlaying.start();
    else moPlaying.stop();
    emit changed();
}

void PlantCommands::Advance()
{
    auto* played = dynamic_cast<reference::RecordedSource*>(moSession->Source());
    if (!played) return Play(false);
    played->Advance(std::chrono::milliseconds(std::lround(static_cast<double>(Beat.count()) * mSpeed)));
    if (played->IsAtEnd()) Play(false);
}

void PlantCommands::Step()
{
    if (auto* played = dynamic_cast<reference::RecordedSource*>(moSession->Source())) {
        Play(false);
        played->Step();
    }
}

void PlantCommands::ShowDetails(reference::PlantItem item)
{
    for (auto* open : moWindow.findChildren<DetailsWindow*>()) {
        if (open->Item() != item) continue;
        open->raise();
        open->activateWindow();
        return;
    }
    (new DetailsWindow(moDocument->Station(), *moSession, item, &moWindow))->show();
}

QString PlantCommands::ConnectionState() const
{
    if (!moSession || !moSession->Plant()) return {};
    const QString state =
        ToQString(reference::ConnectionText(moSession->Plant()->State().connection), moServices.CurrentLanguage());
    return moSession->HasSource()
               ? QStringLiteral("%1 – %2").arg(PlainText(moSession->SourceName()), WithLocalTime(PlainText(state)))
               : WithLocalTime(PlainText(state));
}

QStringList PlantCommands::LastSources() const
{
    return moServices.Settings().value(SourcesKey).toStringList().mid(0, MostSources);
}

void PlantCommands::Remember(const QString& sourceName)
{
    QStringList sources = LastSources();
    sources.removeAll(sourceName);
    sources.prepend(sourceName);
    moServices.Settings().setValue(SourcesKey, sources.mid(0, MostSources));
}

} // namespace quillon_ed
