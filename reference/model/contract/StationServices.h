#pragma once

#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace zqbchwcx::reference {

/// The desktop's clipboard, by the names of clipboard formats.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    /// Nothing when the clipboard has no data of that format.
    virtual std::optional<ByteArray> Read(std::string_view formatName) const = 0;
    /// Replaces the whole content of the clipboard.
    virtual void Write(std::string_view formatName, const ByteArray& data) = 0;
};
using ClipboardPtr = std::shared_ptr<Clipboard>;

/// What a station asks of the program around it. An empty function does nothing.
struct StationServices {
    ClipboardPtr clipboard; ///< null: always empty
    /// Lets the user configure the module anew; nothing when it stays as it is.
    std::function<std::optional<ModuleData>(const ModuleData& module, PlaceRef place)> parameterDialog;
    /// Shows the diagnostics of a module or, with its 1-based slot, of a sub-module (else 0).
    std::function<void(PlaceRef place, std::int32_t subModule)> moduleDiagnostics;
    std::function<void()> refreshDiagnostics;
    std::function<void()> refreshOnline;
};

} // namespace zqbchwcx::reference
