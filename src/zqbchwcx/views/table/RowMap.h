#pragma once

#include "zqbchwcx/views/shared/ShownPlaces.h"

#include <cstdint>
#include <utility>

namespace zqbchwcx {

/// Which row of a table shows which place of the rack. Rows and places count from 1; 0 is none.
class RowMap {
public:
    virtual ~RowMap() = default;

    virtual std::int32_t RowCount() const = 0;
    virtual std::int32_t RowOf(std::int32_t lPlace) const = 0;
    virtual std::int32_t PlaceOf(std::int32_t lRow) const = 0;
    /// The row that stands for a place that may have none of its own.
    virtual std::int32_t RowFor(std::int32_t lPlace) const { return RowOf(lPlace); }
};

/// The rows of a central station's table: row and place are the same number, whatever the rack holds.
class CentralRowMap : public RowMap {
public:
    static constexpr std::int32_t Rows = 11;

    std::int32_t RowCount() const override { return Rows; }
    std::int32_t RowOf(std::int32_t lPlace) const override { return Within(lPlace); }
    std::int32_t PlaceOf(std::int32_t lRow) const override { return Within(lRow); }

private:
    static constexpr std::int32_t Within(std::int32_t lNumber) { return lNumber >= 1 && lNumber <= Rows ? lNumber : 0; }
};

/// The rows of a distributed station's table: one for each place that is shown. For a place that is not, the next one
/// stands, or the last.
class ShownRowMap : public RowMap {
public:
    void Shown(ShownPlaces shown) { mShown = std::move(shown); }
    const ShownPlaces& Shown() const { return mShown; }

    std::int32_t RowCount() const override { return mShown.Count(); }
    std::int32_t RowOf(std::int32_t lPlace) const override { return mShown.IndexOf(lPlace); }
    std::int32_t PlaceOf(std::int32_t lRow) const override { return mShown.NumberAt(lRow); }
    std::int32_t RowFor(std::int32_t lPlace) const override
    {
        const std::int32_t lRow = mShown.IndexFrom(lPlace);
        return lRow != 0 ? lRow : mShown.Count();
    }

private:
    ShownPlaces mShown;
};

} // namespace zqbchwcx
