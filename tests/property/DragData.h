#pragma once

#include "platform/PictureBox.h"
#include "tests/support/services/FakeDataObject.h"

#include <memory>
#include <utility>

namespace zqbchwcx::testing {

/// What a drag carries: a format that was only announced is asked of the drag's source when a target wants its data.
class DragData : public FakeDataObject, public std::enable_shared_from_this<DragData> {
public:
    DragData(CallLogPtr log, PictureBoxEvents& source) : FakeDataObject(std::move(log)), moSource(source) {}

    ByteArray GetData(std::int16_t nFormat) const override
    {
        const auto found = formats.find(nFormat);
        if (found != formats.end() && found->second.empty())
            moSource.OLESetData(std::const_pointer_cast<DragData>(shared_from_this()), nFormat);
        return FakeDataObject::GetData(nFormat);
    }

private:
    PictureBoxEvents& moSource;
};

} // namespace zqbchwcx::testing
