// The summary of the project inside the main window.
#pragma once

namespace orby {

class MainWindow;
class QtWindows;

// Shows the summary in its place as soon as the main window has been painted, so that the start does not wait for it.
// Both must exist as long as the window is on the screen.
void ShowSummaryAfterPaint(QtWindows& windows, MainWindow& model);

}  // namespace orby
