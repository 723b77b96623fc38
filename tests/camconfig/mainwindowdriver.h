#pragma once

#include "childof.h"

#include <ZetoCameraGuiApi/zetocamconfig.h>

#include <QDialog>
#include <QString>

#include <functional>

/// What a person sees of the configuration tool's main window and does with it.
namespace MainWindowDriver {

/// The lines of the information block, for example "4096x3072 25.00 10000 40000"; of Frame B behind a '|'
/// when its column is there.
QString informationIn(const ZetoGui::ZetoCamConfig& window);

QString statusIn(const ZetoGui::ZetoCamConfig& window);

/// Lets the time of one refresh pass.
void tick(ZetoGui::ZetoCamConfig& window);

void trigger(const ZetoGui::ZetoCamConfig& window, const char* action);

/// The open dialog of a class, or null.
template <typename Dialog>
Dialog* dialogOf(const ZetoGui::ZetoCamConfig& window)
{
    Dialog* const dialog = window.findChild<Dialog*>();
    return dialog && dialog->isVisible() ? dialog : nullptr;
}

/// Calls \a answer with the next modal dialog of \a className that is shown.
void whenAsked(const char* className, const std::function<void(QDialog&)>& answer);

/// Chooses the camera with an id in the camera selector dialog and presses Ok.
void choose(QDialog& selector, const QString& cameraId);

} // namespace MainWindowDriver
