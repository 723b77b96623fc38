#include "gallerypage.h"

#include "widgetgallery.h"

namespace {

class GalleryPage final : public Page
{
public:
    QWidget& window() override { return m_gallery; }

private:
    WidgetGallery m_gallery;
};

} // namespace

std::unique_ptr<Page> makeGalleryPage(const Options&)
{
    return std::make_unique<GalleryPage>();
}
