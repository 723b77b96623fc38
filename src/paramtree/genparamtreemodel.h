#pragma once

#include <GenApi/GenApi.h>

#include <QAbstractItemModel>
#include <QMetaType>

#include <memory>

namespace ZetoGenParam {
class Array;
}
class GenParamTreeModelPrivate;

Q_DECLARE_METATYPE(GenApi::IValue*)

/// The features of one GenICam node map as a tree of two columns, name and value.
///
/// The tree mirrors the categories below the node "Root" and is built once; a feature that stands in several
/// categories is a row in each. No value is read while the tree is built. A value is read when it is first
/// asked for and kept until the feature reports a change, refresh() finds another one, or setData() writes:
/// painting the same rows again costs no access to the camera.
///
/// Changes: dataChanged() names the value cell of one row at a time, and of a value that has been read it is
/// emitted only when access mode or value really differ. A change made on the model's thread is reported
/// before the writing call returns, one made on another thread through the event loop.
///
/// Errors: no exception leaves the model. A value that cannot be read shows "ERROR" until a refresh, a change
/// or a write brings a good read; the reason goes out once through errorAppeared() and is withdrawn once
/// through errorDisappeared(). A refused write is reported the same way and withdrawn by the next write that
/// the camera takes or by the next change of the value.
///
/// The node map belongs to the caller and must outlive the model or be given up with detach().
/// Everything but GenApi's own callbacks runs on the thread of the model.
class GenParamTreeModel : public QAbstractItemModel
{
    Q_OBJECT
    Q_DISABLE_COPY(GenParamTreeModel)

public:
    enum Column
    {
        NameColumn,
        ValueColumn,
        ColumnCount
    };
    enum Role
    {
        FeatureRole = Qt::UserRole,     ///< the row's GenApi::IValue*, in both columns
        ControlRole = Qt::UserRole + 1, ///< of a writable feature: ControlData, a new editor at each query
        ErrorRole,                      ///< why the feature is in error; a null text when it is not
        BusyRole,                       ///< of a command: whether the camera still works on it
    };

    /// A null \a nodeMap, or one without a category "Root", gives an empty tree.
    explicit GenParamTreeModel(GenApi::INodeMap* nodeMap, QObject* parent = nullptr);
    /// Shows the node map below the parameters of \a array.
    explicit GenParamTreeModel(ZetoGenParam::Array* array, QObject* parent = nullptr);
    /// Deregisters every callback; none is running or will run when it returns.
    ~GenParamTreeModel() override;

    /// Deregisters every callback and drops all rows. Afterwards the model touches the node map no more, so
    /// that it may be destroyed while the model still waits for its own deletion.
    void detach();

    /// Passes \a elapsed milliseconds to the node map's own polling, then re-reads the value of each of \a
    /// rows (indexes of this model in any column, a row counts once) exactly once and reports those that
    /// differ from what is shown. Rows that are not named are not read, even when the polling found that they
    /// may have changed: they are reported as changed and read when they are next asked for.
    void refresh(qint64 elapsed, const QModelIndexList& rows);

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// DisplayRole gives the texts of both columns, EditRole the value in its own type (integers as
    /// qlonglong, IPv4 addresses as dotted text), ToolTipRole an HTML text, WhatsThisRole the feature's plain
    /// description, BackgroundRole a tint for categories and errors.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Writes to the camera; true only when the camera took the value. A command is executed.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

signals:
    void errorAppeared(QString paramName, QString strErr);
    void errorDisappeared(QString paramName);

protected:
    bool event(QEvent* event) override;

private:
    // Shared, because a callback that GenApi failed to remove keeps it alive.
    const std::shared_ptr<GenParamTreeModelPrivate> d_ptr;
    Q_DECLARE_PRIVATE(GenParamTreeModel)
};
