#pragma once

#include <QObject>

#include <functional>
#include <string>

namespace quillon_ed {

/// Reads standard input, line by line, from inside the event loop. Needs an application object.
class InputLines : public QObject {
public:
    /// The lines come without their ends. The end of the input ends nothing else.
    explicit InputLines(std::function<void(const std::string& line)> take);

private:
    bool ReadSome();

    std::function<void(const std::string&)> mTake;
    std::string msLine; ///< as far as it was read
};

} // namespace quillon_ed
