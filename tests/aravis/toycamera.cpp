#include "toycamera.h"

#include <QNetworkDatagram>
#include <QUdpSocket>
#include <QtEndian>
#include <QtTest>

namespace {

constexpr int headerSize = 8;

QByteArray bigEndian(quint64 value, int bytes)
{
    QByteArray all(8, 0);
    qToBigEndian(value, all.data());
    return all.right(bytes);
}

QByteArray answer(quint16 answerId, const QByteArray& command, const QByteArray& payload)
{
    return bigEndian(0, 2) + bigEndian(answerId, 2) + bigEndian(quint64(payload.size()), 2) +
           command.mid(6, 2) + payload;
}

quint32 number(const QByteArray& bytes, int at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

} // namespace

ToyCamera::ToyCamera(ZetoAravis::Gvcp::DiscoveryAnswer camera)
    : m_camera(std::move(camera))
{
}

ToyCamera::~ToyCamera()
{
    m_stopping = true;
    if (m_thread.joinable())
        m_thread.join();
}

bool ToyCamera::listen()
{
    m_thread = std::thread([this] { run(); });
    return QTest::qWaitFor([this] { return m_listening.load(); });
}

void ToyCamera::run()
{
    constexpr int tick = 20; // ms
    QUdpSocket socket;
    m_listening = socket.bind(QHostAddress(QHostAddress::AnyIPv4), ZetoAravis::Gvcp::port);
    while (m_listening && !m_stopping) {
        if (!socket.waitForReadyRead(tick))
            continue;
        const QNetworkDatagram command = socket.receiveDatagram();
        const QByteArray reply = answerTo(command.data());
        if (!reply.isEmpty())
            socket.writeDatagram(reply, command.senderAddress(), quint16(command.senderPort()));
    }
}

QByteArray ToyCamera::answerTo(const QByteArray& command)
{
    switch (number(command, 0) & 0xFFFF) {
    case 0x0002:
        return answer(0x0003, command, discoveryAnswer());
    case 0x0080:
        return answer(0x0081, command, bigEndian(m_privilege, 4));
    case 0x0004:
        obey(command.mid(headerSize));
        return {};
    default:
        return {};
    }
}

QByteArray ToyCamera::discoveryAnswer() const
{
    const auto text = [](const std::string& value, int size) {
        return QByteArray::fromStdString(value).leftJustified(size, 0, true);
    };
    QByteArray payload = QByteArray(10, 0) + bigEndian(m_camera.mac, 6) + QByteArray(20, 0);
    for (const quint32 part : {m_camera.address.ip, m_camera.address.mask, m_camera.address.gateway})
        payload += bigEndian(part, 4) + QByteArray(12, 0);
    payload.chop(12);
    return payload + text(m_camera.vendor, 32) + text(m_camera.model, 32) + text(m_camera.version, 32) +
           text({}, 48) + text(m_camera.serialNumber, 16) + text(m_camera.userName, 16);
}

void ToyCamera::obey(const QByteArray& forceAddress)
{
    if (forceAddress.size() == 56 && forceAddress.mid(2, 6) == bigEndian(m_camera.mac, 6))
        m_camera.address = {number(forceAddress, 20), number(forceAddress, 36), number(forceAddress, 52)};
}
