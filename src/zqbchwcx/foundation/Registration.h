#pragma once

#include "zqbchwcx/platform/HostServices.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// Registers an object with the host's instance tracker for as long as it lives. The first member of its class, so
/// that it is registered before, and unregistered after, everything else.
class InstanceRegistration {
public:
    /// The class name stays valid for the life of the program (a literal).
    explicit InstanceRegistration(std::string_view className) noexcept;
    ~InstanceRegistration();
    InstanceRegistration(const InstanceRegistration&) = delete;
    InstanceRegistration& operator=(const InstanceRegistration&) = delete;

    std::string_view className() const { return msClassName; }

private:
    std::string_view msClassName;
    std::int32_t mlInstanceId = 0;
    bool mbRegistered = false;
};

/// The text module "zqhwuim", open for as long as its user lives. Declared right after the registration.
class TextModuleUse {
public:
    explicit TextModuleUse(std::string_view className) noexcept;
    ~TextModuleUse();
    TextModuleUse(const TextModuleUse&) = delete;
    TextModuleUse& operator=(const TextModuleUse&) = delete;

    /// Null when the host could not open it.
    const TextModulePtr& get() const { return moTextModule; }
    /// Throws VxError when the module could not be opened.
    TextModule& operator*() const;
    TextModule* operator->() const { return &**this; }

private:
    std::string_view msClassName;
    TextModulePtr moTextModule;
};

} // namespace zqbchwcx
