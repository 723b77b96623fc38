#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>

/// The errors of features that are in force, at most one for each feature, and their text.
class FeatureErrors
{
    Q_DECLARE_TR_FUNCTIONS(GenErrorsDlg)

public:
    /// A later error of the same \a feature takes the place of the earlier one and keeps its number.
    void add(const QString& feature, const QString& error);
    void remove(const QString& feature) { m_errors.remove(feature); }
    void clear() { m_errors.clear(); }

    bool isEmpty() const { return m_errors.isEmpty(); }

    /// One line an error, in the order in which they appeared and numbered from 1 on; "No Errors" without
    /// any.
    QString text() const;

private:
    struct Error
    {
        int id = 0;
        QString text;
    };

    QHash<QString, Error> m_errors; // by feature name
    int m_lastId = 0;
};
