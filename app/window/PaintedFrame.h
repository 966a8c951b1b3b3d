#pragma once

#include <QMainWindow>

namespace quillon_ed {

/// A main window that stands on the screen, painted but empty, as soon as it is made: a derived class builds what it
/// holds behind that. The first text alone takes longer than the frame, because it loads the fonts.
class PaintedFrame : public QMainWindow {
public:
    /// The geometry is one that was saved, or empty.
    explicit PaintedFrame(const QByteArray& geometry);

protected:
    /// Refuses: while there is only the frame, the program could not end by it.
    void closeEvent(QCloseEvent* event) override;
};

} // namespace quillon_ed
