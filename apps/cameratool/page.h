#pragma once

#include "options.h"

#include <QWidget>
#include <memory>

/// One window of the tool with everything it needs to live, such as the camera it shows.
class Page
{
public:
    Page() = default;
    virtual ~Page() = default;
    Q_DISABLE_COPY(Page)

    /// The window, owned by the page.
    virtual QWidget& window() = 0;
};

/// A window that the tool can open.
struct PageKind
{
    const char* name;
    /// Makes the page. Throws std::runtime_error with a text for the person when it cannot be made.
    std::unique_ptr<Page> (*make)(const Options&);
};
