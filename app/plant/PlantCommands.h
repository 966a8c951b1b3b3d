#pragma once

#include "app/plant/FaultLogModel.h"
#include "app/plant/PlantSession.h"
#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/diag/RecordingFile.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QAction>
#include <QObject>
#include <QTimer>

#include <memory>

namespace quillon_ed {

class AppServices;
class Document;

/// What a user does with the plant of the open station: connect, record, play a recording, look at details. Holds the
/// session, and the log, which outlives it.
class PlantCommands : public QObject {
    Q_OBJECT

public:
    /// Both outlive the commands. The window is the parent of the dialogs.
    PlantCommands(AppServices& services, QWidget& window);
    ~PlantCommands() override;

    /// Goes on with another document, or none. Its plant is made when diagnostics begins.
    void Use(Document* document);
    /// Makes the plant fit the document's station. False, after telling why, when there is none for it.
    bool Begin();
    /// Only after `Begin`.
    PlantSession& Session() { return *moSession; }
    FaultLogModel& Log() { return moLog; }

    void AskForSource();
    void Connect(const QString& sourceName);
    void Disconnect();
    void Poll();
    /// Asks for the file, or ends the recording.
    void Record(bool bOn);
    bool IsRecording() const { return moRecorder != nullptr; }
    /// Of a recording that is played.
    bool IsPlayed() const;
    bool IsPlaying() const { return moPlaying.isActive(); }
    void Play(bool bOn);
    void Step();
    void Speed(double speed) { mSpeed = speed; }
    void ShowDetails(zqbchwcx::reference::PlantItem item);
    /// Of the connection; empty before there is a plant.
    QString ConnectionState() const;

signals:
    /// Connection, source, recording or playing.
    void changed();
    void told(const QString& text);
    void warned(const QString& text);

private:
    void TellFailure(const QString& what, const zqbchwcx::reference::FileError& error);
    void BeginRecording(const QString& fileName);
    void TakeChange(const zqbchwcx::reference::PlantChange& change);
    zqbchwcx::ControllerInfoPtr ControllerVersions() const;
    void Advance();
    QStringList LastSources() const;
    void Remember(const QString& sourceName);

    AppServices& moServices;
    QWidget& moWindow;
    Document* moDocument = nullptr;
    FaultLogModel moLog;
    std::unique_ptr<PlantSession> moSession;
    QString msRecording;
    std::unique_ptr<zqbchwcx::reference::RecordingFile> moRecorder;
    QTimer moPlaying;
    double mSpeed = 1;
    zqbchwcx::EventConnection moChanged;
    zqbchwcx::EventConnection moLogged;
};

} // namespace quillon_ed
