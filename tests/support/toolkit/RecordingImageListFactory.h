#pragma once

#include "platform/ImageList.h"
#include "tests/support/toolkit/RecordingImageList.h"

namespace zqbchwcx::testing {

class RecordingImageListFactory : public ImageListFactory {
public:
    explicit RecordingImageListFactory(CallLogPtr log) : moLog(std::move(log)) {}

    ImageListPtr Create(std::intptr_t /*hInstance*/, std::string_view stripName, std::int32_t lCellWidth,
                        std::int32_t /*lReserved*/, OleColor /*maskColor*/, std::int32_t /*lFlags*/) override
    {
        moLog->Call("ImageListFactory.Create");
        created.push_back(std::string(stripName) + " " + std::to_string(lCellWidth));
        return std::make_shared<RecordingImageList>(moLog, files);
    }

    std::vector<std::string> created;
    std::shared_ptr<FakePictureFiles> files = std::make_shared<FakePictureFiles>();

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
