#pragma once

#include <string_view>

namespace zqbchwcx::reference {

/// Whoever makes one undoable step of everything that happens between a begin and its end. Pairs may nest.
class UserActions {
public:
    virtual ~UserActions() = default;

    virtual void BeginUserAction(std::string_view displayText) = 0;
    virtual void EndUserAction() = 0;
};

} // namespace zqbchwcx::reference
