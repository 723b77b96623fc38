#pragma once

#include <GenICamFwd.h>

#include <cstdint>

namespace ZetoGenParam {
class Array;
} // namespace ZetoGenParam

namespace ZetoGui {

/// The visibility levels of features, from few to all. Each level shows those below it, too.
enum Visibility
{
    Basic = 0,  ///< features for every user (GenICam: Beginner)
    Expert = 1, ///< features for users who know the camera
    Guru = 2    ///< features that can put the camera into a state that is hard to understand
};

/// The feature browser as hosts without Qt see it. The order of the operations is the binary interface.
///
/// All operations belong to the thread of the QApplication. The node map or array that is shown stays the
/// caller's property: it must outlive the view or be taken away with clearParams() first.
class IZetoGenParamTreeView
{
public:
    virtual ~IZetoGenParamTreeView() = default;

    /// Shows the features of \a nodeMap instead of those shown so far; null shows none.
    virtual void setParams(GenApi::INodeMap* nodeMap) = 0;

    /// Shows the features of the node map behind \a params instead of those shown so far; null shows none.
    virtual void setParams(ZetoGenParam::Array* params) = 0;

    /// Shows nothing. When it returns, nothing refers to the node map any more and it may be destroyed.
    virtual void clearParams() = 0;

    /// The level up to which features are shown; Basic at first.
    virtual Visibility visibility() const = 0;

    /// Shows features up to \a visibility. Any other value than the three levels changes nothing.
    virtual void setVisibility(Visibility visibility) = 0;

    /// Expanded categories, width of the name column, visibility level and height of the description, as a
    /// text for loadState(); an empty text while nothing is shown.
    /// \return UTF-8, valid until the next call or the view's end
    virtual const char* saveState() const = 0;

    /// Restores what saveState() returned. A null or empty \a state changes nothing, and so does any state
    /// while nothing is shown.
    /// \throws std::invalid_argument or std::out_of_range when \a state holds a malformed number; the view is
    ///         then as it was before
    virtual void loadState(const char* state) = 0;

    /// Lets \a milliseconds pass from one refresh of the values on screen to the next; 0, the initial value,
    /// refreshes whenever the application is idle. Times above 2147483647 are taken as that.
    virtual void setPollingTime(uint64_t milliseconds) = 0;

    /// The time set with setPollingTime(), in milliseconds.
    virtual uint64_t getPollingTime() = 0;

    /// Starts or stops the refresh. It is off at first, and rests while the view is hidden or minimised.
    virtual void enablePolling(bool enable) = 0;

    /// True while the refresh is on.
    virtual bool isPollingEnabled() = 0;
};

} // namespace ZetoGui
