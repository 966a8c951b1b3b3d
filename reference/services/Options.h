#pragma once

#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/services/KeyValueStore.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace zqbchwcx::reference {

/// Where options are kept in their store.
inline constexpr std::string_view OptionsKey = "Options";

/// The user's options, kept with the other settings.
class Options : public OptionService {
public:
    explicit Options(std::shared_ptr<KeyValueStore> store) : moStore(std::move(store)) {}

    std::string Read(std::string_view parameter) override
    {
        return moStore->Value(OptionsKey, parameter).value_or(std::string());
    }
    void Write(std::string_view parameter, std::string_view value) override
    {
        moStore->Store(OptionsKey, parameter, value);
    }

private:
    std::shared_ptr<KeyValueStore> moStore;
};

} // namespace zqbchwcx::reference
