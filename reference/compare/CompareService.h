#pragma once

#include "zqbchwcx/foundation/model/VxHWCompareService.h"
#include "zqbchwcx/reference/compare/CompareStations.h"
#include "zqbchwcx/reference/compare/DifferenceText.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zqbchwcx::reference {

/// Which two stations are compared.
enum class ComparePair : std::int32_t { ProjectAndPlant = 0, ProjectAndComparison = 1, PlantAndComparison = 2 };

/// Compares two stations of the reference model. What it answers is the state of the last `Compare`, however the
/// stations have changed since; places are known by their numbers, so either station's may be asked about.
class CompareService : public VxHWCompareService {
public:
    /// Lets the user see a place of both stations; null for the place as a whole. An empty function shows nothing.
    using ShowDifferences = std::function<void(PlaceRef place, const ParameterDifferencePtr& difference)>;

    /// Neither station is null. Compares at once.
    CompareService(StationPtr oFirst, StationPtr oSecond, ComparePair ePair, ShowDifferences show = {});

    std::int32_t CompareType() const override { return static_cast<std::int32_t>(mePair); }
    void Compare() override;
    std::int32_t PlaceResult(const VxHWRackPlacePtr& oPlace) const override;
    /// In the language of the moment; null unless the modules are of one type and differ.
    ParameterDifferencesPtr ParameterDifferencesOf(const VxHWRackPlacePtr& oPlace) const override;
    void ShowParameterDifferences(const VxHWRackPlacePtr& oPlace, const ParameterDifferencePtr& oDifference) override;
    /// What is there, and the first differences, a line each that ends in a carriage return and a line feed, the last
    /// one without.
    std::string PlaceText(const VxHWRackPlacePtr& oPlace) const override;

    /// What is left out from the next `Compare` on.
    void Ignore(const CompareOptions& options) { mOptions = options; }
    const StationComparison& Comparison() const { return mComparison; }

private:
    std::vector<DifferenceText> TextsOf(const PlaceDifference& difference) const;

    StationPtr moFirst;
    StationPtr moSecond;
    ComparePair mePair;
    ShowDifferences mShow;
    CompareOptions mOptions;
    CompareOptions mComparedOptions; ///< of the last `Compare`
    StationComparison mComparison;
};

} // namespace zqbchwcx::reference
