#pragma once

#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/platform/ImageList.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx {

/// Every operation of a host service may throw; the library reports what is thrown and goes on.

/// Reads stored settings.
class SettingsReader {
public:
    virtual ~SettingsReader() = default;

    /// The value stored under the key path and name, or the default.
    virtual std::string Read(std::string_view keyPath, std::string_view name, std::string_view defaultValue) = 0;
};

/// Texts and pictures of one module, in the host's current language.
class TextModule {
public:
    virtual ~TextModule() = default;

    virtual std::string Text(std::int32_t lId) = 0;
    /// The single image of that name. Throws when there is none.
    virtual ImagePtr Picture(std::string_view name) = 0;
    /// Where image lists find the module's strips.
    virtual std::intptr_t hInstance() const = 0;
};
using TextModulePtr = std::shared_ptr<TextModule>;

class TextManager {
public:
    virtual ~TextManager() = default;

    virtual TextModulePtr Open(std::string_view moduleName) = 0;
    virtual void Release(std::string_view moduleName) = 0;
};

/// The error log, and the bracket around a user action that changes the model.
class ErrorService {
public:
    virtual ~ErrorService() = default;

    virtual void BeginUserAction(std::string_view displayText) = 0;
    virtual void EndUserAction() = 0;
    virtual void LogError(std::int32_t lNumber, std::string_view description, std::string_view source,
                          std::string_view helpFile, std::int32_t lHelpContext) = 0;
};

/// Knows which objects of the library live.
class InstanceTracker {
public:
    virtual ~InstanceTracker() = default;

    virtual std::int32_t Register(std::int32_t lCategory, std::string_view className) = 0;
    virtual void Unregister(std::int32_t lCategory, std::string_view className, std::int32_t lInstanceId) = 0;
};

/// The host application.
class HostApplication {
public:
    virtual ~HostApplication() = default;

    /// 1 starts a wait, -1 ends it, 0 restores the wait cursor.
    virtual void DoWaitCursor(std::int32_t lCode) = 0;
};
using HostApplicationPtr = std::shared_ptr<HostApplication>;

/// Finds running objects by class.
class ObjectLookup {
public:
    virtual ~ObjectLookup() = default;

    /// 0 when an object of the class is available.
    virtual std::int32_t Status(std::string_view classId) = 0;
    virtual HostApplicationPtr Object(std::string_view classId) = 0;
};
using ObjectLookupPtr = std::shared_ptr<ObjectLookup>;

/// The user's options: strings under the names of parameters.
class OptionService {
public:
    virtual ~OptionService() = default;

    /// The stored value, or an empty string.
    virtual std::string Read(std::string_view parameter) = 0;
    virtual void Write(std::string_view parameter, std::string_view value) = 0;
};
using OptionServicePtr = std::shared_ptr<OptionService>;

/// A part of a controller that has a version of its own.
struct ControllerComponent {
    std::string name;
    std::string version;

    bool operator==(const ControllerComponent&) const = default;
};

/// What a host knows about the station's controller beyond its order number.
class ControllerInfo {
public:
    virtual ~ControllerInfo() = default;

    /// In the order in which they are shown. A name or version that is not known is empty.
    virtual std::vector<ControllerComponent> Components() const = 0;
};
using ControllerInfoPtr = std::shared_ptr<ControllerInfo>;

/// Makes the host's own helper objects.
class ObjectFactory {
public:
    virtual ~ObjectFactory() = default;

    virtual ObjectLookupPtr CreateObjectLookup() = 0;
    virtual ExchangeDataPtr CreateExchangeData() = 0;
    virtual OptionServicePtr CreateOptionService() = 0;
    /// Null when the host knows nothing about the controller.
    virtual ControllerInfoPtr CreateControllerInfo() = 0;
};

} // namespace zqbchwcx
