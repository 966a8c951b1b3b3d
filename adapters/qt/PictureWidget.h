#pragma once

#include "zqbchwcx/qt/PersistentPicture.h"

#include <QWidget>

namespace zqbchwcx::qt {

/// A window that shows a persistent picture.
class PictureWidget : public QWidget {
    Q_OBJECT
public:
    PictureWidget(QWidget& parent, Qt::WindowFlags flags, const Rect& rect);

    PersistentPicture& Picture() { return mPicture; }
    /// Shows what has been drawn since the last time.
    void ShowChanges();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Remember(const QRect& device);

    PersistentPicture mPicture;
    QRect mChanged;
    bool mbShowPosted = false;
};

} // namespace zqbchwcx::qt
