#pragma once

#include "opencamera.h"
#include "page.h"

/// A \a Dialog of the configuration tool on the camera that the options name.
template <typename Dialog>
class CamConfigPage final : public Page
{
public:
    explicit CamConfigPage(const Options& options)
        : m_camera(options.camera)
        , m_dialog(m_camera.device())
    {
    }

    QWidget& window() override { return m_dialog; }

private:
    const OpenCamera m_camera; // outlives the dialog
    Dialog m_dialog;
};

template <typename Dialog>
std::unique_ptr<Page> makeCamConfigPage(const Options& options)
{
    return std::make_unique<CamConfigPage<Dialog>>(options);
}
