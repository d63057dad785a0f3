// Adds to the main window what its form does not have: icons, shortcuts, a target for dropped files, and the summary.
#pragma once

namespace orby {

class MainWindow;
class QtWindows;

// Call it after ShowMain. Both must exist as long as the window is on the screen.
void FurnishMainWindow(QtWindows& windows, MainWindow& model);

}  // namespace orby
