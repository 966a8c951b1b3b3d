#include "app/host/ModulePictures.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/qt/ImageFile.h"

#include <QPainter>

#include <algorithm>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr std::int32_t PlaceWidth = 18;
constexpr std::string_view BuiltIn = "IDB_";
constexpr char DefaultPicture[] = "IDB_CRX_MODULE_DEFAULT";

} // namespace

ModulePictures::ModulePictures(std::shared_ptr<qt::QtToolkit> toolkit) : moToolkit(std::move(toolkit)) {}

qt::QtImagePtr ModulePictures::Image(const std::string& pictureName)
{
    qt::QtImagePtr image;
    if (pictureName.starts_with(BuiltIn)) {
        G_IgnoreErrors([&] { image = moToolkit->Pictures().Picture(pictureName); });
    } else {
        const auto [file, isNew] = mcolFiles.try_emplace(pictureName);
        if (isNew) file->second = qt::LoadImageFile(G_HWPicDir() + pictureName + ".bmp", PlaceWidth);
        image = file->second;
    }
    return image ? image : moToolkit->Pictures().Picture(DefaultPicture);
}

QPixmap ModulePictures::Picture(const reference::ModuleType& type, double scale, double devicePixelRatio)
{
    const qt::QtImagePtr image = Image(type.picture);
    const qt::PixelGrid grid(scale * devicePixelRatio);
    const std::int32_t places = std::max(type.placeCount, 1);
    const Size size = image->LogicalSize();
    QImage all(grid.Edge(places * size.width), grid.Edge(size.height), QImage::Format_ARGB32_Premultiplied);
    all.fill(Qt::transparent);
    QPainter painter(&all);
    for (std::int32_t place = 0; place < places; ++place) {
        const Point at{place * size.width, 0};
        painter.drawImage(grid.Edge(at.x), 0, image->At(at, grid, DrawStyle::Normal, {}));
    }
    painter.end();
    all.setDevicePixelRatio(devicePixelRatio);
    return QPixmap::fromImage(std::move(all));
}

} // namespace quillon_ed
