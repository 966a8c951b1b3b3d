#pragma once

#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <utility>
#include <variant>

namespace zqbchwcx::reference {

/// What an edit or a rule answers: its result, or the reason why not.
template <class T>
class [[nodiscard]] Outcome {
public:
    Outcome(T result) : moContent(std::in_place_index<0>, std::move(result)) {}
    Outcome(Refusal refusal) : moContent(std::in_place_index<1>, std::move(refusal)) {}

    explicit operator bool() const { return moContent.index() == 0; }
    /// Only of an outcome that is true.
    T& Result() { return std::get<0>(moContent); }
    const T& Result() const { return std::get<0>(moContent); }
    /// Only of an outcome that is false.
    const Refusal& Reason() const { return std::get<1>(moContent); }

private:
    std::variant<T, Refusal> moContent;
};

} // namespace zqbchwcx::reference
