#include "zqbchwcx/reference/diag/RecordedSource.h"

#include <utility>

namespace zqbchwcx::reference {

RecordedSource::RecordedSource(Recording recording, PlantPtr oPlant, std::shared_ptr<RecordedTime> oTime)
    : moRecording(std::move(recording)), moPlant(std::move(oPlant)), moTime(std::move(oTime))
{
    if (!moRecording.changes.empty()) moTime->Now(moRecording.changes.front().at);
    mlNext = moRecording.changes.size();
}

void RecordedSource::Open()
{
    if (mbOpen) return;
    if (moRecording.head.fingerprint != moPlant->Map().Fingerprint() ||
        moRecording.head.registerCount != moPlant->Map().RegisterCount()) {
        moPlant->Lose(ConnectionKind::OtherStation, {"it was recorded at \"" + moRecording.head.station + "\"",
                                                     "aufgezeichnet an \"" + moRecording.head.station + "\""});
        return;
    }
    mbOpen = true;
    mlNext = 0;
    Step();
}

void RecordedSource::Close()
{
    mbOpen = false;
    mlNext = moRecording.changes.size();
    moPlant->Lose(ConnectionKind::Closed);
}

void RecordedSource::Advance(std::chrono::milliseconds time)
{
    if (!mbOpen) return;
    const Time end = Now() + time;
    PlayUntil(end);
    moTime->Now(end);
}

void RecordedSource::Step()
{
    if (!IsAtEnd()) PlayUntil(moRecording.changes[mlNext].at);
}

void RecordedSource::PlayUntil(Time end)
{
    while (!IsAtEnd() && moRecording.changes[mlNext].at <= end) {
        const RecordedChange& change = moRecording.changes[mlNext++];
        moTime->Now(change.at);
        if (change.connection == ConnectionKind::Connected) moPlant->Take(change.first, change.values);
        else moPlant->Lose(change.connection, change.reason);
    }
}

} // namespace zqbchwcx::reference
