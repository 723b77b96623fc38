#pragma once

#include <QString>

#include <ZetoCameraApi.h>

#include <optional>

/// The parameters of an interface, some of which tell about the camera that its selector chooses. What cannot
/// be read, for whatever reason, is not there.
class InterfaceParams
{
public:
    /// The parameters of \a owner, whatever camera they tell about.
    explicit InterfaceParams(ZetoCam::Interface& owner);

    /// Makes the parameters of the camera's interface tell about it; none when that cannot be done.
    static InterfaceParams about(ZetoCam::DeviceInfo& camera);

    std::optional<qint64> integer(const char* name) const;
    std::optional<QString> text(const char* name) const;

private:
    explicit InterfaceParams(ZetoGenParam::Array* array)
        : m_array(array)
    {
    }

    ZetoGenParam::Array* m_array; // null when there is none
};
