#include "zetocameraselectordialog_p.h"

#include "applicationlanguage.h"
#include "camerainfo.h"
#include "devicetreemodel.h"
#include "ipconfiguration.h"
#include "scopeddialog.h"

#include <ZetoCameraGuiApi/zetocameraselectordialog.h>

#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>

namespace ZetoGui {

namespace {

constexpr std::chrono::seconds pauseBetweenSearches(1);

Ui::ZetoCameraSelectorDialog formOf(QDialog& dialog)
{
    useApplicationLanguage();
    Ui::ZetoCameraSelectorDialog form;
    form.setupUi(&dialog);
    return form;
}

} // namespace

ZetoCameraSelectorDialogPrivate::ZetoCameraSelectorDialogPrivate(ZetoCameraSelectorDialog& dialog,
                                                                 ZetoCam::System* system, bool poll)
    : q(dialog)
    , m_ui(formOf(dialog))
    , m_model(new DeviceTreeModel(system, &dialog))
    , m_menu(new QMenu(&dialog))
    , m_rescanButton(new QPushButton(ZetoCameraSelectorDialog::tr("&Rescan"), &dialog))
    , m_poll(pauseBetweenSearches)
{
    setUpButtons(poll);
    m_ui.cameraTreeView->setModel(m_model);
    connectTree();
    m_ui.cameraTreeView->expandAll();
    showCurrent();
    startOrStopPolling();
}

ZetoCameraSelectorDialogPrivate::~ZetoCameraSelectorDialogPrivate()
{
    m_poll.stop();
}

void ZetoCameraSelectorDialogPrivate::setUpButtons(bool poll)
{
    QPushButton& setIpButton = *m_ui.setIpBtn;
    const int textWidth = setIpButton.fontMetrics().horizontalAdvance(setIpButton.text());
    setIpButton.setMinimumWidth(textWidth + setIpButton.sizeHint().height());
    m_ui.chPoll->setChecked(poll);
    m_rescanButton->setEnabled(false);
    m_ui.buttonBox->addButton(m_rescanButton, QDialogButtonBox::ActionRole);
    okButton().setDefault(true);
    QAction* const setIpAction = m_menu->addAction(ZetoCameraSelectorDialog::tr("Set IP Address"));

    connect(setIpAction, &QAction::triggered, this, [this] { setIp(); });
    connect(m_ui.setIpBtn, &QPushButton::clicked, this, [this] { setIp(); });
    connect(m_ui.chPoll, &QCheckBox::clicked, this, [this] { startOrStopPolling(); });
    connect(m_rescanButton, &QPushButton::clicked, this, [this] { rescan(); });
}

void ZetoCameraSelectorDialogPrivate::connectTree()
{
    QTreeView* const tree = m_ui.cameraTreeView;
    connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { showCurrent(); });
    connect(tree, &QTreeView::activated, this, [this] { okButton().click(); });
    connect(tree, &QTreeView::customContextMenuRequested, this,
            [this](const QPoint& position) { showMenu(position); });
    connect(m_model, &DeviceTreeModel::modelAboutToBeReset, this, [this] { rememberPlace(); });
    connect(m_model, &DeviceTreeModel::modelReset, tree, &QTreeView::expandAll);
    connect(this, &ZetoCameraSelectorDialogPrivate::systemChanged, this,
            &ZetoCameraSelectorDialogPrivate::onSystemChanged, Qt::QueuedConnection);
}

ZetoCam::DeviceInfo* ZetoCameraSelectorDialogPrivate::currentCamera() const
{
    const QVariant object = m_ui.cameraTreeView->currentIndex().data(DeviceTreeModel::ObjectRole);
    return object.value<ZetoCam::DeviceInfo*>();
}

void ZetoCameraSelectorDialogPrivate::startOrStopPolling()
{
    const bool poll = m_ui.chPoll->isChecked();
    if (poll)
        m_poll.start([this] { search(); });
    else
        m_poll.stop();
    m_rescanButton->setEnabled(!poll);
}

