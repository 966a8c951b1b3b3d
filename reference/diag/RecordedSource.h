#pragma once

#include "zqbchwcx/reference/diag/DiagSource.h"
#include "zqbchwcx/reference/diag/Recording.h"

#include <chrono>
#include <cstddef>

namespace zqbchwcx::reference {

/// The clock of a recording that is played: it stands, and goes on with what is played.
class RecordedTime {
public:
    Time Now() const { return moNow; }
    void Now(Time now) { moNow = now; }

private:
    Time moNow;
};

/// Plays a recording. The host lets time pass, at any speed; the plant's clock should be the recording's, so that it
/// tells when things were, not when they are played.
class RecordedSource : public DiagSource {
public:
    RecordedSource(Recording recording, PlantPtr oPlant, std::shared_ptr<RecordedTime> oTime);

    /// Begins anew. A recording of another station loses the plant for that reason.
    void Open() override;
    void Close() override;
    /// A recording has nothing newer to tell.
    void PollNow() override {}

    /// Lets that much of the recording's time pass.
    void Advance(std::chrono::milliseconds time);
    /// Goes on to the next moment at which something changed, and plays all of it.
    void Step();
    bool IsAtEnd() const { return mlNext == moRecording.changes.size(); }
    Time Now() const { return moTime->Now(); }
    /// Lines of the recording that were left out.
    const std::vector<FileError>& Damages() const { return moRecording.damages; }

private:
    void PlayUntil(Time end);

    Recording moRecording;
    PlantPtr moPlant;
    std::shared_ptr<RecordedTime> moTime;
    std::size_t mlNext = 0;
    bool mbOpen = false;
};

} // namespace zqbchwcx::reference
