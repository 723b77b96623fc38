#include "descriptioncamera.h"

#include "descriptionnodemap.h"

#include <QFile>

namespace {

using ZetoAravis::DescriptionNodeMap;

class AravisDescriptionCamera final : public BrowsedCamera
{
public:
    explicit AravisDescriptionCamera(std::unique_ptr<DescriptionNodeMap> description)
        : m_description(std::move(description))
    {
    }

    GenApi::INodeMap& nodeMap() const override { return m_description->nodeMap(); }

    QString vendorName() const override { return QString::fromStdString(m_description->vendorName()); }
    QString modelName() const override { return QString::fromStdString(m_description->modelName()); }

private:
    const std::unique_ptr<DescriptionNodeMap> m_description;
};

std::unique_ptr<DescriptionNodeMap> openDemonstration()
{
    QFile file(QStringLiteral(":/descriptions/demo.xml"));
    file.open(QIODevice::ReadOnly); // compiled in
    const QByteArray xml = file.readAll();
    return DescriptionNodeMap::fromXml({xml.constData(), static_cast<std::size_t>(xml.size())});
}

} // namespace

std::unique_ptr<BrowsedCamera> openDescription(const QString& file)
{
    return std::make_unique<AravisDescriptionCamera>(
        file.isEmpty() ? openDemonstration() : DescriptionNodeMap::open(file.toStdString()));
}
