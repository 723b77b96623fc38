#pragma once

/// Makes sure that the process has a Qt application. What exists is used; what is made is never deleted.
namespace Bootstrap {

/// An application that finds its plug-ins by itself.
void ensureApplication();

/// An application that also looks for its plug-ins in the camera library's installation.
void ensureApplicationWithPlugins();

} // namespace Bootstrap
