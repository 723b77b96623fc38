#include "bareparams.h"

#include <benchmark/benchmark.h>

namespace {

void readInt(ZetoGenParam::Int& param)
{
    benchmark::DoNotOptimize(param.GetMax(nullptr) + param.GetMin(nullptr) + param.GetIncrement(nullptr) +
                             param.GetValue(nullptr));
}

void readEnum(ZetoGenParam::Enum& param)
{
    const uint64_t count = param.GetEntriesCount();
    for (uint64_t i = 0; i < count; ++i) {
        ZetoGenParam::EnumEntry* const entry = param.GetEntry(i);
        benchmark::DoNotOptimize(entry->GetSymbolic());
        benchmark::DoNotOptimize(entry->IsAvailable());
    }
    benchmark::DoNotOptimize(param.GetValueStr(nullptr));
}

} // namespace

void readParam(ZetoGenParam::Param& param)
{
    benchmark::DoNotOptimize(param.IsAvailable() && param.IsReadable() && param.IsWritable());
    if (auto* const number = dynamic_cast<ZetoGenParam::Int*>(&param))
        readInt(*number);
    else if (auto* const enumeration = dynamic_cast<ZetoGenParam::Enum*>(&param))
        readEnum(*enumeration);
    else if (auto* const boolean = dynamic_cast<ZetoGenParam::Boolean*>(&param))
        benchmark::DoNotOptimize(boolean->GetValue(nullptr));
}

void bindBarely(ZetoGenParam::Array& array, const std::vector<std::string>& names)
{
    BareSink sink;
    for (const std::string& name : names) {
        if (ZetoGenParam::Param* const param = array.GetParam(name.c_str(), nullptr)) {
            param->RegisterEventSink(&sink);
            readParam(*param);
            param->UnregisterEventSink(&sink);
        }
    }
}
