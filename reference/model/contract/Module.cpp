#include "zqbchwcx/reference/model/contract/Module.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/reference/model/contract/Modules.h"
#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"
#include "zqbchwcx/reference/model/rules/Occupancy.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx::reference {
namespace {

bool HasParameters(const ModuleData& module, const Catalogue& catalogue)
{
    const ModuleType* type = catalogue.Find(module.orderNumber);
    if (type && !type->parameters.empty()) return true;
    return std::any_of(module.subModules.begin(), module.subModules.end(),
                       [&](const ModuleData& subModule) { return HasParameters(subModule, catalogue); });
}

} // namespace

Module::Module(ModuleBodyPtr oBody, std::int32_t lIndexInParent)
    : moBody(std::move(oBody)), mlIndexInParent(lIndexInParent)
{
}

const Module& Module::Of(const VxHWModulePtr& oModule)
{
    const auto* module = dynamic_cast<const Module*>(&*oModule);
    if (!module) throw VxError(vxErrorInvalidArgument, "The module belongs to another model");
    return *module;
}

PlaceRef Module::Place() const
{
    const PlaceRef first = moBody->firstPlace;
    return {first.rack, first.place + std::max(mlIndexInParent - 1, 0)};
}

bool Module::IsSame(const Module& other) const
{
    if (mlIndexInParent != other.mlIndexInParent) return false;
    if (moBody == other.moBody) return true;
    return moBody->station && moBody->station == other.moBody->station &&
           moBody->firstPlace == other.moBody->firstPlace && moBody->subModule == other.moBody->subModule &&
           IsEmpty() == other.IsEmpty();
}

const ModuleType* Module::Type() const
{
    return moBody->data ? moBody->context->catalogue->Find(moBody->data->orderNumber) : nullptr;
}

std::string Module::OrderNumber() const
{
    return moBody->data ? moBody->data->orderNumber : std::string();
}

std::string Module::DetailText() const
{
    if (!moBody->data) return {};
    const ModelContext& context = *moBody->context;
    // Modules of one type differ in their sub-modules at most.
    std::string text;
    for (const ModuleData& subModule : moBody->data->subModules)
        text.append(text.empty() ? "" : ", ")
            .append(ReadableName(subModule, *context.catalogue, context.CurrentLanguage()));
    const ModuleType* type = Type();
    return text.empty() && type ? type->description.In(context.CurrentLanguage()) : text;
}

std::string Module::Name() const
{
    if (!moBody->data) return {};
    return ReadableName(*moBody->data, *moBody->context->catalogue, moBody->context->CurrentLanguage());
}

std::string Module::PictureName() const
{
    const ModuleType* type = Type();
    const bool bFits = type && (!moBody->stationKind || type->FitsStation(*moBody->stationKind));
    return bFits ? type->picture : std::string();
}

std::int32_t Module::PlaceCount() const
{
    if (!moBody->data || mlIndexInParent > 0) return 0;
    const std::int32_t span = SpanOf(*moBody->data, *moBody->context->catalogue);
    return span > 1 ? span : 0;
}

std::int32_t Module::SubModuleCount() const
{
    if (!moBody->data || !IsFirstPart()) return 0;
    const ModuleType* type = Type();
    return static_cast<std::int32_t>(type ? type->subModules.size() : moBody->data->subModules.size());
}

VxHWModulePtr Module::ParentModule() const
{
    return mlIndexInParent > 0 ? std::make_shared<Module>(moBody) : nullptr;
}

VxHWModulesPtr Module::SubModules() const
{
    auto subModules = std::make_shared<Modules>(moBody->context);
    if (!moBody->data || !IsFirstPart()) return subModules;
    for (const ModuleData& subModule : moBody->data->subModules) {
        auto body = std::make_shared<ModuleBody>(*moBody);
        body->data = ModuleDataPtr(moBody->data, &subModule);
        body->subModule = subModules->Count() + 1;
        subModules->Add(std::make_shared<Module>(std::move(body)), true);
    }
    return subModules;
}

bool Module::HasParamDialog() const
{
    return moBody->data && HasParameters(*moBody->data, *moBody->context->catalogue);
}

std::string Module::InputAddressText() const
{
    return moBody->data && IsFirstPart() ? AddressText(AddressArea::Input, *moBody->data, Type()) : std::string();
}

std::string Module::OutputAddressText() const
{
    return moBody->data && IsFirstPart() ? AddressText(AddressArea::Output, *moBody->data, Type()) : std::string();
}

std::string Module::BasicAddressText() const
{
    return moBody->data && IsFirstPart() ? reference::BasicAddressText(*moBody->data) : std::string();
}

std::string Module::GetAttribute(std::string_view name) const
{
    if (!HasAttribute(name)) return {};
    return AttributeText(*moBody->data, Type(), *FindAttribute(*moBody->data, Type(), name));
}

bool Module::HasAttribute(std::string_view name) const
{
    if (!moBody->data) return false;
    const auto attribute = FindAttribute(*moBody->data, Type(), name);
    if (!attribute) return false;
    return IsFirstPart() || attribute->kind == AttributeKind::Name || attribute->kind == AttributeKind::Comment;
}

std::vector<VxHWModulePtr> MembersOf(const ModuleBodyPtr& oBody)
{
    const std::int32_t span = oBody->data ? SpanOf(*oBody->data, *oBody->context->catalogue) : 1;
    std::vector<VxHWModulePtr> members;
    for (std::int32_t index = 1; index <= span; ++index)
        members.push_back(std::make_shared<Module>(oBody, span > 1 ? index : 0));
    return members;
}

} // namespace zqbchwcx::reference
