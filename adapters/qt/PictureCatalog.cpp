#include "zqbchwcx/qt/PictureCatalog.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/QtImageList.h"
#include "zqbchwcx/qt/SvgSource.h"

#include <QFile>
#include <QString>

#include <algorithm>
#include <array>
#include <span>

namespace zqbchwcx::qt {
namespace {

/// Pictures that are drawn alike: their transparent parts lie between the cuts.
struct PictureKind {
    EdgeStyle edges;
    std::vector<int> columnCuts;
    std::vector<int> rowCuts;
};

constexpr std::array<std::string_view, 28> CentralStrip{
    "IDB_CRX_PLACE_ACTIVE",
    "IDB_CRX_PLACE_ACTIVE_END",
    "IDB_CRX_PLACE_INACTIVE",
    "IDB_CRX_PLACE_INACTIVE_END",
    "IDB_CRX_PLACE_DROP",
    "IDB_CRX_PLACE_DROP_END",
    "IDB_CRX_PLACE_NODROP",
    "IDB_CRX_PLACE_NODROP_END",
    "IDB_CRX_PLACE_INACTIVE_NODROP",
    "IDB_CRX_PLACE_INACTIVE_NODROP_END",
    "IDB_CRX_MODULE_PS",
    "IDB_CRX_MODULE_CPU",
    "IDB_CRX_MODULE_CPUC",
    "IDB_CRX_MODULE_CPUM",
    "IDB_CRX_MODULE_IM",
    "IDB_CRX_MODULE_IO_ANALOG",
    "IDB_CRX_MODULE_IO_DIGITAL",
    "IDB_CRX_MODULE_DEFAULT",
    "IDB_CRX_MODULE_DUMMY",
    "IDB_CRX_MODULE_MERID_CPU",
    "IDB_CRX_MODULE_MERID_IM",
    "IDB_CRX_MODULE_MERID_IO_ANALOG",
    "IDB_CRX_MODULE_MERID_IO_DIGITAL",
    "IDB_CRX_MODULE_MERID_DUMMY",
    "IDB_CRX_FRAME_LEFT",
    "IDB_CRX_FRAME_MID",
    "IDB_CRX_FRAME_RIGHT",
    "IDB_CRX_FRAME_TOTAL",
};

constexpr std::array<std::string_view, 1> RackStrip{"IDB_CRX_RACK"};

constexpr std::array<std::string_view, 9> RailStrip{
    "IDB_RIOA_PLACEFRAME_ACTIVE", "IDB_RIOA_PLACEFRAME_DROP", "IDB_RIOA_PLACE_ACTIVE",
    "IDB_RIOA_PLACE_DROP",        "IDB_RIOA_PLACE_NODROP",    "IDB_RIOA_MODULE_IMCPU",
    "IDB_RIOA_MODULE_SMTYPE1",    "IDB_RIOA_MODULE_SMTYPE2",  "IDB_RIOA_MODULE_SMTYPE3"};

constexpr std::array<std::string_view, 10> SelfContainedStrip{
    "IDB_RIOB_PLACE_ACTIVE", "IDB_RIOB_PLACE_DROP",   "IDB_RIOB_PLACE_NODROP", "IDB_RIOB_MODULE_ALPHA",
    "IDB_RIOB_MODULE_BETA",  "IDB_RIOB_MODULE_GAMMA", "IDB_RIOB_MODULE_DELTA", "IDB_RIOB_MODULE_EPSILON",
    "IDB_RIOB_MODULE_ZETA",  "IDB_RIOB_MODULE_ETA"};

constexpr std::array<std::string_view, 17> SingleImages{
    "IDB_CRX_RACKNR_ACTIVE",     "IDB_CRX_RACKNR_INACTIVE", "IDB_DIAG_CPU_RUN",   "IDB_DIAG_CPU_STOP",
    "IDB_DIAG_CPU_HOLD",         "IDB_DIAG_FAILURE",        "IDB_COMP_EQUAL",     "IDB_COMP_POTEQUAL",
    "IDB_COMP_NOMODULE",         "IDB_COMP_MODULEDIFF",     "IDB_COMP_PARAMDIFF", "IDB_RIOA_RACK_START",
    "IDB_RIOA_RACK_MIDLEFT",     "IDB_RIOA_RACK_MIDRIGHT",  "IDB_RIOA_RACK_END",  "IDB_RIOA_PLACESTART_ACTIVE",
    "IDB_RIOB_PLACESTART_ACTIVE"};

struct Strip {
    std::string_view name;
    std::span<const std::string_view> cells;
};

const std::array<Strip, 4> Strips{{{"IDB_CRX_ALL", CentralStrip},
                                   {"IDB_CRX_RACK", RackStrip},
                                   {"IDB_RIOA_ALL", RailStrip},
                                   {"IDB_RIOB_ALL", SelfContainedStrip}}};

PictureKind KindOf(std::string_view name)
{
    if (name.starts_with("IDB_DIAG_") || name.starts_with("IDB_COMP_")) return {EdgeStyle::Soft, {}, {}};
    if (name.starts_with("IDB_CRX_FRAME_")) return {EdgeStyle::Hard, {1, 17}, {1, 59}};
    if (name.starts_with("IDB_CRX_RACKNR_")) return {EdgeStyle::Hard, {1, 11}, {1, 12}};
    if (name.starts_with("IDB_RIO")) return {EdgeStyle::Hard, {1, 21}, {1, 2, 70, 71}};
    if (name == "IDB_CRX_RACK") return {EdgeStyle::Hard, {1, 13, 14, 212}, {1, 14, 61}};
    return {EdgeStyle::Hard, {1, 2, 16, 17}, {1, 34, 45, 59}};
}

QByteArray ReadResource(std::string_view name)
{
    QFile file(
        QStringLiteral(":/pictures/%1.svg").arg(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ImageListPtr PictureCatalog::Create(std::intptr_t hInstance, std::string_view stripName, std::int32_t lCellWidth,
                                    std::int32_t /*lReserved*/, OleColor /*maskColor*/, std::int32_t /*lFlags*/)
{
    auto list = std::make_shared<QtImageList>(lCellWidth);
    AddStrip(*list, hInstance, stripName);
    return list;
}

ImageListPtr PictureCatalog::CreateEmpty(Size cell, OleColor /*maskColor*/)
{
    return std::make_shared<QtImageList>(cell.width);
}

void PictureCatalog::AddStrip(ImageList& list, std::intptr_t /*hInstance*/, std::string_view stripName)
{
    auto& images = dynamic_cast<QtImageList&>(list);
    const auto strip = std::find_if(Strips.begin(), Strips.end(), [&](const Strip& s) { return s.name == stripName; });
    if (strip == Strips.end())
        throw VxError(vxErrorInvalidArgument, "There is no strip picture \"" + std::string(stripName) + "\"");
    std::vector<QtImagePtr> cells;
    for (const std::string_view name : strip->cells) {
        cells.push_back(Picture(name));
        if (cells.back()->LogicalSize().width != images.CellWidth())
            throw VxError(vxErrorInvalidArgument, "The cells of the strip picture \"" + std::string(stripName) +
                                                      "\" are not " + std::to_string(images.CellWidth()) +
                                                      " pixels wide");
    }
    images.Append(std::move(cells));
}

QtImagePtr PictureCatalog::Picture(std::string_view name)
{
    if (const auto found = mcolPictures.find(name); found != mcolPictures.end()) return found->second;

    auto source = SvgSource::ReadLater(ReadResource(name));
    if (!source) throw VxError(vxErrorInvalidArgument, "There is no picture \"" + std::string(name) + "\"");
    PictureKind kind = KindOf(name);
    auto picture = std::make_shared<const QtImage>(std::move(source), kind.edges, std::move(kind.columnCuts),
                                                   std::move(kind.rowCuts));
    return mcolPictures.emplace(std::string(name), std::move(picture)).first->second;
}

std::vector<std::string> PictureCatalog::Names()
{
    std::vector<std::string> names(SingleImages.begin(), SingleImages.end());
    for (const Strip& strip : Strips) names.insert(names.end(), strip.cells.begin(), strip.cells.end());
    return names;
}

} // namespace zqbchwcx::qt
