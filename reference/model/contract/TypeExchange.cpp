#include "zqbchwcx/reference/model/contract/TypeExchange.h"

#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/reference/model/configtext/ConfigText.h"

#include <utility>

namespace zqbchwcx::reference {

TypeExchange::TypeExchange(std::int16_t nFormatId, ClipboardPtr oClipboard)
    : mnFormatId(nFormatId), moClipboard(std::move(oClipboard))
{
}

void TypeExchange::LoadData(const ByteArray& data)
{
    if (!IsConfigText(G_DecodeConfigText(data)))
        throw VxError(vxErrorInvalidArgument, "The exchanged data are not a config text of this version");
    mcolBytes = data;
}

void TypeExchange::PutOnClipboard()
{
    if (mcolBytes.empty()) throw VxError(vxErrorInvalidArgument, "There is nothing to be put on the clipboard");
    G_Require(moClipboard, "The clipboard")->Write(ConfigTextName, mcolBytes);
}

} // namespace zqbchwcx::reference
