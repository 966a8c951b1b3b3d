#pragma once

#include "zqbchwcx/foundation/VxError.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zqbchwcx {

/// A two-dimensional array with bounds of its own per dimension, both inclusive. Without bounds it is empty.
template <class T>
class Array2D {
public:
    Array2D() = default;
    Array2D(std::int32_t lRowFirst, std::int32_t lRowLast, std::int32_t lColumnFirst, std::int32_t lColumnLast)
        : mlRowFirst(lRowFirst), mlRowLast(lRowLast), mlColumnFirst(lColumnFirst), mlColumnLast(lColumnLast)
    {
        if (lRowLast >= lRowFirst && lColumnLast >= lColumnFirst) {
            mcolValues.resize((static_cast<std::size_t>(lRowLast - lRowFirst) + 1) * columnCount());
        }
    }

    bool operator==(const Array2D&) const = default;

    bool IsEmpty() const { return mcolValues.empty(); }
    std::int32_t RowFirst() const { return mlRowFirst; }
    std::int32_t RowLast() const { return mlRowLast; }
    std::int32_t ColumnFirst() const { return mlColumnFirst; }
    std::int32_t ColumnLast() const { return mlColumnLast; }

    bool Contains(std::int32_t lRow, std::int32_t lColumn) const
    {
        return !IsEmpty() && lRow >= mlRowFirst && lRow <= mlRowLast && lColumn >= mlColumnFirst &&
               lColumn <= mlColumnLast;
    }

    /// Throws VxError (subscript out of range) outside the bounds.
    T Get(std::int32_t lRow, std::int32_t lColumn) const { return mcolValues[index(lRow, lColumn)]; }
    void Set(std::int32_t lRow, std::int32_t lColumn, T value) { mcolValues[index(lRow, lColumn)] = value; }

private:
    std::size_t columnCount() const { return static_cast<std::size_t>(mlColumnLast - mlColumnFirst) + 1; }
    std::size_t index(std::int32_t lRow, std::int32_t lColumn) const
    {
        if (!Contains(lRow, lColumn)) throw VxError(vxErrorSubscript, "Subscript out of range");
        return static_cast<std::size_t>(lRow - mlRowFirst) * columnCount() +
               static_cast<std::size_t>(lColumn - mlColumnFirst);
    }

    std::int32_t mlRowFirst = 0;
    std::int32_t mlRowLast = -1;
    std::int32_t mlColumnFirst = 0;
    std::int32_t mlColumnLast = -1;
    std::vector<T> mcolValues;
};

} // namespace zqbchwcx
