#pragma once

namespace zqbchwcx::reference {

/// Where the state of a plant comes from. It is given the plant that it tells (`Plant::Take`, `Plant::Lose`) when it is
/// made, and calls nobody else.
class DiagSource {
public:
    virtual ~DiagSource() = default;

    /// Begins to tell the plant; the answers may come later. Of an open source: nothing.
    virtual void Open() = 0;
    /// The plant is not known from now on.
    virtual void Close() = 0;
    /// Asks anew and at once, with all that is known to have changed or not. Of a closed source: nothing.
    virtual void PollNow() = 0;
};

} // namespace zqbchwcx::reference
