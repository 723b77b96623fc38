#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>

#include "bootstrap.h"
#include "centredhost.h"
#include "guardedcall.h"

#include <ZetoCameraGuiApi/qwinwidget.h>
#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <QCoreApplication>
#include <QPointer>

using ZetoGui::IZetoGenParamTreeView;
using ZetoGui::ZetoGenParamTreeView;

namespace {

/// Deletes \a host once \a view is gone, from the event loop, as at that moment it still is the view's
/// parent. Not by deleteLater(), which waits for a loop of Qt's own and there may never be one.
void deleteAfter(QObject* view, QWinWidget* host)
{
    const QPointer<QWinWidget> guarded(host);
    QObject::connect(
        view, &QObject::destroyed, QCoreApplication::instance(), [guarded] { delete guarded.data(); },
        Qt::QueuedConnection);
}

template <typename Params>
IZetoGenParamTreeView* openTreeView(Params* params, const QString& title, HWND window)
{
    Bootstrap::ensureApplicationWithPlugins();
    auto host = centredHost(window);
    auto view = std::make_unique<ZetoGenParamTreeView>(params, host.get());
    view->setWindowTitle(title);
    view->setModal(false);
    view->show();
    if (host)
        deleteAfter(view.get(), host.release());
    return view.release();
}

GenApi::INodeMap* nodeMapOf(GenApi_INodeMap* nodeMap)
{
    return static_cast<GenApi::INodeMap*>(nodeMap);
}

} // namespace

IZetoGenParamTreeView* CreateGenParamTreeViewForNodemapA(GenApi_INodeMap* nodeMap, const char* title,
                                                         HWND hwnd)
{
    return guardedCall([&] { return openTreeView(nodeMapOf(nodeMap), QString::fromUtf8(title), hwnd); });
}

IZetoGenParamTreeView* CreateGenParamTreeViewForNodemapW(GenApi_INodeMap* nodeMap, const wchar_t* title,
                                                         HWND hwnd)
{
    return guardedCall(
        [&] { return openTreeView(nodeMapOf(nodeMap), QString::fromWCharArray(title), hwnd); });
}

IZetoGenParamTreeView* CreateGenParamTreeViewForArrayA(ZetoGenParam::Array* params, const char* title,
                                                       HWND hwnd)
{
    return guardedCall([&] { return openTreeView(params, QString::fromUtf8(title), hwnd); });
}

IZetoGenParamTreeView* CreateGenParamTreeViewForArrayW(ZetoGenParam::Array* params, const wchar_t* title,
                                                       HWND hwnd)
{
    return guardedCall([&] { return openTreeView(params, QString::fromWCharArray(title), hwnd); });
}

void DestroyGenParamTreeView(IZetoGenParamTreeView* view)
{
    guardedCall([view] { delete view; });
}
