#pragma once

#include "tests/support/services/CallLog.h"
#include "tests/support/toolkit/FakeImage.h"

#include <set>

namespace zqbchwcx::testing {

/// The picture files that exist, by full path, and those that were asked for.
struct FakePictureFiles {
    std::set<std::string> existing;
    std::vector<std::string> asked;
};

class RecordingImageList : public ImageList, public Logged {
public:
    RecordingImageList(CallLogPtr log, std::shared_ptr<FakePictureFiles> files)
        : Logged(std::move(log)), moFiles(std::move(files))
    {
    }

    std::int32_t Count() const override { return static_cast<std::int32_t>(mcolKeys.size()); }
    void Key(std::int32_t /*lIndex*/, std::string_view key) override { Call("ImageList.Key"), mcolKeys.emplace(key); }
    bool Contains(std::string_view key) const override { return Answer("ImageList.Contains", mcolKeys.contains(key)); }
    bool AddFile(std::string_view path, std::string_view key) override
    {
        moFiles->asked.emplace_back(path);
        Call("ImageList.AddFile");
        return moFiles->existing.contains(std::string(path)) && mcolKeys.emplace(key).second;
    }

    FakeImage At(std::string_view key) const
    {
        if (!mcolKeys.contains(key)) throw VxError(vxErrorInvalidArgument, "There is no image " + std::string(key));
        return FakeImage(std::string(key));
    }

private:
    std::shared_ptr<FakePictureFiles> moFiles;
    std::set<std::string, std::less<>> mcolKeys;
};

class RecordingImageListFactory : public ImageListFactory, public Logged {
public:
    using Logged::Logged;

    ImageListPtr Create(std::intptr_t /*hInstance*/, std::string_view stripName, std::int32_t lCellWidth,
                        std::int32_t /*lReserved*/, OleColor /*maskColor*/, std::int32_t /*lFlags*/) override
    {
        Call("ImageListFactory.Create");
        created.push_back(std::string(stripName) + " " + std::to_string(lCellWidth));
        return std::make_shared<RecordingImageList>(moLog, files);
    }

    ImageListPtr CreateEmpty(Size cell, OleColor /*maskColor*/) override
    {
        Call("ImageListFactory.CreateEmpty");
        created.push_back("empty " + std::to_string(cell.width) + "x" + std::to_string(cell.height));
        return std::make_shared<RecordingImageList>(moLog, files);
    }
    void AddStrip(ImageList& /*list*/, std::intptr_t /*hInstance*/, std::string_view stripName) override
    {
        Call("ImageListFactory.AddStrip");
        created.emplace_back(stripName);
    }

    std::vector<std::string> created;
    std::shared_ptr<FakePictureFiles> files = std::make_shared<FakePictureFiles>();
};

} // namespace zqbchwcx::testing
