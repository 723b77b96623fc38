#pragma once

#include "featureerrors.h"
#include "rowsonscreen.h"
#include "treeexpansion.h"
#include "treeplace.h"
#include "treeviewresizer.h"
#include "ui_genparamtreeview.h"

#include <QElapsedTimer>
#include <QTimer>

class FilterOptions;
class GenErrorsDlg;
class GenParamDelegate;
class GenParamTreeModel;
class GenParamTreeVisibilityFilterProxyModel;
class TreeViewState;

namespace ZetoGui {

class ZetoGenParamTreeView;

/// The widgets of the browser, the models it made for the features shown, and what joins them.
class ZetoGenParamTreeViewPrivate
{
public:
    explicit ZetoGenParamTreeViewPrivate(ZetoGenParamTreeView& view);
    ~ZetoGenParamTreeViewPrivate();
    Q_DISABLE_COPY(ZetoGenParamTreeViewPrivate)

    /// Shows \a newModel, a child of the view; null shows nothing. The former model lets go of its node map
    /// at once and is deleted later.
    void showModel(GenParamTreeModel* newModel);

    TreeViewState state() const;
    void apply(const TreeViewState& state);

    bool isShowing() const { return m_model != nullptr; }

    /// A \a level that is none changes nothing.
    void setLevel(int level);

    ZetoGenParamTreeView& q;
    Ui::GenParamTreeView ui;
    FilterOptions* const options;     // child of the view
    QTimer* const pollingTimer;       // child of the view
    GenParamDelegate* const delegate; // child of the view
    mutable QByteArray stateText;     // what saveState() returned last

private:
    void setUpFilter();
    void setUpTree();
    void setUpErrors();

    void dropModel();
    void connectModel();
    void showLevel(int level);
    void showMatches(const QString& pattern);
    void applyOptions();
    void showDescription();
    void focusFilter();
    void enterTree();
    QModelIndex firstHit(const QModelIndex& parent = QModelIndex()) const;

    void refresh();

    void addError(const QString& feature, const QString& error);
    void removeError(const QString& feature);
    void showErrors();
    void showStatus();

    GenParamTreeModel* m_model = nullptr;                      // child of the view
    GenParamTreeVisibilityFilterProxyModel* m_proxy = nullptr; // child of the view
    TreeViewResizer m_resizer;
    TreeExpansion m_expansion;
    TreePlace m_place;
    RowsOnScreen m_rowsOnScreen;
    QElapsedTimer m_sinceRefresh;
    FeatureErrors m_errors;
    QString m_statusIcon;
    QTimer m_errorsChanged;                 // gathers many changes to one update of the dialog
    GenErrorsDlg* m_errorsDialog = nullptr; // child of the view, made when first asked for
};

} // namespace ZetoGui
