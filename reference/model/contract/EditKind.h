#pragma once

namespace zqbchwcx::reference {

/// What an edit of the station was, for its name in the history.
enum class EditKind { Insert, Move, Delete, Attribute, Parameters };

} // namespace zqbchwcx::reference
