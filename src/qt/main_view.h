// What the main window has beyond its form: icons, shortcuts, and files dropped on it.
#pragma once

#include <QMainWindow>

namespace orby {

class MainWindow;

// Both must live as long as the window is on the screen.
void DressMainWindow(QMainWindow& window, MainWindow& model);

}  // namespace orby
