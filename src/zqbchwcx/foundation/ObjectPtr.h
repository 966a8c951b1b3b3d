#pragma once

#include "zqbchwcx/foundation/VxError.h"

#include <memory>
#include <string>
#include <utility>

namespace zqbchwcx {

/// What an error calls an object of the model that is nothing: "The rack".
template <class Object>
inline constexpr const char* G_ObjectName = "The object";

/// A shared object of the model, or nothing. A model may answer nothing where the contract promises an object: using it
/// is an error like any other, and throws VxError.
template <class Object>
class ObjectPtr : public std::shared_ptr<Object> {
public:
    using std::shared_ptr<Object>::shared_ptr;
    ObjectPtr(std::shared_ptr<Object> pointer) noexcept : std::shared_ptr<Object>(std::move(pointer)) {}

    Object* operator->() const { return &Existing(); }
    Object& operator*() const& { return Existing(); }
    /// What a temporary points to may end with it: `for (x : *rack->Places())` would walk a collection that is gone.
    /// Walk the pointer, which the loop keeps: `for (x : rack->Places())`.
    Object& operator*() && = delete;

private:
    Object& Existing() const
    {
        if (!*this) throw VxError(vxErrorNothing, std::string(G_ObjectName<Object>) + " is not set");
        return *this->get();
    }
};

template <class Collection>
auto begin(const ObjectPtr<Collection>& oCollection)
{
    return oCollection->begin();
}

template <class Collection>
auto end(const ObjectPtr<Collection>& oCollection)
{
    return oCollection->end();
}

} // namespace zqbchwcx
