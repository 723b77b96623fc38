#include "genparamtreemodel_p.h"

#include "editors/parameditorfactory.h"
#include "genapiguard.h"
#include "genparamwriting.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

/// Tries a few times what must not fail half-way. \return whether it succeeded.
template <typename Call>
bool insist(Call call)
{
    for (int attempt = 0; attempt < 3; ++attempt)
        if (!genApiFault(call))
            return true;
    return false;
}

/// Whether \a value is the text that an editor was given for want of a value.
bool isPlaceholder(const GenParamTreeItem& item, const QVariant& value)
{
    const GenParamState state = item.state;
    // A text only: compared as variants, true equals every text.
    return state != GenParamState::Unread && state != GenParamState::Good &&
           value.userType() == QMetaType::QString && value == editValue(item.kind, item.reading());
}

} // namespace

GenParamTreeModelPrivate::GenParamTreeModelPrivate(GenParamTreeModel* model)
    : q_ptr(model)
    , m_errors(
          [this](const QString& name, const QString& reason) { emit q_ptr->errorAppeared(name, reason); },
          [this](const QString& name) { emit q_ptr->errorDisappeared(name); })
    , m_commands([this](GenApi::IValue& command) { emitDataChanged(*items.primary(&command)); })
{
}

void GenParamTreeModelPrivate::attach(GenApi::INodeMap* nodeMap)
{
    m_nodeMap = nodeMap;
    if (!nodeMap)
        return;
    items.build(*nodeMap);
    int features = 0;
    items.forEachFeature([&features](GenParamTreeItem&) { ++features; });
    m_callbacks.reserve(static_cast<size_t>(features));
    // A change that comes before the last callback is registered is not lost: nothing has been read yet.
    m_isAttached = true;
    items.forEachFeature([this](GenParamTreeItem& item) { registerCallback(*item.value); });
}

void GenParamTreeModelPrivate::registerCallback(GenApi::IValue& feature)
{
    const auto destroy = [](GenApi::CNodeCallback* callback) { callback->Destroy(); };
    genApiFault([&] {
        auto& node = nodeOf(feature);
        std::unique_ptr<GenApi::CNodeCallback, decltype(destroy)> callback(
            GenApi::make_NodeCallback(&node, *this, &GenParamTreeModelPrivate::onNodeChanged,
                                      GenApi::cbPostInsideLock),
            destroy);
        m_callbacks.push_back(node.RegisterCallback(callback.get()));
        static_cast<void>(callback.release()); // the node's from here on
    });
}

void GenParamTreeModelPrivate::detach()
{
    if (!m_nodeMap)
        return;
    // Callbacks run inside this lock: when we have it, none of them is under way.
    std::optional<GenApi::AutoLock> locked;
    insist([&] { locked.emplace(m_nodeMap->GetLock()); });
    m_isAttached = false;
    m_nodeMap = nullptr;
    m_commands.clear();
    if (!deregisterAll()) {
        static std::vector<std::shared_ptr<GenParamTreeModelPrivate>> stillReferred;
        stillReferred.push_back(shared_from_this());
    }
}

bool GenParamTreeModelPrivate::deregisterAll()
{
    bool all = true;
    for (const GenApi::CallbackHandleType handle : m_callbacks)
        all = insist([handle] { GenApi::Deregister(handle); }) && all;
    m_callbacks.clear();
    return all;
}

void GenParamTreeModelPrivate::onNodeChanged(GenApi::INode* node)
{
    if (!m_isAttached)
        return;
    GenParamTreeItem* item = items.primary(dynamic_cast<GenApi::IValue*>(node));
    if (!item)
        return;
    // The writer's call must not be ended by an exception of ours.
    genApiFault([&] {
        const bool isOwnThread = std::this_thread::get_id() == m_thread;
        if (isOwnThread && !m_isCollecting && item != m_written) {
            report(*item, true);
            return;
        }
        items.mark(*item);
        m_hasMarks = true;
        if (!isOwnThread)
            postChanges();
    });
}

void GenParamTreeModelPrivate::postChanges()
{
    if (m_isPosted.exchange(true))
        return;
    const bool failed = bool(genApiFault([this] {
        auto event = std::make_unique<QEvent>(changeEventType());
        m_posts.fetch_add(1, std::memory_order_release);
        QCoreApplication::postEvent(q_ptr, event.release());
    }));
    if (failed) // and only then: the event may have been taken by now
        m_isPosted = false;
}

bool GenParamTreeModelPrivate::isChangeEvent(const QEvent& event) const
{
    static_cast<void>(m_posts.load(std::memory_order_acquire));
    return event.type() == changeEventType();
}

QEvent::Type GenParamTreeModelPrivate::changeEventType()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

void GenParamTreeModelPrivate::takePostedChanges()
{
    m_isPosted = false; // before the marks are taken: a later change posts again
    reportMarked(true);
}

void GenParamTreeModelPrivate::reportMarked(bool compare)
{
    if (!m_hasMarks.exchange(false)) // before the search: a later change is found by the next one
        return;
    std::vector<GenParamTreeItem*> marked;
    items.forEachFeature([this, &marked](GenParamTreeItem& item) {
        if (items.takeMark(item))
            marked.push_back(&item);
    });
    for (GenParamTreeItem* item : marked)
        if (m_isAttached)
            report(*item, compare);
}

void GenParamTreeModelPrivate::report(GenParamTreeItem& item, bool compare)
{
    if (item.state != GenParamState::Unread) {
        if (!compare)
            item.setReading({});
        else if (!read(item))
            return reportLimits(item);
    }
    emitDataChanged(item);
}

