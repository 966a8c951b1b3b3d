#pragma once

#include <QObject>

namespace quillon_ed {

/// Ends the event loop when the user (Ctrl+C) or the system asks the program to end. One at a time; needs an
/// application object.
class EndBySignal : public QObject {
public:
    EndBySignal();
    ~EndBySignal() override;
    EndBySignal(const EndBySignal&) = delete;
    EndBySignal& operator=(const EndBySignal&) = delete;
};

} // namespace quillon_ed
