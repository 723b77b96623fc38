#include "fakecamera.h"

#include <arv.h>

#include <memory>

std::string fakeCameraDescription()
{
    const std::unique_ptr<ArvFakeCamera, void (*)(gpointer)> camera(arv_fake_camera_new("1"), g_object_unref);
    std::size_t size = 0;
    const char* const xml = arv_fake_camera_get_genicam_xml(camera.get(), &size);
    return {xml, size};
}
