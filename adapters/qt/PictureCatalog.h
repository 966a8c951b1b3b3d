#pragma once

#include "zqbchwcx/qt/QtImage.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx::qt {

/// The pictures of the views, by name: the strips that image lists are made of, and the single images. Made as vector
/// pictures and compiled into the program. Read once, on first use.
class PictureCatalog : public ImageListFactory {
public:
    ImageListPtr Create(std::intptr_t hInstance, std::string_view stripName, std::int32_t lCellWidth,
                        std::int32_t lReserved, OleColor maskColor, std::int32_t lFlags) override;
    ImageListPtr CreateEmpty(Size cell, OleColor maskColor) override;
    void AddStrip(ImageList& list, std::intptr_t hInstance, std::string_view stripName) override;

    /// The picture of that name, a cell of a strip included. Throws VxError when there is none.
    QtImagePtr Picture(std::string_view name);

    /// Every picture there is.
    static std::vector<std::string> Names();

private:
    std::map<std::string, QtImagePtr, std::less<>> mcolPictures;
};

} // namespace zqbchwcx::qt
