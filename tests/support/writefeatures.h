#pragma once

#include <GenApi/GenApi.h>

#include <QByteArray>

/// "A=1 B=two Start!" writes these values and executes the command, in turn.
inline void writeFeatures(GenApi::INodeMap& map, const QByteArray& writes)
{
    for (const QByteArray& each : writes.split(' ')) {
        const int nameLength = each.indexOf(each.endsWith('!') ? '!' : '=');
        GenApi::INode* const node = map.GetNode(each.left(nameLength).constData());
        if (each.endsWith('!'))
            GenApi::CCommandPtr(node)->Execute();
        else if (!each.isEmpty())
            GenApi::CValuePtr(node)->FromString(each.mid(nameLength + 1).constData());
    }
}
