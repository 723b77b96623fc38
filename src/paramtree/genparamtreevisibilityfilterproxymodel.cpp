#include "genparamtreevisibilityfilterproxymodel.h"

#include "genapiguard.h"
#include "genparamtreemodel.h"

GenParamTreeVisibilityFilterProxyModel::GenParamTreeVisibilityFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
    , m_namePattern(QStringLiteral("*"), Qt::CaseInsensitive, QRegExp::WildcardUnix)
{
}

void GenParamTreeVisibilityFilterProxyModel::setNameCaseSensitivity(Qt::CaseSensitivity sensitivity)
{
    m_namePattern.setCaseSensitivity(sensitivity);
    filterAgain();
}

void GenParamTreeVisibilityFilterProxyModel::setWholeWord(bool wholeWord)
{
    m_wholeWord = wholeWord;
    filterAgain();
}

void GenParamTreeVisibilityFilterProxyModel::setFilterVisibility(int _visibility)
{
    m_visibility = _visibility;
    filterAgain();
}

void GenParamTreeVisibilityFilterProxyModel::setFilterText(const QString& text)
{
    m_namePattern.setPattern(text);
    filterAgain();
}

void GenParamTreeVisibilityFilterProxyModel::setSourceModel(QAbstractItemModel* model)
{
    QSortFilterProxyModel::setSourceModel(model);
    if (!model)
        return;
    // The columns of a parameter tree never move. And once something is disconnected, Qt gives back the lists
    // of connections that it outgrew, more than a kilobyte.
    disconnect(model, &QAbstractItemModel::columnsAboutToBeMoved, this, nullptr);
    disconnect(model, &QAbstractItemModel::columnsMoved, this, nullptr);
}

int GenParamTreeVisibilityFilterProxyModel::rowCount(const QModelIndex& parent) const
{
    // The base class makes a mapping for every row that it is asked about, a quarter of a kilobyte each, and
    // drops them all when the filter changes.
    return neverHasRows(parent) ? 0 : QSortFilterProxyModel::rowCount(parent);
}

Qt::ItemFlags GenParamTreeVisibilityFilterProxyModel::flags(const QModelIndex& index) const
{
    // A view that expands everything takes down each row that might have others below it.
    const Qt::ItemFlags flags = QSortFilterProxyModel::flags(index);
    return index.column() == 0 && neverHasRows(index) ? flags | Qt::ItemNeverHasChildren : flags;
}

bool GenParamTreeVisibilityFilterProxyModel::neverHasRows(const QModelIndex& index) const
{
    return index.isValid() && sourceModel()->rowCount(mapToSource(index)) == 0;
}

void GenParamTreeVisibilityFilterProxyModel::filterAgain()
{
    // invalidateFilter() would remove row by row, which walks every expanded category for each interval:
    // twenty times slower on ten thousand rows.
    invalidate();
}

bool GenParamTreeVisibilityFilterProxyModel::filterAcceptsRow(int sourceRow,
                                                              const QModelIndex& sourceParent) const
{
    const QVariant payload = sourceModel()->index(sourceRow, 0, sourceParent).data(Qt::UserRole);
    auto* feature = payload.value<GenApi::IValue*>();
    return !feature || genApiOr(true, [&] { return accepts(*feature); });
}

bool GenParamTreeVisibilityFilterProxyModel::accepts(GenApi::IValue& feature) const
{
    const auto& node = nodeOf(feature);
    if (node.GetVisibility() > m_visibility)
        return false;
    if (node.GetPrincipalInterfaceType() != GenApi::intfICategory && !showsEveryName() &&
        !matchesName(fromGenApi(node.GetDisplayName())))
        return false;
    // Last, because it alone may go to the camera.
    return GenApi::IsImplemented(&feature);
}

bool GenParamTreeVisibilityFilterProxyModel::showsEveryName() const
{
    return m_namePattern.isEmpty() || m_namePattern.pattern() == QLatin1String("*");
}

bool GenParamTreeVisibilityFilterProxyModel::matchesName(const QString& displayName) const
{
    return m_wholeWord ? m_namePattern.exactMatch(displayName) : m_namePattern.indexIn(displayName) >= 0;
}
