#pragma once

class QMainWindow;

/// The size of the main window and the layout of its docks, kept between sessions.
namespace WindowState {

/// Gives @p window, whose docks have names, the state of the last session. Without one, a size that
/// fits the screen.
void Restore(QMainWindow& window);
void Store(const QMainWindow& window);

} // namespace WindowState
