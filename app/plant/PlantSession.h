#pragma once

#include "zqbchwcx/reference/diag/DiagService.h"
#include "zqbchwcx/reference/diag/DiagSource.h"
#include "zqbchwcx/reference/diag/PlantLog.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quillon_ed {

/// A source, with the clock that it goes by; without one it tells the present.
struct OpenedSource {
    std::unique_ptr<zqbchwcx::reference::DiagSource> source;
    zqbchwcx::reference::Clock clock;
};

/// The plant of an open station: its source, if there is one, what is known of it, and what it serves to the views.
/// The source stays when the mode changes, and begins anew when the station's modules have become other ones.
class PlantSession : public QObject {
    Q_OBJECT

public:
    /// Makes a source that tells the plant of the station. Throws FileError.
    using MakeSource = std::function<OpenedSource(const zqbchwcx::reference::StationData& station,
                                                  zqbchwcx::reference::PlantPtr oPlant)>;

    explicit PlantSession(std::shared_ptr<const zqbchwcx::reference::Catalogue> oCatalogue);
    ~PlantSession() override;

    /// Makes the plant fit the station, unless it does. Throws FileError when the station is too large for a plant, or
    /// when its source cannot be made again; the plant then has no source.
    void Fit(const zqbchwcx::reference::StationData& station);
    /// The plant of a station. Only after `Fit`.
    const zqbchwcx::reference::PlantPtr& Plant() const { return moPlant; }
    const std::shared_ptr<zqbchwcx::reference::DiagService>& Service() const { return moService; }
    const zqbchwcx::reference::PlantLog& Faults() const { return *moFaults; }

    /// Ends the present source and opens another one. Throws FileError; there is then none.
    void Connect(const QString& name, MakeSource makeSource);
    void Disconnect();
    /// Reads the state anew and at once.
    void Poll();
    bool HasSource() const { return moSource != nullptr; }
    /// As the user gave it; empty without a source.
    const QString& SourceName() const { return msSourceName; }
    zqbchwcx::reference::DiagSource* Source() const { return moSource.get(); }

    /// The plant has changed, the service and the log know it.
    zqbchwcx::Event<const zqbchwcx::reference::PlantChange&> Changed;
    zqbchwcx::Event<const std::vector<zqbchwcx::reference::PlantLogEntry>&> Logged;

signals:
    /// Another source, or none.
    void sourceChanged();

private:
    void MakePlant();
    void OpenSource();
    void DropSource();

    std::shared_ptr<const zqbchwcx::reference::Catalogue> moCatalogue;
    zqbchwcx::reference::StationData moStation;
    zqbchwcx::reference::Clock moClock; ///< of the source; none: the present
    zqbchwcx::reference::PlantPtr moPlant;
    std::shared_ptr<zqbchwcx::reference::DiagService> moService;
    std::unique_ptr<zqbchwcx::reference::PlantLog> moFaults;
    QString msSourceName;
    MakeSource mMakeSource;
    std::unique_ptr<zqbchwcx::reference::DiagSource> moSource;
    zqbchwcx::EventConnection moChanged;
};

} // namespace quillon_ed
