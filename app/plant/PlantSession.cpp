#include "app/plant/PlantSession.h"

#include "app/plant/LocalTime.h"

#include <utility>

namespace quillon_ed {

using namespace zqbchwcx::reference;

PlantSession::PlantSession(std::shared_ptr<const Catalogue> oCatalogue) : moCatalogue(std::move(oCatalogue)) {}

PlantSession::~PlantSession() = default;

void PlantSession::Fit(const StationData& station)
{
    if (moPlant && moPlant->Map().Fingerprint() == RegisterMap(station).Fingerprint()) return;
    moStation = station;
    const bool hadSource = HasSource();
    moSource.reset();
    MakePlant();
    if (hadSource) OpenSource();
}

void PlantSession::MakePlant()
{
    moPlant = std::make_shared<zqbchwcx::reference::Plant>(RegisterMap(moStation),
                                                           [this] { return moClock ? moClock() : SystemTime(); });
    moService = std::make_shared<DiagService>(moPlant, moCatalogue);
    moFaults = std::make_unique<PlantLog>(moStation, *moCatalogue);
    moChanged = moPlant->Changed.Connect([this](const PlantChange& change) {
        const auto entries = moFaults->Read(*moPlant, change);
        Changed.Raise(change);
        if (!entries.empty()) Logged.Raise(entries);
    });
}

void PlantSession::Connect(const QString& name, MakeSource makeSource)
{
    DropSource();
    msSourceName = name;
    mMakeSource = std::move(makeSource);
    OpenSource();
    emit sourceChanged();
}

void PlantSession::OpenSource()
{
    try {
        OpenedSource opened = mMakeSource(moStation, moPlant);
        moClock = std::move(opened.clock);
        moSource = std::move(opened.source);
        moSource->Open();
    } catch (...) {
        DropSource();
        emit sourceChanged();
        throw;
    }
}

void PlantSession::Disconnect()
{
    DropSource();
    emit sourceChanged();
}

void PlantSession::DropSource()
{
    if (moSource) moSource->Close();
    moSource.reset();
    moClock = nullptr;
    mMakeSource = nullptr;
    msSourceName.clear();
}

void PlantSession::Poll()
{
    if (moSource) moSource->PollNow();
}

} // namespace quillon_ed
