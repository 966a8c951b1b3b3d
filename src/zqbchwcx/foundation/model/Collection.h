#pragma once

#include <cstdint>
#include <iterator>

namespace zqbchwcx {

/// Walks a collection of the model in insertion order. It looks at the live collection: an element added behind the
/// cursor is still met, one taken away is not.
template <class Collection>
class CollectionIterator {
public:
    CollectionIterator(const Collection& collection, std::int32_t lIndex) : mpCollection(&collection), mlIndex(lIndex)
    {
    }

    auto operator*() const { return mpCollection->Element(mlIndex); }
    CollectionIterator& operator++()
    {
        ++mlIndex;
        return *this;
    }
    bool operator==(std::default_sentinel_t) const { return mlIndex >= mpCollection->Count(); }

private:
    const Collection* mpCollection;
    std::int32_t mlIndex;
};

} // namespace zqbchwcx
