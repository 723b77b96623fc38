#pragma once

#include <GenApi/GenApi.h>

#include <QRegExp>
#include <QSortFilterProxyModel>

/// Shows the features of a parameter tree that the device implements, that the user's level may see and whose
/// display name matches a wildcard pattern. Categories are not tested against the pattern.
///
/// The source model gives the feature of a row under Qt::UserRole of column 0 as GenApi::IValue*; a row
/// without one is shown. A feature whose visibility or access mode cannot be read is shown too.
///
/// A change of the filter keeps all persistent indexes of rows that stay, and with them the view's expansion
/// and selection. The rows are never sorted.
class GenParamTreeVisibilityFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_DISABLE_COPY(GenParamTreeVisibilityFilterProxyModel)

public:
    explicit GenParamTreeVisibilityFilterProxyModel(QObject* parent = nullptr);

    /// Case-insensitive unless told otherwise.
    void setNameCaseSensitivity(Qt::CaseSensitivity sensitivity);
    /// When set, the pattern must match the whole display name instead of a part of it.
    void setWholeWord(bool wholeWord);

    void setSourceModel(QAbstractItemModel* model) override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Names the rows that never have others below them, beside the flags of the source model.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

public slots:
    /// The highest GenApi visibility that is shown: 0 beginner, 1 expert, 2 guru.
    void setFilterVisibility(int _visibility);
    /// Takes \a text as the wildcard pattern as it stands, "*" at first; an empty text shows every name.
    void setFilterText(const QString& text);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    /// Whether the source model has no rows below \a index, which holds as long as that model.
    bool neverHasRows(const QModelIndex& index) const;
    void filterAgain();
    bool accepts(GenApi::IValue& feature) const;
    bool showsEveryName() const;
    bool matchesName(const QString& displayName) const;

    qint32 m_visibility = 0;
    QRegExp m_namePattern;
    bool m_wholeWord = false;
};
