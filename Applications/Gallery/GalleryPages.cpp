#include "GalleryPages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <iterator>

// Each stands in the source that bears the page's name.
GalleryPage *makePalettePage(QWidget *inParent);
GalleryPage *makeTypePage(QWidget *inParent);
GalleryPage *makeIconsPage(QWidget *inParent);
GalleryPage *makePicturesPage(QWidget *inParent);
GalleryPage *makeMetricsPage(QWidget *inParent);
GalleryPage *makeStandardWidgetsPage(QWidget *inParent);
GalleryPage *makeSlidersPage(QWidget *inParent);
GalleryPage *makeItemViewsPage(QWidget *inParent);
GalleryPage *makeScrollingPage(QWidget *inParent);
GalleryPage *makeMenusPage(QWidget *inParent);
GalleryPage *makePanesPage(QWidget *inParent);
GalleryPage *makeButtonsPage(QWidget *inParent);
GalleryPage *makeLabelsPage(QWidget *inParent);
GalleryPage *makeToolButtonsPage(QWidget *inParent);
GalleryPage *makeToolTipsPage(QWidget *inParent);
GalleryPage *makeFieldsPage(QWidget *inParent);
GalleryPage *makeBoxesPage(QWidget *inParent);
GalleryPage *makeSortingPage(QWidget *inParent);
GalleryPage *makeMainWindowPage(QWidget *inParent);
GalleryPage *makeMessageBoxesPage(QWidget *inParent);
GalleryPage *makeProgressPage(QWidget *inParent);

namespace {
constexpr GalleryPageEntry kPages[] = {
    {"palette", QT_TRANSLATE_NOOP("GalleryPages", "Palette"), &makePalettePage},
    {"type", QT_TRANSLATE_NOOP("GalleryPages", "Type"), &makeTypePage},
    {"icons-and-tinting", QT_TRANSLATE_NOOP("GalleryPages", "Icons and tinting"), &makeIconsPage},
    {"pictures", QT_TRANSLATE_NOOP("GalleryPages", "Pictures"), &makePicturesPage},
    {"metrics", QT_TRANSLATE_NOOP("GalleryPages", "Metrics"), &makeMetricsPage},
    {"standard-widgets", QT_TRANSLATE_NOOP("GalleryPages", "Standard widgets"), &makeStandardWidgetsPage},
    {"sliders-and-ranges", QT_TRANSLATE_NOOP("GalleryPages", "Sliders and ranges"), &makeSlidersPage},
    {"item-views", QT_TRANSLATE_NOOP("GalleryPages", "Item views"), &makeItemViewsPage},
    {"scrolling", QT_TRANSLATE_NOOP("GalleryPages", "Scrolling"), &makeScrollingPage},
    {"menus", QT_TRANSLATE_NOOP("GalleryPages", "Menus"), &makeMenusPage},
    {"frames-and-panes", QT_TRANSLATE_NOOP("GalleryPages", "Frames and panes"), &makePanesPage},
    {"buttons", QT_TRANSLATE_NOOP("GalleryPages", "Buttons"), &makeButtonsPage},
    {"labels", QT_TRANSLATE_NOOP("GalleryPages", "Labels"), &makeLabelsPage},
    {"tool-buttons", QT_TRANSLATE_NOOP("GalleryPages", "Tool buttons"), &makeToolButtonsPage},
    {"tool-tips", QT_TRANSLATE_NOOP("GalleryPages", "Tool tips"), &makeToolTipsPage},
    {"fields", QT_TRANSLATE_NOOP("GalleryPages", "Fields"), &makeFieldsPage},
    {"check-and-combo-boxes", QT_TRANSLATE_NOOP("GalleryPages", "Check and combo boxes"), &makeBoxesPage},
    {"sorting", QT_TRANSLATE_NOOP("GalleryPages", "Sorting"), &makeSortingPage},
    {"main-window", QT_TRANSLATE_NOOP("GalleryPages", "Main window"), &makeMainWindowPage},
    {"message-boxes", QT_TRANSLATE_NOOP("GalleryPages", "Message boxes"), &makeMessageBoxesPage},
    {"progress", QT_TRANSLATE_NOOP("GalleryPages", "Progress"), &makeProgressPage},
};
} // namespace

int GalleryPages::count()
{
    return static_cast<int>(std::size(kPages));
}

const GalleryPageEntry &GalleryPages::at(int inIndex)
{
    Q_ASSERT(inIndex >= 0 && inIndex < count());
    return kPages[inIndex];
}

QString GalleryPages::title(int inIndex)
{
    return QCoreApplication::translate("GalleryPages", at(inIndex).title);
}

int GalleryPages::indexOf(const QString &inName)
{
    for (int index = 0; index < count(); ++index) {
        if (inName.compare(QLatin1String(kPages[index].name), Qt::CaseInsensitive) == 0)
            return index;
    }
    return -1;
}

QString GalleryPages::names(const QString &inSeparator)
{
    QStringList names;
    for (const GalleryPageEntry &page : kPages)
        names << QLatin1String(page.name);
    return names.join(inSeparator);
}
