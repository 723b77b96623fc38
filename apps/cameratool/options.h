#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;

/// What the person asked for on the command line.
struct Options
{
    QString page;            ///< name of the window to open, one of pageNames()
    QString description;     ///< camera description file to browse; empty: the one built into the tool
    QString filter;          ///< text for the browser's filter field
    int visibility = 0;      ///< the browser's level: 0 basic, 1 expert, 2 guru
    bool expandAll = false;  ///< open every category of the browser
    bool poll = true;        ///< let the browser follow values that change by themselves
    bool dark = false;       ///< use a dark palette
    QString renderDirectory; ///< when not empty: save a picture of the window there and leave
};

/// Reads the arguments of \a application. On a mistake, and for --help, prints what the tool understands and
/// ends the program.
/// \param pages the names that may be given as the window to open; the first is the default.
Options readOptions(const QCoreApplication& application, const QStringList& pages);
