#pragma once

#include "tests/support/model/FakeModules.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace zqbchwcx::testing {

/// A module whose every property a test sets; without an order number it is the empty module.
class FakeModule : public VxHWModule {
public:
    explicit FakeModule(CallLogPtr log) : subModules(std::make_shared<FakeModules>(log)), moLog(std::move(log)) {}

    bool IsEmpty() const override { return Counted("IsEmpty", orderNumber.empty()); }
    std::string OrderNumber() const override { return Counted("OrderNumber", orderNumber); }
    std::string DetailText() const override { return Counted("DetailText", detailText); }
    std::string Name() const override { return Counted("Name", name); }
    std::string PictureName() const override { return Counted("PictureName", pictureName); }
    std::int32_t PlaceCount() const override { return Counted("PlaceCount", placeCount); }
    std::int32_t SubModuleCount() const override { return Counted("SubModuleCount", subModuleCount); }
    std::int32_t IndexInParent() const override { return Counted("IndexInParent", indexInParent); }
    VxHWModulePtr ParentModule() const override { return Counted("ParentModule", parent); }
    VxHWModulesPtr SubModules() const override { return Counted("SubModules", subModules); }
    bool HasParamDialog() const override { return Counted("HasParamDialog", hasParamDialog); }
    std::string InputAddressText() const override { return Counted("InputAddressText", inputAddress); }
    std::string OutputAddressText() const override { return Counted("OutputAddressText", outputAddress); }
    std::string BasicAddressText() const override { return Counted("BasicAddressText", basicAddress); }
    std::string GetAttribute(std::string_view attribute) const override
    {
        const auto found = attributes.find(attribute);
        return Counted("GetAttribute", found == attributes.end() ? std::string() : found->second);
    }
    bool HasAttribute(std::string_view attribute) const override
    {
        return Counted("HasAttribute", attributes.contains(attribute));
    }

    std::string orderNumber;
    std::string name;
    std::string detailText;
    std::string pictureName;
    std::int32_t placeCount = 0;
    std::int32_t subModuleCount = 0;
    std::int32_t indexInParent = 0;
    std::shared_ptr<FakeModule> parent;
    std::shared_ptr<FakeModules> subModules;
    bool hasParamDialog = false;
    std::string inputAddress;
    std::string outputAddress;
    std::string basicAddress;
    std::map<std::string, std::string, std::less<>> attributes;

private:
    template <class Value>
    Value Counted(const char* property, Value value) const
    {
        moLog->Call(std::string("VxHWModule.") + property);
        return value;
    }

    CallLogPtr moLog;
};
using FakeModulePtr = std::shared_ptr<FakeModule>;

} // namespace zqbchwcx::testing
