#pragma once

#include <ZetoGenParam.h>

#include <QString>

namespace ZetoGui {

inline QString nameOf(ZetoGenParam::EnumEntry& entry)
{
    return QString::fromUtf8(entry.GetSymbolic());
}

/// Name of the entry that the camera holds now, empty when it cannot be read.
inline QString currentEntryName(ZetoGenParam::Enum& param)
{
    int32_t ignored = 0;
    return QString::fromUtf8(param.GetValueStr(&ignored));
}

inline int64_t currentEntryValue(ZetoGenParam::Enum& param)
{
    int32_t ignored = 0;
    return param.GetValue(&ignored);
}

/// Calls \a visit(index, entry) for each entry up to \a count that there is.
template <typename Visit>
void forEachEntry(ZetoGenParam::Enum& param, uint64_t count, Visit visit)
{
    for (uint64_t index = 0; index < count; ++index) {
        if (ZetoGenParam::EnumEntry* const entry = param.GetEntry(index))
            visit(int(index), *entry);
    }
}

template <typename Visit>
void forEachEntry(ZetoGenParam::Enum& param, Visit visit)
{
    forEachEntry(param, param.GetEntriesCount(), visit);
}

/// The first entry that \a matches, or null.
template <typename Matches>
ZetoGenParam::EnumEntry* findEntry(ZetoGenParam::Enum& param, Matches matches)
{
    ZetoGenParam::EnumEntry* found = nullptr;
    forEachEntry(param, [&](int, ZetoGenParam::EnumEntry& entry) {
        if (!found && matches(entry))
            found = &entry;
    });
    return found;
}

/// Chooses \a entry by its name. Nothing happens when there is none.
inline int32_t choose(ZetoGenParam::Enum& param, ZetoGenParam::EnumEntry* entry)
{
    return entry ? param.SetValueStr(entry->GetSymbolic()) : int32_t(ZetoCam::Success);
}

} // namespace ZetoGui
