#pragma once

#include "foundation/VxError.h"
#include "platform/ImageList.h"
#include "tests/support/services/CallLog.h"
#include "tests/support/toolkit/FakeImage.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

/// The picture files that exist, by full path, and those that were asked for.
struct FakePictureFiles {
    std::set<std::string> existing;
    std::vector<std::string> asked;
};

class RecordingImageList : public ImageList {
public:
    RecordingImageList(CallLogPtr log, std::shared_ptr<FakePictureFiles> files)
        : moLog(std::move(log)), moFiles(std::move(files))
    {
    }

    std::int32_t Count() const override { return static_cast<std::int32_t>(mcolImages.size()); }
    void Key(std::int32_t /*lIndex*/, std::string_view key) override
    {
        moLog->Call("ImageList.Key");
        Add(key);
    }
    bool Contains(std::string_view key) const override
    {
        moLog->Call("ImageList.Contains");
        return mcolImages.contains(std::string(key));
    }
    bool AddFile(std::string_view path, std::string_view key) override
    {
        moFiles->asked.emplace_back(path);
        moLog->Call("ImageList.AddFile");
        if (!moFiles->existing.contains(std::string(path))) return false;
        Add(key);
        return true;
    }

    const FakeImage& At(std::string_view key) const
    {
        const auto found = mcolImages.find(std::string(key));
        if (found == mcolImages.end()) throw VxError(vxErrorInvalidArgument, "There is no image " + std::string(key));
        return found->second;
    }

private:
    void Add(std::string_view key) { mcolImages.emplace(key, FakeImage(std::string(key))); }

    CallLogPtr moLog;
    std::shared_ptr<FakePictureFiles> moFiles;
    std::map<std::string, FakeImage> mcolImages;
};

} // namespace zqbchwcx::testing
