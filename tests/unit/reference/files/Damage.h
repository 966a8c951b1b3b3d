#pragma once

#include "tests/support/Samples.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <span>

namespace zqbchwcx::reference {

/// One thing that is wrong in a file, and what is said of it.
struct Damage {
    const char* where; ///< the member that is replaced or added
    const char* value; ///< its JSON text; empty to remove it
    const char* pointer;
    const char* reason;
};

/// Reads the valid text, and then each damaged one, which must be refused with file name, pointer and reason.
inline void ExpectEachRefused(const nlohmann::ordered_json& valid, std::span<const Damage> damages,
                              const std::string& fileName, const std::function<void(const std::string& text)>& read)
{
    EXPECT_EQ(ErrorOf([&] { read(valid.dump()); }).reason, "no error");
    for (const Damage& damage : damages) {
        SCOPED_TRACE(std::string(damage.where) + " " + damage.value);
        nlohmann::ordered_json json = valid;
        const nlohmann::ordered_json::json_pointer where(damage.where);
        if (*damage.value) json[where] = nlohmann::ordered_json::parse(damage.value);
        else json[where.parent_pointer()].erase(where.back());
        const FileError error = ErrorOf([&] { read(json.dump()); });
        EXPECT_EQ(error.fileName, fileName);
        EXPECT_EQ(error.pointer, damage.pointer);
        EXPECT_THAT(error.reason, ::testing::HasSubstr(damage.reason));
        EXPECT_THAT(error.what(), ::testing::HasSubstr(fileName + ": " + damage.pointer));
    }
}

} // namespace zqbchwcx::reference
