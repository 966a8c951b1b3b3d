#pragma once

#include "zqbchwcx/reference/catalogue/LocalizedText.h"
#include "zqbchwcx/reference/diag/TimeText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

enum class ConnectionKind {
    Closed,
    Connecting,
    Connected, ///< the only one in which the state of a plant is known
    NotReachable,
    WrongAnswer,
    OtherStation, ///< what answers belongs to another station
};

struct Connection {
    ConnectionKind kind = ConnectionKind::Closed;
    Time since;
    LocalizedText reason; ///< why it is not connected; may be empty
};

/// For people: "not reachable since 2026-03-09T07:05:01.250Z: connection refused".
LocalizedText ConnectionText(const Connection& connection);

struct RegisterState {
    std::uint16_t value = 0;
    Time since = Time::min(); ///< when that value was seen first; none was seen yet without it
};

/// What every register of a plant said last. It holds as long as the connection does.
struct PlantState {
    Connection connection;
    std::vector<RegisterState> registers;
};

struct RegisterValue {
    std::size_t address = 0;
    std::uint16_t value = 0;

    bool operator==(const RegisterValue&) const = default;
};

/// A part of a controller that has a version of its own.
struct ComponentVersion {
    LocalizedText component;
    std::string version; ///< "2.11.3"
};

/// The components that a register map tells; a number that is not known gets a text with the number.
LocalizedText ComponentText(std::uint16_t kind);

} // namespace zqbchwcx::reference
