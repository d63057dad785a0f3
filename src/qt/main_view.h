// Adds icons, shortcuts, and a target for dropped files to the main window.
#pragma once

#include <QMainWindow>

namespace orby {

class MainWindow;

// Both must exist as long as the window is on the screen.
void AddIconsAndShortcuts(QMainWindow& window, MainWindow& model);

}  // namespace orby
