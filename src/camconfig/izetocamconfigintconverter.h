#pragma once

#include <cstdint>

namespace ZetoGenParam {
class Int;
}

namespace ZetoGui {

/// Shows an integer feature in other units than the camera's, for example lines as microseconds.
class IZetoCamConfigIntConverter
{
public:
    /// The number to show for the value, bound or increment \a value of \a param.
    virtual int64_t ToWidget(int64_t value, ZetoGenParam::Int* param) = 0;
    /// The value to write for the number \a value that was entered.
    virtual int64_t FromWidget(int64_t value, ZetoGenParam::Int* param) = 0;
    virtual ~IZetoCamConfigIntConverter() = default;
};

} // namespace ZetoGui
