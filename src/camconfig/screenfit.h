#pragma once

class QDialog;

namespace ZetoGui {

/// Gives \a dialog, which is just being shown, the size of its layout, and no more than its screen has room
/// for: a form that is larger is scrolled.
void fitToScreen(QDialog& dialog);

} // namespace ZetoGui
