#pragma once

#include "commandwatch.h"
#include "genparamerrors.h"
#include "genparamtreeitems.h"
#include "genparamtreemodel.h"

#include <QEvent>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

/// What the model does with the camera: reads, writes, and the callbacks of the nodes.
///
/// onNodeChanged() runs on any thread, inside the node map's lock. It uses only what does not change between
/// attach() and detach(), and the atomics. Everything else runs on the model's thread.
///
/// Items passed in and out are primary rows, see GenParamTreeItems::primary().
class GenParamTreeModelPrivate : public std::enable_shared_from_this<GenParamTreeModelPrivate>
{
    Q_DECLARE_PUBLIC(GenParamTreeModel)
    Q_DISABLE_COPY(GenParamTreeModelPrivate)

public:
    explicit GenParamTreeModelPrivate(GenParamTreeModel* model);

    /// Builds the rows and registers one callback on each feature.
    void attach(GenApi::INodeMap* nodeMap);
    /// Deregisters the callbacks; none of them runs when it returns. The rows stay.
    void detach();
    bool isAttached() const { return m_isAttached; }

    /// The value of column 1 for the display or edit role.
    QVariant valueData(GenParamTreeItem& item, int role);
    GenApi::EAccessMode accessMode(const GenParamTreeItem& item) const;

    /// An editor for the feature as ControlData; nothing when it cannot be written or has none of its own.
    QVariant control(GenParamTreeItem& item);
    QString error(const GenParamTreeItem& item) const { return m_errors.reason(*item.value); }
    /// Nothing for what is no command.
    QVariant busyData(GenParamTreeItem& item);

    /// \return whether the camera took \a value.
    bool write(GenParamTreeItem& item, const QVariant& value);

    /// Passes the time to the node map. Features that it changes are only marked.
    void poll(qint64 elapsed);
    void refresh(GenParamTreeItem& item);
    /// Reports the features that were marked. With \a compare, a value that was read before is read again
    /// first and reported only when it differs; without, it is forgotten and read when it is asked for.
    void reportMarked(bool compare);
    /// Reports what other threads marked since the last event.
    void takePostedChanges();
    /// True for the event that announces marks of other threads.
    bool isChangeEvent(const QEvent& event) const;

    GenParamTreeItems items;

private:
    static QEvent::Type changeEventType();
    void registerCallback(GenApi::IValue& feature);
    bool deregisterAll();
    void onNodeChanged(GenApi::INode* node);
    void postChanges();

    /// Makes up for a kind that could not be asked when the tree was built. Throws what GenApi throws.
    void resolveKind(GenParamTreeItem& item) const;
    /// Reads the feature unless what is known of it is good enough to be shown.
    /// \return false when a receiver of an error's signal gave the rows up, \a item among them.
    bool ensureRead(GenParamTreeItem& item);
    /// \return whether anything differs from what was read before.
    bool read(GenParamTreeItem& item);
    QString displayTextOf(GenParamTreeItem& item);
    bool tryWrite(GenParamTreeItem& item, const QVariant& value);
    void report(GenParamTreeItem& item, bool compare);
    void reportLimits(const GenParamTreeItem& item);
    /// No \a roles stand for all.
    void emitDataChanged(const GenParamTreeItem& item, const QVector<int>& roles = {});

    GenParamTreeModel* const q_ptr;
    GenApi::INodeMap* m_nodeMap = nullptr;
    std::vector<GenApi::CallbackHandleType> m_callbacks;
    GenParamErrors m_errors;
    CommandWatch m_commands;
    const std::thread::id m_thread = std::this_thread::get_id();

    /// While it is set, changes made on the model's own thread are marked like those of other threads.
    bool m_isCollecting = false;
    /// The feature being written: its change is reported once, after the write.
    const GenParamTreeItem* m_written = nullptr;

    /// The feature that an editor was prepared for last; only compared.
    const GenParamTreeItem* m_edited = nullptr;

    std::atomic<bool> m_isAttached{false};
    std::atomic<bool> m_isPosted{false};
    std::atomic<unsigned> m_posts{0};    // shows thread checkers the hand-over that Qt's event queue makes
    std::atomic<bool> m_hasMarks{false}; // spares a refresh tick the search for none
};
