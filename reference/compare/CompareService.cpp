#include "zqbchwcx/reference/compare/CompareService.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/reference/model/contract/RackPlace.h"
#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx::reference {
namespace {

/// A path has its bars between its levels only; behind the second one, they belong to the name.
std::string Level(std::string text)
{
    std::replace(text.begin(), text.end(), '|', '/');
    return text;
}

class Difference : public ParameterDifference {
public:
    explicit Difference(DifferenceText text) : mText(std::move(text)) {}

    std::string Path() const override { return Level(mText.group) + "|" + Level(mText.channel) + "|" + mText.name; }
    std::string Value1() const override { return mText.value1; }
    std::string Value2() const override { return mText.value2; }
    std::int32_t Kind() const override { return static_cast<std::int32_t>(mText.kind); }

private:
    DifferenceText mText;
};

class Differences : public ParameterDifferences {
public:
    explicit Differences(std::vector<DifferenceText> texts)
    {
        for (DifferenceText& text : texts) mcolDifferences.push_back(std::make_shared<Difference>(std::move(text)));
    }

    ParameterDifferencePtr Item(std::int32_t lIndex) const override
    {
        if (lIndex < 1 || lIndex > Count())
            throw VxError(vxErrorNothing, "There is no parameter difference " + std::to_string(lIndex));
        return mcolDifferences[static_cast<std::size_t>(lIndex - 1)];
    }
    std::int32_t Count() const override { return static_cast<std::int32_t>(mcolDifferences.size()); }

private:
    std::vector<ParameterDifferencePtr> mcolDifferences;
};

constexpr std::size_t MostLines = 5;

} // namespace

CompareService::CompareService(StationPtr oFirst, StationPtr oSecond, ComparePair ePair, ShowDifferences show)
    : moFirst(std::move(oFirst)), moSecond(std::move(oSecond)), mePair(ePair), mShow(std::move(show))
{
    CompareService::Compare();
}

void CompareService::Compare()
{
    mComparison = CompareStations(moFirst->Data(), moSecond->Data(), moFirst->ModuleTypes(), mOptions);
    mComparedOptions = mOptions;
}

std::int32_t CompareService::PlaceResult(const VxHWRackPlacePtr& oPlace) const
{
    return static_cast<std::int32_t>(mComparison.ResultAt(RefOf(oPlace)));
}

ParameterDifferencesPtr CompareService::ParameterDifferencesOf(const VxHWRackPlacePtr& oPlace) const
{
    const PlaceDifference* difference = mComparison.DifferenceAt(RefOf(oPlace));
    if (!difference || difference->result < CompareResult::OtherParameters) return {};
    return std::make_shared<Differences>(TextsOf(*difference));
}

void CompareService::ShowParameterDifferences(const VxHWRackPlacePtr& oPlace, const ParameterDifferencePtr& oDifference)
{
    if (mShow) mShow(RefOf(oPlace), oDifference);
}

std::string CompareService::PlaceText(const VxHWRackPlacePtr& oPlace) const
{
    const PlaceDifference* difference = mComparison.DifferenceAt(RefOf(oPlace));
    if (!difference) return {};
    const auto& context = *moFirst->Context();
    const auto name = [&](const ModuleDataPtr& module) {
        return module ? ReadableName(*module, *context.catalogue, context.CurrentLanguage()) : std::string();
    };
    const std::string first = name(difference->first);
    const std::string second = name(difference->second);
    std::string text = first;
    if (!second.empty() && second != first) text += text.empty() ? second : " / " + second;
    const auto lines = TextsOf(*difference);
    for (std::size_t i = 0; i < std::min(lines.size(), MostLines); ++i)
        text += "\r\n" + lines[i].name + ": " + lines[i].value1 + " / " + lines[i].value2;
    if (lines.size() > MostLines) text += "\r\n\u2026";
    return text;
}

std::vector<DifferenceText> CompareService::TextsOf(const PlaceDifference& difference) const
{
    if (!difference.first || !difference.second) return {};
    const auto& context = *moFirst->Context();
    const auto findings = FindDifferences(*difference.first, *difference.second, *context.catalogue, mComparedOptions);
    return DescribeDifferences(*difference.first, *difference.second, findings, *context.catalogue,
                               context.CurrentLanguage());
}

} // namespace zqbchwcx::reference