/// Runs on the thread of the search.
void ZetoCameraSelectorDialogPrivate::search()
{
    if (!m_model->hasChanged())
        return;
    m_changed.exchange(true);
    emit systemChanged();
}

void ZetoCameraSelectorDialogPrivate::onSystemChanged()
{
    bool expected = true;
    if (!m_changed.compare_exchange_strong(expected, false))
        return;
    m_model->applyChanges();
    returnToSelected();
}

void ZetoCameraSelectorDialogPrivate::rescan()
{
    m_changed = false; // what the search found last is older
    m_model->refresh();
    returnToSelected();
}

void ZetoCameraSelectorDialogPrivate::rememberPlace()
{
    m_scrollPosition = m_ui.cameraTreeView->verticalScrollBar()->value();
    m_collapsedIds.clear();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex index = m_model->index(row, 0);
        if (!m_ui.cameraTreeView->isExpanded(index))
            m_collapsedIds.append(m_model->idOf(index));
    }
}

/// After a reset, which leaves nothing selected and everything open.
void ZetoCameraSelectorDialogPrivate::returnToSelected()
{
    const QModelIndex selected = m_model->indexOf(m_selectedId);
    const QModelIndex current = selected.isValid() ? selected : m_model->firstIndex();
    if (current.isValid())
        m_ui.cameraTreeView->setCurrentIndex(current);
    else
        showCurrent();
    for (const QString& id : qAsConst(m_collapsedIds))
        m_ui.cameraTreeView->collapse(m_model->indexOf(id));
    if (selected.isValid())
        m_ui.cameraTreeView->verticalScrollBar()->setValue(m_scrollPosition);
}

void ZetoCameraSelectorDialogPrivate::showCurrent()
{
    m_selectedId = m_model->idOf(m_ui.cameraTreeView->currentIndex());
    showInfo();
    ZetoCam::DeviceInfo* const camera = currentCamera();
    okButton().setEnabled(camera && isOpenable(camera->GetAccessStatus()));
    m_ui.setIpBtn->setEnabled(camera && isOnNetwork(*camera));
}

void ZetoCameraSelectorDialogPrivate::showInfo()
{
    const QVariant object = m_ui.cameraTreeView->currentIndex().data(DeviceTreeModel::ObjectRole);
    auto* const camera = object.value<ZetoCam::DeviceInfo*>();
    auto* const owner = camera ? camera->GetInterface() : object.value<ZetoCam::Interface*>();
    m_ui.deviceInfoTreeView->setLines(camera ? cameraInfo(*camera) : QVector<InfoLine>());
    m_ui.interfaceInfoTreeView->setLines(owner ? interfaceInfo(*owner) : QVector<InfoLine>());
}

void ZetoCameraSelectorDialogPrivate::showMenu(const QPoint& position)
{
    const QModelIndex index = m_ui.cameraTreeView->indexAt(position);
    auto* const camera = index.data(DeviceTreeModel::ObjectRole).value<ZetoCam::DeviceInfo*>();
    if (camera && isOnNetwork(*camera))
        m_menu->popup(m_ui.cameraTreeView->viewport()->mapToGlobal(position));
}

void ZetoCameraSelectorDialogPrivate::setIp()
{
    const QPointer<ZetoCameraSelectorDialogPrivate> self(this); // the host may take the dialog down meanwhile
    ZetoCam::DeviceInfo* const camera = currentCamera();
    const bool done = camera && configureIp(*camera, &q);
    if (!self)
        return;
    if (done)
        showCurrent();
    else
        ScopedDialog<QMessageBox>(QMessageBox::Critical, ZetoCameraSelectorDialog::tr("Set IP Address"),
                                  ZetoCameraSelectorDialog::tr("Can't set IP address"), QMessageBox::Ok, &q)
            ->exec();
}

QPushButton& ZetoCameraSelectorDialogPrivate::okButton() const
{
    return *m_ui.buttonBox->button(QDialogButtonBox::Ok);
}

} // namespace ZetoGui
