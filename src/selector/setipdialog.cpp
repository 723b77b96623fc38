#include "setipdialog.h"

#include "addresstext.h"
#include "applicationlanguage.h"
#include "camerainfo.h"
#include "ip4validator.h"
#include "subnetcheck.h"
#include "ui_setipdialog.h"

#include <algorithm>

namespace {

QString resultText(SubnetCheck::Result result)
{
    switch (result) {
    case SubnetCheck::Good:
        return SetIpDialog::tr("IP Configuration OK");
    case SubnetCheck::MaskMismatch:
        return SetIpDialog::tr("Subnet mask mismatch!");
    case SubnetCheck::BadAddress:
        return SetIpDialog::tr("Incorrect IP address!");
    case SubnetCheck::SubnetMismatch:
        break;
    }
    return SetIpDialog::tr("Subnet IP mismatch!");
}

QString resultStyle(SubnetCheck::Result result)
{
    return result == SubnetCheck::Good ? QStringLiteral("color: rgb(0, 192, 0);")
                                       : QStringLiteral("color: rgb(255, 0, 0);");
}

quint32 addressIn(const QLineEdit* field)
{
    return ipv4FromText(field->text());
}

} // namespace

SetIpDialog::SetIpDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::SetIpDialog>())
{
    ZetoGui::useApplicationLanguage();
    m_ui->setupUi(this);
    auto* const validator = new IP4Validator(this);
    for (QLineEdit* field : {m_ui->ipAddressLineEdit, m_ui->subnetMaskLineEdit, m_ui->defaultGatewayLineEdit})
        field->setValidator(validator);
    for (QLineEdit* field : {m_ui->ipAddressLineEdit, m_ui->subnetMaskLineEdit})
        connect(field, &QLineEdit::textChanged, this, &SetIpDialog::checkSubnet);
    markReadOnlyFields();
    alignFields();
    m_ui->ipAddressLineEdit->setFocus();
}

SetIpDialog::~SetIpDialog() = default;

/// A field that only shows something has the colour of its surroundings.
void SetIpDialog::markReadOnlyFields()
{
    QPalette faded = palette();
    faded.setBrush(QPalette::Base, faded.window());
    const QList<QLineEdit*> fields = findChildren<QLineEdit*>();
    for (QLineEdit* const field : fields) {
        if (field->isReadOnly())
            field->setPalette(faded);
    }
}

/// Lets the fields of both groups begin at the same place and show a whole MAC address.
void SetIpDialog::alignFields()
{
    int widest = 0;
    for (const QLabel* label :
         {m_ui->nicMacLabel, m_ui->nicIpAddressLabel, m_ui->nicSubnetLabel, m_ui->macAddressLabel,
          m_ui->ipAddressLabel, m_ui->subnetMaskLabel, m_ui->defaultGatewayLabel})
        widest = std::max(widest, label->sizeHint().width());
    const int frame = fontMetrics().height();
    const int mac = fontMetrics().horizontalAdvance(capitalMacText(0xDDDDDDDDDDDD)) + frame;
    for (QGridLayout* group : {m_ui->gridLayout, m_ui->gridLayout_2}) {
        group->setColumnMinimumWidth(0, widest);
        group->setColumnMinimumWidth(1, mac);
    }
}

quint32 SetIpDialog::ipAddress() const
{
    return addressIn(m_ui->ipAddressLineEdit);
}

quint32 SetIpDialog::netmask() const
{
    return addressIn(m_ui->subnetMaskLineEdit);
}

quint32 SetIpDialog::gateway() const
{
    return addressIn(m_ui->defaultGatewayLineEdit);
}

void SetIpDialog::setMACAddress(quint64 value)
{
    m_ui->macAddressLineEdit->setText(capitalMacText(value));
}

void SetIpDialog::setIPAddress(quint32 value)
{
    m_ui->ipAddressLineEdit->setText(ipv4Text(value));
}

void SetIpDialog::setNetmask(quint32 value)
{
    m_ui->subnetMaskLineEdit->setText(ipv4Text(value));
}

void SetIpDialog::setGateway(quint32 value)
{
    m_ui->defaultGatewayLineEdit->setText(ipv4Text(value));
}

void SetIpDialog::setNicMACAddress(quint64 value)
{
    m_ui->nicMacLineEdit->setText(capitalMacText(value));
}

void SetIpDialog::setNicIPAddress(quint32 value)
{
    m_ui->nicIpLineEdit->setText(ipv4Text(value));
}

void SetIpDialog::setNicNetmask(quint32 value)
{
    m_ui->nicSubnetMaskLineEdit->setText(ipv4Text(value));
}

void SetIpDialog::checkSubnet()
{
    const NetworkPlace adapter = {addressIn(m_ui->nicIpLineEdit), addressIn(m_ui->nicSubnetMaskLineEdit)};
    const SubnetCheck check = ::checkSubnet({ipAddress(), netmask()}, adapter);
    m_ipValid = check.isAddressValid;
    m_maskValid = check.isMaskValid;
    m_ui->ipStatusLabel->setText(resultText(check.result));
    m_ui->ipStatusLabel->setStyleSheet(resultStyle(check.result));
}
