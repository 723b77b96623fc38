#pragma once

#include <QPalette>
#include <QString>

class QWidget;

/// The Fusion style's colours for dark surroundings.
QPalette darkPalette();

/// Shows \a window, waits until it has settled and saves a picture of it as \a folder / \a name .png.
/// \return false, with a message on the error stream, when the file cannot be written.
bool renderWindow(QWidget& window, const QString& folder, const QString& name);
