#include "aboutdialog.h"

#include "featuretext.h"
#include "featuretooltip.h"
#include "timebudget.h"
#include "ui_zetocamconfigaboutdialog.h"

#include <QDate>

namespace ZetoGui {
namespace {

// Widths of the columns in characters
constexpr int TextWidth = 40;
constexpr int NumberWidth = 12;

std::unique_ptr<Ui::ZetoCamConfigAboutDialog> formOn(QDialog& dialog)
{
    auto form = std::make_unique<Ui::ZetoCamConfigAboutDialog>();
    form->setupUi(&dialog);
    return form;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(formOn(*this))
    , m_lines{
          {m_ui->lineEditDeviceVendorName, "DeviceVendorName"},
          {m_ui->lineEditDeviceModelName, "DeviceModelName"},
          {m_ui->lineEditDeviceFamilyName, "DeviceFamilyName"},
          {m_ui->lineEditDeviceVersion, "DeviceVersion"},
          {m_ui->lineEditDeviceFirmwareVersion, "DeviceFirmwareVersion"},
          {m_ui->lineEditDeviceManufacturerInfo, "DeviceManufacturerInfo"},
          {m_ui->lineEditDeviceSerialNumber, "DeviceSerialNumber"},
          {m_ui->lineEditDeviceUserID, "DeviceUserID"},
          {m_ui->lineEditSensorType, "SensorType"},
          {m_ui->lineEditRgsID, "RgsID"},
          {m_ui->lineEditFpgaID, "FpgaID"},
          {m_ui->lineEditEpcsID, "EpcsID"},
          {m_ui->lineEditFirmwareImage, "FirmwareImage"},
          {m_ui->lineEditCustomerID, "CustomerID"},
          {m_ui->lineEditFamilyID, "FamilyID"},
          {m_ui->lineEditXmlVersion, "XmlVersion"},
      }
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const int character = fontMetrics().averageCharWidth();
    m_ui->gridCamera->setColumnMinimumWidth(1, TextWidth * character);
    m_ui->gridCamera->setColumnMinimumWidth(3, NumberWidth * character);
    m_ui->buttonBox->setFocus();
    showProgram();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::showProgram()
{
    m_ui->lblApplicationName->setText(QStringLiteral("ZetoCameraConfiguration"));
    m_ui->lblVersion->setText(QStringLiteral("2.0.1 (build 1203) "));
    m_ui->lblLegalNotice->setText(
        tr("%1 %2 Zeto. All rights reserved.").arg(QChar(0x00A9)).arg(QDate::currentDate().year()));
}

void AboutDialog::setCamera(ZetoGenParam::Array* params)
{
    m_params = params;
    m_next = params ? 0 : m_lines.size();
    for (const Line& line : m_lines)
        showText(line, params ? QString() : featureText(nullptr, line.feature));
}

void AboutDialog::read(const TimeBudget& budget)
{
    for (bool isFirst = true; m_next < m_lines.size() && (isFirst || !budget.isSpent()); isFirst = false) {
        const Line& line = m_lines[m_next++];
        showText(line, featureText(m_params, line.feature));
    }
}

/// From its start, and all of it in the tool tip.
void AboutDialog::showText(const Line& line, const QString& text)
{
    line.edit->setText(text);
    line.edit->setCursorPosition(0);
    line.edit->setToolTip(plainToolTip(text));
}

} // namespace ZetoGui
