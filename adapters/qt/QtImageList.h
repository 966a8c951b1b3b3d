#pragma once

#include "zqbchwcx/qt/QtImage.h"

#include <map>
#include <string>
#include <vector>

namespace zqbchwcx::qt {

/// An image list whose images are vector pictures or picture files.
class QtImageList : public ImageList {
public:
    explicit QtImageList(std::int32_t lCellWidth) : mlCellWidth(lCellWidth) {}

    std::int32_t Count() const override;
    void Key(std::int32_t lIndex, std::string_view key) override;
    bool Contains(std::string_view key) const override;
    bool AddFile(std::string_view path, std::string_view key) override;

    void Append(std::vector<QtImagePtr> cells);
    std::int32_t CellWidth() const { return mlCellWidth; }
    /// Throws VxError when the list has no image of that key.
    const QtImage& Image(std::string_view key) const;

private:
    std::int32_t mlCellWidth;
    std::vector<QtImagePtr> mcolCells;
    std::map<std::string, std::size_t, std::less<>> mcolIndexByKey;
};

} // namespace zqbchwcx::qt
