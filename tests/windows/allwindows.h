#pragma once

#include <ZetoCameraApi.h>

#include <QMetaType>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

/// One of the library's windows, for tests that are the same for all of them.
struct WindowKind
{
    const char* name;
    std::function<std::unique_ptr<QWidget>(ZetoCam::System& system, ZetoCam::Device& device)> make;
    bool isOpenedByAnother = false; ///< it is no window that a host makes
};

Q_DECLARE_METATYPE(WindowKind)

/// Every window that the library can show, message boxes apart.
const std::vector<WindowKind>& allWindows();

/// A row of test data for each window.
void addAllWindows();

/// The parts of \a window that a person sees and that are not made by Qt out of other widgets.
QList<QWidget*> partsOf(const QWidget& window);
