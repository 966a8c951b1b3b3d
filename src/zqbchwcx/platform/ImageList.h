#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace zqbchwcx {

/// One picture.
class Image {
public:
    virtual ~Image() = default;
};
using ImagePtr = std::shared_ptr<const Image>;

/// Pictures of one size, each found by its cell index or by its key.
class ImageList {
public:
    virtual ~ImageList() = default;

    virtual std::int32_t Count() const = 0;
    /// Gives the cell (from 0) its key.
    virtual void Key(std::int32_t lIndex, std::string_view key) = 0;
    virtual bool Contains(std::string_view key) const = 0;
    /// Loads a picture file (BMP with the mask colour transparent; PNG or SVG of the same base name are taken when
    /// there is no BMP) under the key. False when the file yields no picture; the list is then unchanged.
    virtual bool AddFile(std::string_view path, std::string_view key) = 0;
};
using ImageListPtr = std::shared_ptr<ImageList>;

/// Makes image lists from the strip pictures of the host's resources.
class ImageListFactory {
public:
    virtual ~ImageListFactory() = default;

    /// Cuts the strip into cells of the given width (logical pixels). Throws when there is no such strip.
    virtual ImageListPtr Create(std::intptr_t hInstance, std::string_view stripName, std::int32_t lCellWidth,
                                std::int32_t lReserved, OleColor maskColor, std::int32_t lFlags) = 0;
    /// A list without pictures, for cells of that size.
    virtual ImageListPtr CreateEmpty(Size cell, OleColor maskColor) = 0;
    /// Appends the cells of a strip to a list that this factory made. Throws when there is no such strip.
    virtual void AddStrip(ImageList& list, std::intptr_t hInstance, std::string_view stripName) = 0;
};

} // namespace zqbchwcx
