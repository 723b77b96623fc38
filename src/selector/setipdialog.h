#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class SetIpDialog;
}

/// Asks for the address that a camera is to have, beside the configuration of the adapter it was found on.
/// Each change of address or mask is checked against the adapter and the result told in words.
///
/// Addresses have the first octet in the highest byte, MAC addresses the first byte in the highest of the six
/// low bytes. An empty field stands for 0.
class SetIpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SetIpDialog(QWidget* parent = nullptr);
    ~SetIpDialog() override;

    quint32 ipAddress() const;
    quint32 netmask() const;
    quint32 gateway() const;

    /// What the last check found.
    bool isIpValid() const { return m_ipValid; }
    bool isMaskValid() const { return m_maskValid; }

public slots:
    void setMACAddress(quint64 value);
    void setIPAddress(quint32 value);
    void setNetmask(quint32 value);
    void setGateway(quint32 value);
    void setNicMACAddress(quint64 value);
    void setNicIPAddress(quint32 value);
    void setNicNetmask(quint32 value);
    void checkSubnet();

private:
    Q_DISABLE_COPY(SetIpDialog)

    void markReadOnlyFields();
    void alignFields();

    const std::unique_ptr<Ui::SetIpDialog> m_ui;
    bool m_ipValid = false;
    bool m_maskValid = false;
};
