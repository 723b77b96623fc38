#include "setippage.h"

#include "setipdialog.h"

#include <addresstext.h>

namespace {

class SetIpPage final : public Page
{
public:
    explicit SetIpPage(const Options& options)
    {
        m_dialog.setNicMACAddress(0x02005e0a0001);
        m_dialog.setNicIPAddress(ipv4FromText(QStringLiteral("192.168.10.1")));
        m_dialog.setNicNetmask(ipv4FromText(QStringLiteral("255.255.255.0")));
        m_dialog.setMACAddress(0x02005e0a0011);
        m_dialog.setIPAddress(ipv4FromText(options.address));
        m_dialog.setNetmask(ipv4FromText(options.mask));
        m_dialog.setGateway(0);
    }

    QWidget& window() override { return m_dialog; }

private:
    SetIpDialog m_dialog;
};

} // namespace

std::unique_ptr<Page> makeSetIpPage(const Options& options)
{
    return std::make_unique<SetIpPage>(options);
}
