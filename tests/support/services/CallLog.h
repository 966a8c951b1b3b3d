#pragma once

#include "tests/support/services/FaultPoints.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

/// Shared by all test doubles of one test: every call is a fault point; calls that change something leave a line,
/// in one list, so that the order across doubles can be checked.
class CallLog {
public:
    FaultPoints faults;
    std::vector<std::string> lines;

    /// A call without a line.
    void Call(std::string_view call) { faults.Hit(call); }
    /// A call with a line, which is left only when the call does not fail.
    void Note(std::string line)
    {
        faults.Hit(line);
        lines.push_back(std::move(line));
    }
    /// A call that ends something: the line is left even when it fails, because the end was asked for.
    void NoteEnd(const std::string& line)
    {
        lines.push_back(line);
        faults.Hit(line);
    }
};
using CallLogPtr = std::shared_ptr<CallLog>;

/// What all test doubles have in common.
class Logged {
public:
    explicit Logged(CallLogPtr log) : moLog(std::move(log)) {}

protected:
    void Call(std::string_view call) const { moLog->Call(call); }
    void Note(std::string line) const { moLog->Note(std::move(line)); }
    /// A call that only answers; an object can be nothing.
    template <class Value>
    Value Answer(std::string_view call, Value value) const
    {
        moLog->Call(call);
        if constexpr (std::is_convertible_v<std::nullptr_t, Value> && !std::is_convertible_v<Value, std::string_view>)
            if (moLog->faults.TakeNothing()) return nullptr;
        return value;
    }

    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
