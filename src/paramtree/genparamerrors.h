#pragma once

#include <GenApi/GenApi.h>

#include <QHash>
#include <QString>

#include <functional>

/// The features of a model that are in error at the moment, each with what was reported about it.
///
/// Keeps reports in pairs: a feature appears once, and before it can appear again, for example with another
/// reason, it disappears. Names are remembered, so that both reports of a pair carry the same one.
class GenParamErrors
{
public:
    using Appeared = std::function<void(const QString& name, const QString& reason)>;
    using Disappeared = std::function<void(const QString& name)>;

    GenParamErrors(Appeared appeared, Disappeared disappeared);

    void readFailed(GenApi::IValue& feature, const QString& reason);
    void writeFailed(GenApi::IValue& feature, const QString& reason);

    /// A good read ends a failed one. A refused write stands until the value has become another, so that the
    /// next refresh does not take it from the person's eyes.
    void readSucceeded(const GenApi::IValue& feature, bool valueChanged);
    void writeSucceeded(const GenApi::IValue& feature);

    /// What was reported about \a feature; null when it is not in error.
    QString reason(const GenApi::IValue& feature) const;

private:
    enum class Origin : quint8
    {
        Read,
        Write
    };
    struct Entry
    {
        QString name;
        QString reason;
        Origin origin;
    };

    void add(GenApi::IValue& feature, const QString& reason, Origin origin);
    void remove(const GenApi::IValue& feature);

    Appeared m_appeared;
    Disappeared m_disappeared;
    QHash<const GenApi::IValue*, Entry> m_entries;
    int m_unnamed = 0; ///< features that were given a number for a name
};
