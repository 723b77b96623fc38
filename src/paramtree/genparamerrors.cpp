#include "genparamerrors.h"

#include "genapiguard.h"

#include <utility>

namespace {

/// The feature's name or display name; empty when a failing camera does not even tell that.
QString nameOf(GenApi::IValue& feature)
{
    const auto node = [&feature]() -> GenApi::INode& { return nodeOf(feature); };
    QString name = genApiOr(QString(), [&] { return fromGenApi(node().GetName()); });
    if (!name.isEmpty())
        return name;
    return genApiOr(QString(), [&] { return fromGenApi(node().GetDisplayName()); });
}

} // namespace

GenParamErrors::GenParamErrors(Appeared appeared, Disappeared disappeared)
    : m_appeared(std::move(appeared))
    , m_disappeared(std::move(disappeared))
{
}

void GenParamErrors::readFailed(GenApi::IValue& feature, const QString& reason)
{
    add(feature, reason, Origin::Read);
}

void GenParamErrors::writeFailed(GenApi::IValue& feature, const QString& reason)
{
    add(feature, reason, Origin::Write);
}

void GenParamErrors::readSucceeded(const GenApi::IValue& feature, bool valueChanged)
{
    const auto entry = m_entries.constFind(&feature);
    if (entry != m_entries.constEnd() && (entry->origin == Origin::Read || valueChanged))
        remove(feature);
}

void GenParamErrors::writeSucceeded(const GenApi::IValue& feature)
{
    remove(feature);
}

QString GenParamErrors::reason(const GenApi::IValue& feature) const
{
    return m_entries.value(&feature).reason;
}

void GenParamErrors::add(GenApi::IValue& feature, const QString& reason, Origin origin)
{
    const auto entry = m_entries.constFind(&feature);
    if (entry != m_entries.constEnd() && entry->reason == reason && entry->origin == origin)
        return;
    remove(feature);
    QString name = nameOf(feature);
    if (name.isEmpty())
        name = QStringLiteral("?%1").arg(++m_unnamed);
    m_entries.insert(&feature, {name, reason, origin});
    m_appeared(name, reason);
}

void GenParamErrors::remove(const GenApi::IValue& feature)
{
    const auto entry = m_entries.constFind(&feature);
    if (entry == m_entries.constEnd())
        return;
    const QString name = entry->name;
    m_entries.erase(entry);
    m_disappeared(name);
}
