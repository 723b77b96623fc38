#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;

/// What the person asked for on the command line.
struct Options
{
    QString page;            ///< name of the window to open
    QString description;     ///< camera description file to browse; empty: the one built into the tool
    QString cameras;         ///< kinds of cameras of the camera library; empty: as its own settings say
    QString camera;          ///< id of the camera to begin with, empty for the first one, "none" for none
    bool lost = false;       ///< lose the simulated camera at once
    QString filter;          ///< text for the browser's filter field
    int visibility = 0;      ///< the browser's level: 0 basic, 1 expert, 2 guru
    bool expandAll = false;  ///< open every category of the browser
    bool editors = false;    ///< open the editor of every feature that the browser shows
    bool poll = true;        ///< follow values that change by themselves and cameras that come and go
    QString address;         ///< the address in the IP dialog
    QString mask;            ///< the subnet mask in the IP dialog
    bool dark = false;       ///< use a dark palette
    QString renderDirectory; ///< when not empty: save a picture of the window there and leave
};

/// Reads the arguments of \a application. On a mistake, and for --help, prints what the tool understands and
/// ends the program.
/// \param pages the names that may be given as the window to open; the first is the default.
Options readOptions(const QCoreApplication& application, const QStringList& pages);
