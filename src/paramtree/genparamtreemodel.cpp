#include "genparamtreemodel.h"

#include "editors/controldata.h"
#include "genapiguard.h"
#include "genparamtooltip.h"
#include "genparamtreemodel_p.h"

#include <ZetoGenParam.h>

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace {

GenParamTreeItem* itemOf(const QModelIndex& index)
{
    return static_cast<GenParamTreeItem*>(index.internalPointer());
}

GenApi::INodeMap* nodeMapOf(ZetoGenParam::Array* array)
{
    return genApiOr<GenApi::INodeMap*>(nullptr, [array] { return array ? array->GetNodeMap(0) : nullptr; });
}

QString displayName(GenApi::IValue& feature)
{
    return genApiOr(QString(), [&feature] {
        const auto& node = nodeOf(feature);
        const QString name = fromGenApi(node.GetDisplayName());
        return name.isEmpty() ? fromGenApi(node.GetName()) : name;
    });
}

/// Translucent tints, right on light and dark palettes.
QVariant background(const GenParamTreeItem& item)
{
    if (item.state == GenParamState::Failed)
        return QBrush(QColor(255, 0, 0, 72));
    if (item.kind != GenParamKind::Category)
        return QVariant();
    QColor tint = QGuiApplication::palette().color(QPalette::Text);
    tint.setAlpha(28);
    return QBrush(tint);
}

} // namespace

GenParamTreeModel::GenParamTreeModel(GenApi::INodeMap* nodeMap, QObject* parent)
    : QAbstractItemModel(parent)
    , d_ptr(std::make_shared<GenParamTreeModelPrivate>(this))
{
    qRegisterMetaType<QVector<int>>("QVector<int>");
    qRegisterMetaType<GenApi::IValue*>("GenApi::IValue*");
    registerControlTypes();
    d_ptr->attach(nodeMap);
}

GenParamTreeModel::GenParamTreeModel(ZetoGenParam::Array* array, QObject* parent)
    : GenParamTreeModel(nodeMapOf(array), parent)
{
}

GenParamTreeModel::~GenParamTreeModel()
{
    d_ptr->detach();
}

void GenParamTreeModel::detach()
{
    beginResetModel();
    d_ptr->detach();
    d_ptr->items.clear();
    endResetModel();
}

void GenParamTreeModel::refresh(qint64 elapsed, const QModelIndexList& rows)
{
    Q_D(GenParamTreeModel);
    std::vector<GenParamTreeItem*> features;
    for (const QModelIndex& index : rows)
        if (index.isValid() && index.model() == this)
            features.push_back(&d->items.primary(*itemOf(index)));
    std::sort(features.begin(), features.end());
    features.erase(std::unique(features.begin(), features.end()), features.end());

    d->poll(elapsed);
    for (GenParamTreeItem* feature : features)
        if (d->isAttached())
            d->refresh(*feature);
    d->reportMarked(false);
}

QModelIndex GenParamTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    const GenParamTreeItem* above = parent.isValid() ? itemOf(parent) : nullptr;
    return createIndex(row, column, &d_ptr->items.child(above, row));
}

QModelIndex GenParamTreeModel::parent(const QModelIndex& child) const
{
    GenParamTreeItem* parent = child.isValid() ? d_ptr->items.parentOf(*itemOf(child)) : nullptr;
    return parent ? createIndex(d_ptr->items.rowOf(*parent), 0, parent) : QModelIndex();
}

int GenParamTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return d_ptr->items.childCount(nullptr);
    // Only the name carries the rows below it, as views and proxies expect.
    return parent.column() == NameColumn ? d_ptr->items.childCount(itemOf(parent)) : 0;
}

int GenParamTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QVariant GenParamTreeModel::headerData(int section, Qt::Orientation /*orientation*/, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Name");
    case ValueColumn:
        return tr("Value");
    default:
        return QVariant();
    }
}

Qt::ItemFlags GenParamTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (index.column() != ValueColumn)
        return flags;
    const GenParamTreeItem& item = d_ptr->items.primary(*itemOf(index));
    return GenApi::IsWritable(d_ptr->accessMode(item)) ? flags | Qt::ItemIsEditable : flags;
}

QVariant GenParamTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    GenParamTreeItem& item = d_ptr->items.primary(*itemOf(index));
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        if (index.column() == NameColumn)
            return displayName(*item.value);
        return d_ptr->valueData(item, role);
    case Qt::ToolTipRole:
        return paramToolTip(item);
    case Qt::WhatsThisRole:
        return paramDescription(*item.value);
    case Qt::BackgroundRole:
        return background(item);
    case FeatureRole:
        return QVariant::fromValue(item.value);
    case ControlRole:
        return index.column() == ValueColumn ? d_ptr->control(item) : QVariant();
    case ErrorRole:
        return d_ptr->error(item);
    case BusyRole:
        return d_ptr->busyData(item);
    default:
        return QVariant();
    }
}

bool GenParamTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() == NameColumn || role != Qt::EditRole)
        return false;
    return d_ptr->write(d_ptr->items.primary(*itemOf(index)), value);
}

bool GenParamTreeModel::event(QEvent* event)
{
    if (!d_ptr->isChangeEvent(*event))
        return QAbstractItemModel::event(event);
    d_ptr->takePostedChanges();
    return true;
}
