#include "featureerrors.h"

#include <QMap>

void FeatureErrors::add(const QString& feature, const QString& error)
{
    Error& entry = m_errors[feature];
    if (entry.id == 0)
        entry.id = ++m_lastId;
    entry.text = error;
}

QString FeatureErrors::text() const
{
    if (isEmpty())
        return tr("No Errors");
    QMap<int, QString> lines;
    for (auto error = m_errors.cbegin(); error != m_errors.cend(); ++error)
        lines.insert(error->id,
                     tr("{%1}{id:%3}: %2 \n").arg(error.key(), error->text, QString::number(error->id)));
    QString all;
    for (const QString& line : qAsConst(lines))
        all += line;
    return all;
}
