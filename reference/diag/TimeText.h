#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// A moment, UTC.
using Time = std::chrono::sys_time<std::chrono::milliseconds>;
/// Tells what time it is.
using Clock = std::function<Time()>;

/// "2026-03-09T07:05:01.250Z".
std::string TimeText(Time time);
/// Reads exactly that form; nothing for another one, and for a day that there is not.
std::optional<Time> ParseTime(std::string_view text);

} // namespace zqbchwcx::reference
