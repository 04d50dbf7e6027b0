#include "GalleryPages.h"

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

namespace {
constexpr GalleryPageEntry kPages[] = {
    {"palette", "Palette", &makePalettePage},
    {"type", "Type", &makeTypePage},
    {"icons-and-tinting", "Icons and tinting", &makeIconsPage},
    {"pictures", "Pictures", &makePicturesPage},
    {"metrics", "Metrics", &makeMetricsPage},
    {"standard-widgets", "Standard widgets", &makeStandardWidgetsPage},
    {"sliders-and-ranges", "Sliders and ranges", &makeSlidersPage},
    {"item-views", "Item views", &makeItemViewsPage},
    {"scrolling", "Scrolling", &makeScrollingPage},
    {"menus", "Menus", &makeMenusPage},
    {"frames-and-panes", "Frames and panes", &makePanesPage},
    {"buttons", "Buttons", &makeButtonsPage},
    {"labels", "Labels", &makeLabelsPage},
    {"tool-buttons", "Tool buttons", &makeToolButtonsPage},
    {"tool-tips", "Tool tips", &makeToolTipsPage},
    {"fields", "Fields", &makeFieldsPage},
    {"check-and-combo-boxes", "Check and combo boxes", &makeBoxesPage},
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
