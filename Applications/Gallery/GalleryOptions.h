#pragma once

// The command line of the gallery, checked and turned into plain values.

#include "GalleryLook.h"

#include <QtCore/QStringList>

struct GalleryOptions
{
    // What the program is asked to do. Contrast lists ratios; Print and Refuse carry a text: for the standard
    // output and exit code 0, and for the standard error and exit code 2.
    enum class Task { ShowWindow, Screenshot, AllScreenshots, Contrast, Print, Refuse };

    Task task = Task::ShowWindow;
    QString text;
    int page = 0;
    // Title of the one section to take a screenshot of; empty for the whole window.
    QString section;
    QString accent = QStringLiteral("blue");
    int textSize = 0;
    double scale = 1.0;
    // Documents in place of the library's own; empty for those.
    QString themeFile;
    QString accentFile;
    // Of the gallery's own texts and the library's.
    QString language;
    GalleryLook::Style style = GalleryLook::Style::House;
    bool enabled = true;
    // File or folder of the screenshots.
    QString target;

    static constexpr double kMinimumScale = 0.5;
    static constexpr double kMaximumScale = 4.0;

    // Takes the whole command line with the program's name. Needs an application object, not a display.
    static GalleryOptions fromArguments(const QStringList &inArguments);
};
