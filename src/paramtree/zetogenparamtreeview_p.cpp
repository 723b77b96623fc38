#include "zetogenparamtreeview_p.h"

#include "applicationlanguage.h"
#include "categories.h"
#include "filteroptions.h"
#include "generrorsdlg.h"
#include "genparamdelegate.h"
#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "treeviewstate.h"

#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <QShortcut>

namespace ZetoGui {

namespace {

constexpr int descriptionLines = 3;

Ui::GenParamTreeView formOf(QDialog& dialog)
{
    useApplicationLanguage();
    Ui::GenParamTreeView form;
    form.setupUi(&dialog);
    return form;
}

template <typename Receiver, typename Slot>
void onKey(const QKeySequence& key, QWidget& widget, Receiver* receiver, Slot slot)
{
    auto* const shortcut = new QShortcut(key, &widget);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, receiver, slot);
}

} // namespace

ZetoGenParamTreeViewPrivate::ZetoGenParamTreeViewPrivate(ZetoGenParamTreeView& view)
    : q(view)
    , ui(formOf(view))
    , options(new FilterOptions(&view))
    , pollingTimer(new QTimer(&view))
    , delegate(new GenParamDelegate(&view))
    , m_resizer(*ui.treeView)
    , m_expansion(*ui.treeView)
    , m_place(*ui.treeView)
    , m_rowsOnScreen(*ui.treeView)
{
    setUpFilter();
    setUpTree();
    setUpErrors();
    QObject::connect(pollingTimer, &QTimer::timeout, &q, [this] { refresh(); });
}

ZetoGenParamTreeViewPrivate::~ZetoGenParamTreeViewPrivate()
{
    dropModel();
}

void ZetoGenParamTreeViewPrivate::setUpFilter()
{
    ui.clearFilterButton->setDefaultAction(ui.actionClearFilter);
    ui.actionClearFilter->setEnabled(false);
    ui.actionClearFilter->setShortcut(Qt::Key_Escape);
    ui.actionClearFilter->setShortcutContext(Qt::WidgetShortcut);
    ui.filterLineEdit->QWidget::addAction(ui.actionClearFilter);
    QObject::connect(ui.actionClearFilter, &QAction::triggered, ui.filterLineEdit, &QLineEdit::clear);
    QObject::connect(ui.filterLineEdit, &QLineEdit::textChanged, &q,
                     [this](const QString& text) { showMatches(text); });
    for (const int key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter})
        onKey(key, *ui.filterLineEdit, &q, [this] { enterTree(); });

    const auto showOptions = [this] { ui.filterOptionsButton->setIcon(options->icon()); };
    showOptions();
    QObject::connect(ui.filterOptionsButton, &QToolButton::clicked, options,
                     [this] { options->popup(*ui.filterOptionsButton); });
    QObject::connect(options, &FilterOptions::changed, &q, [this, showOptions] {
        showOptions();
        applyOptions();
    });
    QObject::connect(ui.cbVisibility, QOverload<int>::of(&QComboBox::currentIndexChanged), &q,
                     [this](int level) { showLevel(level); });
}

void ZetoGenParamTreeViewPrivate::setUpTree()
{
    ui.treeView->setItemDelegateForColumn(GenParamTreeModel::ValueColumn, delegate);
    ui.splitter->setSizes({1000, 10});
    ui.whatsThisLabel->setMinimumHeight(descriptionLines * ui.whatsThisLabel->fontMetrics().lineSpacing());
    QObject::connect(ui.pbExpandAll, &QPushButton::clicked, ui.treeView, &QTreeView::expandAll);
    QObject::connect(ui.pbCollapseAll, &QPushButton::clicked, ui.treeView, &QTreeView::collapseAll);
    QObject::connect(ui.pbCollapseAll, &QPushButton::clicked, &m_expansion, &TreeExpansion::forget);
    auto* const find = new QShortcut(QKeySequence::Find, &q);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(find, &QShortcut::activated, &q, [this] { focusFilter(); });
}

void ZetoGenParamTreeViewPrivate::setUpErrors()
{
    m_errorsChanged.setSingleShot(true);
    QObject::connect(&m_errorsChanged, &QTimer::timeout, &q, [this] {
        if (m_errorsDialog)
            m_errorsDialog->setErrors(m_errors.text());
    });
    QObject::connect(ui.pbStatus, &QPushButton::clicked, &q, [this] { showErrors(); });
    showStatus();
}

void ZetoGenParamTreeViewPrivate::showModel(GenParamTreeModel* newModel)
{
    dropModel();
    m_model = newModel;
    if (!m_model)
        return;
    m_sinceRefresh.start();
    m_proxy = new GenParamTreeVisibilityFilterProxyModel(&q);
    m_proxy->setFilterVisibility(ui.cbVisibility->currentIndex());
    applyOptions();
    if (!ui.filterLineEdit->text().isEmpty())
        m_proxy->setFilterText(ui.filterLineEdit->text());
    m_proxy->setSourceModel(m_model);
    connectModel();
    m_resizer.fit();
}

void ZetoGenParamTreeViewPrivate::connectModel()
{
    QObject::connect(m_model, &GenParamTreeModel::errorAppeared, &q,
                     [this](const QString& feature, const QString& error) { addError(feature, error); });
    QObject::connect(m_model, &GenParamTreeModel::errorDisappeared, &q,
                     [this](const QString& feature) { removeError(feature); });
    ui.treeView->setModel(m_proxy);
    m_expansion.watchModel();
    QObject::connect(ui.treeView->selectionModel(), &QItemSelectionModel::currentChanged, &q,
                     [this] { showDescription(); });
}

