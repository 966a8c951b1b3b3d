#pragma once

#include "tests/unit/app/AppStage.h"

#include "app/window/MainWindow.h"
#include "app/window/Notice.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>

#include <memory>

namespace quillon_ed::testing {

/// The window of the program, and its user.
class WindowStage : public AppStage {
protected:
    WindowStage() : window(std::make_unique<MainWindow>(services)) {}

    QAction* Action(const char* text) const
    {
        for (auto* menu : window->findChildren<QMenu*>())
            for (auto* item : menu->actions())
                if (item->text().remove(u'&') == QString::fromUtf8(text)) return item;
        return nullptr;
    }
    bool IsEnabled(const char* text) const
    {
        const QAction* action = Action(text);
        EXPECT_TRUE(action) << text;
        return action && action->isEnabled();
    }
    /// What the status line tells in place of the focus.
    QLabel& Told() const { return *window->statusBar()->findChild<Notice*>(); }
    QStringList StatusTexts() const
    {
        QStringList texts;
        for (auto* label : window->statusBar()->findChildren<QLabel*>()) texts << label->text();
        return texts;
    }
    void Open(const char* resource = Waterworks) { window->Files().OpenExample(QString::fromLatin1(resource)); }

    /// Presses the button of the next question that has it.
    void Answer(const char* button) const
    {
        auto* timer = new QTimer(window.get());
        QObject::connect(timer, &QTimer::timeout, timer, [timer, text = QString::fromUtf8(button)] {
            const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            for (auto* candidate : box->buttons()) {
                if (candidate->text().remove(u'&') != text) continue;
                timer->stop();
                return candidate->click();
            }
        });
        timer->start(1);
    }

    /// Answers the next question for a file with that one.
    void SaveAs(const QString& file, QString* proposedFolder = nullptr) const
    {
        auto* timer = new QTimer(window.get());
        QObject::connect(timer, &QTimer::timeout, timer, [timer, file, proposedFolder] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            timer->stop();
            if (proposedFolder) *proposedFolder = dialog->directory().absolutePath();
            dialog->selectFile(file);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        timer->start(1);
    }

    std::unique_ptr<MainWindow> window;
};

} // namespace quillon_ed::testing
