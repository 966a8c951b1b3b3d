#pragma once

#include "app/document/Document.h"

#include <QString>

namespace quillon_ed {

/// The path, without an ending, that a file made from the document is proposed to have: beside the station's own file,
/// or in the other folder when there is none, or no folder of it any more; without a file under the station's name.
QString ProposedName(const Document& document, const QString& otherFolder);

} // namespace quillon_ed