void ZetoGenParamTreeViewPrivate::dropModel()
{
    m_rowsOnScreen.forget();
    m_expansion.forget();
    m_place.forget();
    m_errors.clear();
    showStatus();
    if (!m_model)
        return;
    QItemSelectionModel* const selection = ui.treeView->selectionModel();
    ui.treeView->setModel(nullptr);
    showDescription();
    selection->deleteLater();
    m_model->disconnect(&q);
    m_model->detach();
    m_proxy->deleteLater();
    m_model->deleteLater();
    m_proxy = nullptr;
    m_model = nullptr;
}

void ZetoGenParamTreeViewPrivate::showLevel(int level)
{
    if (!m_proxy)
        return;
    m_expansion.remember();
    m_place.remember();
    m_proxy->setFilterVisibility(level);
    m_expansion.restore();
    m_place.restore();
    showDescription();
}

void ZetoGenParamTreeViewPrivate::showMatches(const QString& pattern)
{
    ui.actionClearFilter->setEnabled(!pattern.isEmpty());
    if (!m_proxy)
        return;
    // Categories are not tested against the pattern, so none of them goes or comes.
    m_place.remember();
    m_proxy->setFilterText(pattern);
    m_place.restore();
    showDescription();
}

void ZetoGenParamTreeViewPrivate::applyOptions()
{
    if (!m_proxy)
        return;
    m_place.remember();
    m_proxy->setNameCaseSensitivity(options->isCaseSensitive() ? Qt::CaseSensitive : Qt::CaseInsensitive);
    m_proxy->setWholeWord(options->isWholeWords());
    m_place.restore();
    showDescription();
}

void ZetoGenParamTreeViewPrivate::showDescription()
{
    ui.whatsThisLabel->setText(ui.treeView->currentIndex().data(Qt::WhatsThisRole).toString());
}

void ZetoGenParamTreeViewPrivate::focusFilter()
{
    ui.filterLineEdit->setFocus(Qt::ShortcutFocusReason);
    ui.filterLineEdit->selectAll();
}

void ZetoGenParamTreeViewPrivate::enterTree()
{
    if (m_proxy) {
        QModelIndex row = ui.treeView->currentIndex();
        if (!ui.filterLineEdit->text().isEmpty() && (!row.isValid() || isCategory(row)))
            row = firstHit();
        ui.treeView->setCurrentIndex(row.isValid() ? row : m_proxy->index(0, 0));
    }
    ui.treeView->setFocus(Qt::ShortcutFocusReason);
}

QModelIndex ZetoGenParamTreeViewPrivate::firstHit(const QModelIndex& parent) const
{
    const int rows = m_proxy->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = m_proxy->index(row, 0, parent);
        const QModelIndex hit = isCategory(index) ? firstHit(index) : index;
        if (hit.isValid())
            return hit;
    }
    return QModelIndex();
}

void ZetoGenParamTreeViewPrivate::refresh()
{
    if (!m_model || !ui.treeView->isVisible() || q.window()->isMinimized())
        return;
    m_model->refresh(m_sinceRefresh.restart(), m_rowsOnScreen.rows());
}

void ZetoGenParamTreeViewPrivate::addError(const QString& feature, const QString& error)
{
    m_errors.add(feature, error);
    showStatus();
}

void ZetoGenParamTreeViewPrivate::removeError(const QString& feature)
{
    m_errors.remove(feature);
    showStatus();
}

void ZetoGenParamTreeViewPrivate::showErrors()
{
    if (!m_errorsDialog)
        m_errorsDialog = new GenErrorsDlg(&q);
    m_errorsDialog->setErrors(m_errors.text());
    m_errorsDialog->show();
    m_errorsDialog->raise();
    m_errorsDialog->activateWindow();
}

void ZetoGenParamTreeViewPrivate::showStatus()
{
    const QString icon =
        m_errors.isEmpty() ? QStringLiteral("://images//ok.png") : QStringLiteral("://images//err.png");
    if (icon != m_statusIcon)
        ui.pbStatus->setIcon(QIcon(icon));
    m_statusIcon = icon;
    m_errorsChanged.start();
}

TreeViewState ZetoGenParamTreeViewPrivate::state() const
{
    TreeViewState state;
    visitCategories(*m_proxy, [this, &state](const QModelIndex& category, const QString& path) {
        if (ui.treeView->isExpanded(category))
            state.addExpanded(path);
    });
    state.nameWidth = ui.treeView->columnWidth(GenParamTreeModel::NameColumn);
    state.visibility = ui.cbVisibility->currentIndex();
    state.splitter = ui.splitter->saveState();
    return state;
}

void ZetoGenParamTreeViewPrivate::apply(const TreeViewState& state)
{
    m_expansion.remember();
    // Also those that only the state's level will show.
    visitCategories(*m_model, [this, &state](const QModelIndex& category, const QString& path) {
        if (state.isExpanded(path))
            m_expansion.add(category);
    });
    m_expansion.restore();
    if (state.nameWidth != 0)
        ui.treeView->setColumnWidth(GenParamTreeModel::NameColumn, state.nameWidth);
    if (state.visibility)
        setLevel(*state.visibility);
    if (!state.splitter.isEmpty())
        ui.splitter->restoreState(state.splitter);
}

void ZetoGenParamTreeViewPrivate::setLevel(int level)
{
    if (level >= Basic && level <= Guru)
        ui.cbVisibility->setCurrentIndex(level);
}

} // namespace ZetoGui
