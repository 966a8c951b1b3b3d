#pragma once

#include "zqbchwcx/reference/diag/DiagSource.h"
#include "zqbchwcx/reference/diag/Plant.h"
#include "zqbchwcx/reference/diag/Simulation.h"

#include <QElapsedTimer>
#include <QTimer>

namespace quillon_ed {

/// A plant that is not there, in this program: the simulation of the station, in which time goes by.
class SimulatedSource : public zqbchwcx::reference::DiagSource {
public:
    SimulatedSource(zqbchwcx::reference::Simulation simulation, zqbchwcx::reference::PlantPtr oPlant);

    void Open() override;
    void Close() override;
    void PollNow() override;

private:
    void GoOn();

    zqbchwcx::reference::Simulation moSimulation;
    zqbchwcx::reference::PlantPtr moPlant;
    QTimer moTimer;
    QElapsedTimer moTime;
};

} // namespace quillon_ed
