#pragma once

// How a part of the program logs: from which level on, under which name, to which file, and with what before
// each line. Who owns the parameters fills in the two functions.
//
//     VTQtLog::LogParams params;
//     params.mLevel = 2;
//     params.mFilter = [](int inLevel, const auto &inParams) { return inLevel <= inParams.mLevel; };

#include "VTQtPath.h"

#include <QtCore/QString>

#include <functional>

namespace VTQtLog {

struct LogParams
{
    // The highest level that is written; 0 writes only what is never left out.
    int mLevel = 0;

    // The number of files kept when the log begins a new one.
    int mFileCount = 1;

    QString mName;
    VTQtPath mPath;

    // The sink that lines go to, not owned; null for the program's log.
    void *mSink = nullptr;

    // What stands before a line, and whether a line of the given level is written.
    std::function<QString(const LogParams &inParams)> mPrefix;
    std::function<bool(int inLevel, const LogParams &inParams)> mFilter;
};

} // namespace VTQtLog
