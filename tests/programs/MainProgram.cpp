// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/BusyOverlay.h"
#include "app/QuorrelMain.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QTimer>

#include <iostream>

/// The whole program, with a user who dismisses the boxes, tells what he sees of the window, and closes it.
namespace {
void Look()
{
    if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        std::cout << "dialog\n";
        dialog->reject();
    } else {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const window = qobject_cast<QMainWindow*>(widget);
                window != nullptr && window->isVisible() && window->findChild<BusyOverlay*>() == nullptr) {
                auto const title = window->windowTitle().section("  ", 0, 0);
                auto const project = title.startsWith('[') ? ' ' + title : QString();
                std::cout << "window " << window->objectName().toStdString()
                          << (window->isMaximized() ? " maximised" : " normal") << project.toStdString()
                          << '\n';
                window->close();
                return;
            }
        }
    }
    QTimer::singleShot(10, Look);
}

void ArrangeLook()
{
    QTimer::singleShot(10, Look);
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(ArrangeLook)

int main(int argc, char** argv)
{
    return qMain(argc, argv);
}
