#include "configpage.h"

#include "opencamera.h"

#include <simulatorcontrol.h>

#include <ZetoCameraGuiApi/zetocamconfig.h>

#include <QAction>
#include <QDialog>

#include <stdexcept>

namespace {

/// Nobody could answer the selector in a picture.
QString cameraId(const Options& options)
{
    const bool asks = options.camera.isEmpty() && options.renderDirectory.isEmpty();
    return asks ? QStringLiteral("none") : options.camera;
}

void loseCamera(const QString& id)
{
    ZetoSimulator::SimulatorControl* const simulator = ZetoSimulator_GetControl();
    if (!simulator || !simulator->setCameraPlugged(id.toStdString(), false))
        throw std::runtime_error("Only a simulated camera that is named with --camera can be lost.");
}

class ConfigPage final : public Page
{
public:
    explicit ConfigPage(const Options& options)
        : m_camera(cameraId(options))
        , m_window(m_camera.device())
    {
        if (options.camera == QLatin1String("none"))
            m_window.SetDevice(nullptr); // and do not ask for one
        if (options.lost)
            loseCamera(options.camera);
    }

    QWidget& window() override { return m_window; }

private:
    const OpenCamera m_camera; // outlives the window
    ZetoGui::ZetoCamConfig m_window;
};

class AboutPage final : public Page
{
public:
    explicit AboutPage(const Options& options)
        : m_camera(options.camera)
        , m_config(m_camera.device())
    {
        m_config.findChild<QAction*>(QStringLiteral("actionAbout"))->trigger();
    }

    QWidget& window() override
    {
        return *m_config.findChild<QDialog*>(QStringLiteral("ZetoCamConfigAboutDialog"));
    }

private:
    const OpenCamera m_camera; // outlives the window
    ZetoGui::ZetoCamConfig m_config;
};

} // namespace

std::unique_ptr<Page> makeConfigPage(const Options& options)
{
    return std::make_unique<ConfigPage>(options);
}

std::unique_ptr<Page> makeAboutPage(const Options& options)
{
    return std::make_unique<AboutPage>(options);
}
