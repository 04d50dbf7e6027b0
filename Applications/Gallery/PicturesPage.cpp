#include "GalleryPage.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"
#include "Utilities/VTWidgetsImageUtils.h"

#include <QtCore/QDirIterator>
#include <QtCore/QMap>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace {
// The side of the tool buttons' pictures, in pixels; larger ones are shown by themselves.
constexpr int kSmallSide = 24;

// One of the ways in which a small picture comes before the user: a tint, and the ground beneath.
struct Tile
{
    VantraIconPalette::IconTintings flags;
    VantraPalette::PaletteGroup group;
    VantraPalette::PaletteRole picture;
    VantraPalette::PaletteRole ground;
};

constexpr Tile kTiles[] = {
    {VantraIconPalette::IconTintingNone, VantraPalette::Normal, VantraPalette::WindowText,
     VantraPalette::WindowBackground},
    {VantraIconPalette::IconTintingForeground, VantraPalette::Normal, VantraPalette::ToolButtonText,
     VantraPalette::PaneBackground},
    {VantraIconPalette::IconTintingAlternate, VantraPalette::Normal, VantraPalette::Accent,
     VantraPalette::ToolButtonIconBackground},
    {VantraIconPalette::IconTintingForeground, VantraPalette::Disabled, VantraPalette::ToolButtonText,
     VantraPalette::PaneBackground},
    {VantraIconPalette::IconTintingForeground, VantraPalette::Normal, VantraPalette::AccentButtonText,
     VantraPalette::AccentButtonBackground},
};

// All tiles of one picture in a row.
class PictureStrip : public QWidget
{
public:
    PictureStrip(const QString &inPath, const QString &inName) : mIcon(inPath)
    {
        setFixedSize(int(std::size(kTiles)) * (kTileSide + kGap) - kGap, kTileSide);
        setAccessibleName(inName);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const VantraStyleTheme &theme = VantraStyleTheme::instance();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        QRect tile(0, 0, kTileSide, kTileSide);
        QRect picture(0, 0, kSmallSide, kSmallSide);
        for (const Tile &look : kTiles) {
            painter.setBrush(theme.colorPalette().color(look.group, look.ground));
            painter.drawRoundedRect(tile, kRadius, kRadius);
            const QColor color = theme.colorPalette().color(look.group, look.picture);
            picture.moveCenter(tile.center());
            painter.drawPixmap(picture,
                               theme.tintedPixmap(mIcon, picture.size(), devicePixelRatioF(), QIcon::Normal,
                                                  QIcon::Off, look.flags, color, color));
            tile.translate(kTileSide + kGap, 0);
        }
    }

private:
    static constexpr int kTileSide = 36;
    static constexpr int kGap = 2;
    static constexpr int kRadius = 4;

    QIcon mIcon;
};

class PicturesPage : public GalleryPage
{
public:
    explicit PicturesPage(QWidget *inParent) : GalleryPage(inParent)
    {
        // By folder, the larger ones apart.
        QMap<QString, QStringList> small;
        QStringList large;
        const QStringList paths = allPaths();
        for (const QString &path : paths) {
            const QSize size = QImage(path).size();
            if (qMax(size.width(), size.height()) <= kSmallSide)
                small[path.section(QLatin1Char('/'), 2, -2)] << path;
            else
                large << path;
        }
        auto note =
            QStringLiteral("Each as drawn on the window; in the text colour on a pane; in the accent on "
                           "a checked button; disabled; on the accent.");
        for (auto folder = small.cbegin(); folder != small.cend(); ++folder) {
            addSmall(folder.key(), note, folder.value());
            note.clear();
        }
        if (!large.isEmpty())
            addLarge(large);
    }

private:
    // Every picture of the library's archives, once.
    static QStringList allPaths()
    {
        QStringList paths;
        QDirIterator files(QStringLiteral(":/VTWidgets"), {QStringLiteral("*.png")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            if (!path.endsWith(QLatin1String("@2x.png")))
                paths << path;
        }
        paths.sort();
        return paths;
    }

    static QString nameOf(const QString &inPath)
    {
        return inPath.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
    }

    void addSmall(const QString &inFolder, const QString &inNote, const QStringList &inPaths)
    {
        SampleGrid grid(addSection(inFolder, inNote), 4);
        for (const QString &path : inPaths)
            grid.add(nameOf(path), new PictureStrip(path, nameOf(path)));
    }

    void addLarge(const QStringList &inPaths)
    {
        QVBoxLayout *body =
            addSection(QStringLiteral("Larger pictures"), QStringLiteral("In their own colours and sizes."));
        QHBoxLayout *row = nullptr;
        int room = 0;
        for (const QString &path : inPaths) {
            auto *picture = new QLabel;
            picture->setPixmap(VTWidgetsLoadPixmap(path));
            picture->setAccessibleName(nameOf(path));
            auto *caption = makeCaption(nameOf(path));
            const int width = qMax(picture->sizeHint().width(), caption->sizeHint().width());
            if (row == nullptr || width > room) {
                row = new QHBoxLayout;
                row->setSpacing(kSpacing);
                row->addStretch();
                body->addLayout(row);
                body->addSpacing(kRowGap);
                room = kRowWidth;
            }
            auto *column = new QVBoxLayout;
            column->setSpacing(4);
            column->addWidget(picture);
            column->addWidget(caption);
            column->addStretch(1);
            row->insertLayout(row->count() - 1, column);
            room -= width + kSpacing;
        }
    }

    static constexpr int kSpacing = 24;
    static constexpr int kRowGap = 8;
    // What fits beside the sidebar of a window of the usual size, in pixels.
    static constexpr int kRowWidth = 920;
};
} // namespace

GalleryPage *makePicturesPage(QWidget *inParent)
{
    return new PicturesPage(inParent);
}
