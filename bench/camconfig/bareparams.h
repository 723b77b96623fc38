#pragma once

#include <ZetoGenParam.h>

#include <string>
#include <vector>

// What a dialog's work costs when it is done straight on the parameters, without widgets.

/// Reads what a widget shows of \a param: access, value, limits, entries.
void readParam(ZetoGenParam::Param& param);

/// Looks up, registers on, reads and leaves the parameters of these \a names.
void bindBarely(ZetoGenParam::Array& array, const std::vector<std::string>& names);

/// Reads the parameter that has changed.
class BareSink final : public ZetoGenParam::ParamEventSink
{
public:
    void OnParamChanged(ZetoGenParam::Param* param) override { readParam(*param); }
};
