#include "genapiguard.h"

#include <QCoreApplication>

#include <exception>

namespace {

QString orUnknown(const char* description)
{
    if (description && *description)
        return QString::fromUtf8(description);
    return QCoreApplication::translate("GenParamTreeModel", "Unknown Error");
}

} // namespace

QString currentGenApiError()
{
    try {
        throw;
    } catch (const GenICam::GenericException& exception) {
        return orUnknown(exception.GetDescription());
    } catch (const std::exception& exception) {
        return orUnknown(exception.what());
    } catch (...) {
        return orUnknown(nullptr);
    }
}

GenApi::INode& nodeOf(GenApi::IValue& value)
{
    GenApi::INode* node = value.GetNode();
    if (!node)
        throw DYNAMICCAST_EXCEPTION("The value has no node");
    return *node;
}

QString fromGenApi(const GenICam::gcstring& text)
{
    return QString::fromUtf8(text.c_str(), static_cast<int>(text.length()));
}

GenICam::gcstring toGenApi(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return GenICam::gcstring(utf8.constData(), static_cast<size_t>(utf8.size()));
}
