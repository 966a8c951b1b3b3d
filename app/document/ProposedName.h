#pragma once

#include "app/document/Document.h"

#include <QString>

namespace quillon_ed {

/// The path, without an ending, that a file made from the document is proposed to have: beside the station's own file,
/// or among the user's documents under the station's name.
QString ProposedName(const Document& document);

} // namespace quillon_ed
