#include "app/plant/SimulatedSource.h"

#include <chrono>
#include <utility>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

constexpr std::chrono::milliseconds Beat{100};

} // namespace

SimulatedSource::SimulatedSource(Simulation simulation, PlantPtr oPlant)
    : moSimulation(std::move(simulation)), moPlant(std::move(oPlant))
{
    moTimer.setInterval(Beat);
    QObject::connect(&moTimer, &QTimer::timeout, &moTimer, [this] { GoOn(); });
}

void SimulatedSource::Open()
{
    moTime.start();
    moTimer.start();
    moPlant->Take(0, moSimulation.Registers());
}

void SimulatedSource::Close()
{
    moTimer.stop();
    moPlant->Lose(ConnectionKind::Closed);
}

void SimulatedSource::PollNow()
{
    if (moTimer.isActive()) GoOn();
}

void SimulatedSource::GoOn()
{
    const std::chrono::milliseconds passed{moTime.restart()};
    if (!moSimulation.Advance(passed).empty()) moPlant->Take(0, moSimulation.Registers());
}

} // namespace quillon_ed
