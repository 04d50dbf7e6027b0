#pragma once

// The program without a window: exports photos with a preset.
//
//     PhotoDesk --export FOLDER --preset NAME FILES...

#include <QtCore/QString>
#include <QtCore/QStringList>

class PresetStore;

namespace CommandLine {

struct Options
{
    QString exportFolder; // empty opens the window
    QString preset;
    QString suffix = QStringLiteral("jpg");
    QStringList files;
    QString answer;  // to be printed instead of any work: help or version
    QString refusal; // why the command line makes no sense
};

// Arguments with the program's name first.
Options parse(const QStringList &inArguments);

// Exports every file that can be read, lists the others with their reasons on the standard error, and returns
// the exit code: 0, 1 if some file could not be exported, or 2 if nothing could be begun.
int exportPhotos(const Options &inOptions, const PresetStore &inPresets);

} // namespace CommandLine
