#pragma once

#include "izetogenparamtreeview.h"
#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

class QTreeView;

namespace ZetoGui {

class ZetoGenParamTreeViewPrivate;

/// A browser over all features of a camera: a tree of names and values that are edited in place, filtered by
/// name and by visibility level and refreshed while they are on screen.
///
/// It is a window of its own or, given a parent and put into a layout, a part of another one. Shown are the
/// features of a GenICam node map or of a parameter array; see IZetoGenParamTreeView for who owns them.
///
/// \code
/// ZetoGui::ZetoGenParamTreeView browser(nodeMap);
/// browser.setPollingTime(500); // ms
/// browser.enablePolling(true);
/// browser.exec();
/// \endcode
///
/// Keys: Ctrl+F goes to the filter; Down or Enter in the filter goes to the first hit and Escape empties it.
/// In the tree, F2 or Enter edits the value, Ctrl+C copies the feature's line, Ctrl+Shift+C its value and
/// Ctrl+Alt+C its name.
///
/// Errors of the camera never leave the view: they are listed behind the status button. The camera may be
/// written from other threads at any time.
class ZETO_GUI_EXPORT ZetoGenParamTreeView : public QDialog, public IZetoGenParamTreeView
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")

public:
    /// A browser without features.
    explicit ZetoGenParamTreeView(QWidget* parent = nullptr);
    explicit ZetoGenParamTreeView(GenApi::INodeMap* nodeMap, QWidget* parent = nullptr);
    explicit ZetoGenParamTreeView(ZetoGenParam::Array* params, QWidget* parent = nullptr);
    ~ZetoGenParamTreeView() override;

    void setParams(GenApi::INodeMap* nodeMap) override;
    void setParams(ZetoGenParam::Array* params) override;
    void clearParams() override;

    Visibility visibility() const override;
    void setVisibility(Visibility visibility) override;

    const char* saveState() const override;
    void loadState(const char* state) override;

    void setPollingTime(uint64_t milliseconds) override;
    uint64_t getPollingTime() override;
    void enablePolling(bool enable) override;
    bool isPollingEnabled() override;

    /// The tree inside, for callers that want to style or to inspect it. Its model is replaced by
    /// setParams().
    QTreeView* treeView() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Q_DISABLE_COPY(ZetoGenParamTreeView)
    Q_DECLARE_PRIVATE(ZetoGenParamTreeView)

    const std::unique_ptr<ZetoGenParamTreeViewPrivate> d_ptr;
};

} // namespace ZetoGui
