#pragma once

#include <cstdint>

namespace zqbchwcx {

/// Which row of a table shows which place of the rack. Rows and places count from 1; 0 is none.
class RowMap {
public:
    virtual ~RowMap() = default;

    virtual std::int32_t RowCount() const = 0;
    virtual std::int32_t RowOf(std::int32_t lPlace) const = 0;
    virtual std::int32_t PlaceOf(std::int32_t lRow) const = 0;
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

} // namespace zqbchwcx