/// The value is the same: what else may have changed shows in an open editor alone.
void GenParamTreeModelPrivate::reportLimits(const GenParamTreeItem& item)
{
    if (&item == m_edited)
        emitDataChanged(item, {GenParamTreeModel::ControlRole});
}

void GenParamTreeModelPrivate::emitDataChanged(const GenParamTreeItem& item, const QVector<int>& roles)
{
    if (!m_isAttached)
        return; // given up by a receiver of an error's signal, and the item with it
    const std::vector<GenParamTreeItem*> rows = items.rowsOf(item.value);
    for (GenParamTreeItem* row : rows) {
        if (!m_isAttached)
            return; // given up by a receiver of the signal
        const QModelIndex index = q_ptr->createIndex(items.rowOf(*row), GenParamTreeModel::ValueColumn, row);
        emit q_ptr->dataChanged(index, index, roles);
    }
}

void GenParamTreeModelPrivate::resolveKind(GenParamTreeItem& item) const
{
    if (item.kind != GenParamKind::Unknown)
        return;
    const GenParamFeature feature = featureInUse(*item.value, items.trustsRepresentation());
    item.interface_ = feature.interface_; // but not the value: callbacks look rows up by it on any thread
    item.kind = feature.kind;
}

bool GenParamTreeModelPrivate::ensureRead(GenParamTreeItem& item)
{
    if (item.state == GenParamState::Unread)
        read(item);
    return m_isAttached;
}

bool GenParamTreeModelPrivate::read(GenParamTreeItem& item)
{
    GenParamReading reading;
    const std::optional<QString> fault = genApiFault([&] {
        resolveKind(item);
        readParam(item, reading);
    });
    if (fault)
        reading.state = GenParamState::Failed;
    if (item.kind == GenParamKind::Enumeration && reading.state == GenParamState::Good)
        reading.value = items.shared(std::get<QString>(reading.value));
    const bool differs = !(reading == item.reading());
    item.setReading(std::move(reading));
    if (fault)
        m_errors.readFailed(*item.value, *fault);
    else
        m_errors.readSucceeded(*item.value, differs);
    return differs;
}

QVariant GenParamTreeModelPrivate::valueData(GenParamTreeItem& item, int role)
{
    if (!ensureRead(item))
        return QVariant();
    return role == Qt::EditRole ? editValue(item.kind, item.reading()) : displayTextOf(item);
}

QString GenParamTreeModelPrivate::displayTextOf(GenParamTreeItem& item)
{
    GenParamFormat format;
    if (item.state == GenParamState::Good) {
        if (const auto fault = genApiFault([&] { format = items.format(item); })) {
            item.state = GenParamState::Failed;
            item.shown = GenParamValue();
            m_errors.readFailed(*item.value, *fault);
        }
    }
    if (!m_isAttached)
        return QString(); // given up by a receiver of the error's signal
    if (m_commands.isBusy(*item.value))
        return GenParamTreeModel::tr("Executing...");
    return displayText(item.kind, item.reading(), format);
}

QVariant GenParamTreeModelPrivate::control(GenParamTreeItem& item)
{
    if (!ensureRead(item) || !GenApi::IsWritable(accessMode(item)))
        return QVariant();
    m_edited = &item;
    return QVariant::fromValue(prepareEditor(item, item.state == GenParamState::Good));
}

QVariant GenParamTreeModelPrivate::busyData(GenParamTreeItem& item)
{
    if (!ensureRead(item) || item.kind != GenParamKind::Command)
        return QVariant();
    return m_commands.isBusy(*item.value);
}

GenApi::EAccessMode GenParamTreeModelPrivate::accessMode(const GenParamTreeItem& item) const
{
    if (item.state != GenParamState::Unread)
        return static_cast<GenApi::EAccessMode>(item.accessMode);
    return genApiOr(GenApi::NA, [&item] { return item.value->GetAccessMode(); });
}

bool GenParamTreeModelPrivate::write(GenParamTreeItem& item, const QVariant& value)
{
    const bool taken = !isPlaceholder(item, value) && tryWrite(item, value);
    if (!m_isAttached)
        return taken; // given up by a receiver of a signal of the write
    const bool wasMarked = items.takeMark(item);
    if (taken) {
        // The camera may have rounded: what it holds is read when it is shown.
        item.setReading({});
        m_errors.writeSucceeded(*item.value);
        emitDataChanged(item);
    } else if (wasMarked) {
        report(item, true);
    }
    return taken;
}

bool GenParamTreeModelPrivate::tryWrite(GenParamTreeItem& item, const QVariant& value)
{
    const QScopedValueRollback<const GenParamTreeItem*> writing(m_written, &item);
    bool taken = false;
    bool isWritable = false;
    std::optional<QString> fault = genApiFault([&] {
        resolveKind(item);
        isWritable = GenApi::IsWritable(item.value);
        taken = isWritable && writeParam(item, value);
    });
    if (taken && m_isAttached && item.kind == GenParamKind::Command)
        m_commands.started(*item.value);
    if (!fault && isWritable && !taken)
        fault = GenParamTreeModel::tr("The value does not fit the type of the feature");
    if (fault && m_isAttached)
        m_errors.writeFailed(*item.value, *fault);
    return taken;
}

void GenParamTreeModelPrivate::poll(qint64 elapsed)
{
    if (!m_nodeMap)
        return;
    const QScopedValueRollback<bool> collecting(m_isCollecting, true);
    genApiFault([&] { m_nodeMap->Poll(elapsed); });
}

void GenParamTreeModelPrivate::refresh(GenParamTreeItem& item)
{
    items.takeMark(item);
    if (read(item))
        emitDataChanged(item);
}
