#include "zqbchwcx/qt/QtImageList.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/ImageFile.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zqbchwcx::qt {

void QtImageList::Append(std::vector<QtImagePtr> cells)
{
    std::move(cells.begin(), cells.end(), std::back_inserter(mcolCells));
}

std::int32_t QtImageList::Count() const
{
    return static_cast<std::int32_t>(mcolCells.size());
}

void QtImageList::Key(std::int32_t lIndex, std::string_view key)
{
    if (lIndex < 0 || lIndex >= Count())
        throw VxError(vxErrorSubscript,
                      "The image list has no cell " + std::to_string(lIndex) + " for the key " + std::string(key));
    mcolIndexByKey.insert_or_assign(std::string(key), static_cast<std::size_t>(lIndex));
}

bool QtImageList::Contains(std::string_view key) const
{
    return mcolIndexByKey.contains(key);
}

bool QtImageList::AddFile(std::string_view path, std::string_view key)
{
    auto image = LoadImageFile(path, mlCellWidth);
    if (!image) return false;
    mcolCells.push_back(std::move(image));
    Key(Count() - 1, key);
    return true;
}

const QtImage& QtImageList::Image(std::string_view key) const
{
    const auto found = mcolIndexByKey.find(key);
    if (found == mcolIndexByKey.end())
        throw VxError(vxErrorInvalidArgument, "The image list has no image \"" + std::string(key) + "\"");
    return *mcolCells[found->second];
}

} // namespace zqbchwcx::qt
