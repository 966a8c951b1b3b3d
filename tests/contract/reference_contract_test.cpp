#include "zqbchwcx/contract/ModelContract.h"

#include "tests/support/MemoryClipboard.h"
#include "tests/support/model/SampleModel.h"
#include "zqbchwcx/reference/compare/CompareService.h"
#include "zqbchwcx/reference/model/contract/ModelFactory.h"
#include "zqbchwcx/reference/model/contract/TypeExchange.h"

namespace zqbchwcx::testing {
namespace {

ContractHost ReferenceHost(std::int32_t kind, ContractStation wanted)
{
    const bool central = kind == 0;
    PlainStation plain(EmptyStation(kind, central ? 2 : 1));
    plain.Place(G_PlacePosition(0, 1), Block(central ? "PS CPU IM" : "HEAD2 +"));
    reference::StationData data = plain.Data();
    data.readOnly = wanted == ContractStation::ReadOnly;
    data.displayMode = wanted == ContractStation::Online ? vxDisplayModeOnline1 : vxDisplayModeOffline;

    const reference::ModelContextPtr context = SampleContext();
    const auto clipboard = std::make_shared<MemoryClipboard>();
    reference::StationServices services;
    services.clipboard = clipboard;
    services.parameterDialog = [](const reference::ModuleData& module, reference::PlaceRef) {
        reference::ModuleData edited = module;
        edited.comment = "new";
        return std::optional(edited);
    };
    const auto station = std::make_shared<reference::Station>(context, data, services);
    const auto make = [context](const char* orderNumber) {
        return [context, orderNumber] {
            return reference::Station(context, EmptyStation(0, 1)).CreateModule(orderNumber);
        };
    };
    ContractHost host;
    host.station = station;
    host.compareWithItself = [context, station] {
        return std::make_shared<reference::CompareService>(
            station, std::make_shared<reference::Station>(context, station->Data()),
            reference::ComparePair::ProjectAndComparison);
    };
    host.factory = std::make_shared<reference::ModelFactory>(context);
    host.firstPlace = 4;
    host.lastPlace = 11;
    host.singleModule = make("DI");
    host.spanningModule = make("AI2");
    host.moduleWithSlots = make("CNT3");
    host.exchangeObject = [clipboard] {
        return std::make_shared<reference::TypeExchange>(std::int16_t{101}, clipboard);
    };
    const auto reason = std::make_shared<std::string>();
    const auto listening = std::make_shared<EventConnection>(station->Refused.Connect(
        [reason](const reference::Refusal& refusal) { *reason = refusal.text.In(reference::Language::English); }));
    host.takeReason = [reason, listening] { return std::exchange(*reason, {}); };
    return host;
}

const bool registered = [] {
    RegisterModelContract("ReferenceCentral", [](ContractStation wanted) { return ReferenceHost(0, wanted); });
    RegisterModelContract("ReferenceDistributed", [](ContractStation wanted) { return ReferenceHost(1, wanted); });
    return true;
}();

} // namespace
} // namespace zqbchwcx::testing
