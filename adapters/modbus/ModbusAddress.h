#pragma once

#include "zqbchwcx/reference/catalogue/LocalizedText.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace zqbchwcx::modbus {

/// A device on a Modbus TCP network.
struct ModbusAddress {
    std::string host;
    std::uint16_t port = 0;
    std::uint8_t unit = 1;

    bool operator==(const ModbusAddress&) const = default;
};

/// The host as it stands before a colon and a port: in brackets when it has colons of its own.
std::string HostText(const ModbusAddress& address);

inline constexpr std::string_view ModbusScheme = "modbus-tcp";

/// Reads "modbus-tcp://HOST:PORT", with "?unit=N" (0 to 255) behind it for another unit than 1; or why it is none.
std::variant<ModbusAddress, reference::LocalizedText> ParseModbusAddress(std::string_view text);

/// Reads "HOST:PORT" of this computer, where HOST is a number or "localhost", and port 0 any that is free.
std::variant<ModbusAddress, reference::LocalizedText> ParseListenAddress(std::string_view text);

} // namespace zqbchwcx::modbus
