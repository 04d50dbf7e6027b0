#include "GalleryPage.h"

#include "DrawnIcons.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr struct
{
    QIcon::Mode mode;
    const char *name;
} kModes[] = {{QIcon::Normal, "Normal"},
              {QIcon::Disabled, "Disabled"},
              {QIcon::Active, "Active"},
              {QIcon::Selected, "Selected"}};

constexpr struct
{
    QIcon::State state;
    const char *name;
} kStates[] = {{QIcon::On, "On"}, {QIcon::Off, "Off"}};

// What a cell does to its icon. Colours are named by role, so that a cell follows the theme; an override
// stands for colours that no role has.
struct Tint
{
    QIcon::Mode mode = QIcon::Normal;
    QIcon::State state = QIcon::Off;
    VantraIconPalette::IconTintings flags = VantraIconPalette::IconTintingForeground;
    VantraPalette::PaletteRole foreground = VantraPalette::ToolButtonText;
    QColor foregroundOverride;
    bool foregroundIsInvalid = false;
};

class TintedIcon : public QWidget
{
public:
    TintedIcon(const QIcon &inIcon, int inSize, const Tint &inTint, double inRatio = 0.0)
        : mIcon(inIcon), mSize(inSize), mTint(inTint), mRatio(inRatio)
    {
        setFixedSize(inSize, inSize);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const VantraStyleTheme &theme = VantraStyleTheme::instance();
        QColor foreground = theme.colorPalette().color(VantraPalette::Normal, mTint.foreground);
        if (mTint.foregroundOverride.isValid() || mTint.foregroundIsInvalid)
            foreground = mTint.foregroundOverride;

        QPainter painter(this);
        const double ratio = mRatio > 0.0 ? mRatio : devicePixelRatioF();
        const QPixmap pixmap = theme.tintedPixmap(
            mIcon, QSize(mSize, mSize), ratio, mTint.mode, mTint.state, mTint.flags, foreground,
            theme.colorPalette().color(VantraPalette::Normal, VantraPalette::Accent));
        painter.drawPixmap(rect(), pixmap);
    }

private:
    QIcon mIcon;
    int mSize;
    Tint mTint;
    // Device pixel ratio to ask for; 0 for that of the device at hand.
    double mRatio;
};

class IconsPage : public GalleryPage
{
public:
    explicit IconsPage(QWidget *inParent) : GalleryPage(inParent), mIcon(DrawnIcons::picture(kOwnColour))
    {
        addColours();
        addSizes();
        addFlags(addSection(QStringLiteral("Flag sets"),
                            QStringLiteral(
                                "Foreground is the text colour of a tool button, alternate the accent. An "
                                "icon that no flag names keeps its own colours.")),
                 [](int inFlags) { return qPopulationCount(quint32(inFlags)) > 1; });
        addFlags(addSection(QStringLiteral("Single flags"),
                            QStringLiteral("Each reaches one mode and one state.")),
                 [](int inFlags) { return qPopulationCount(quint32(inFlags)) == 1; });
    }

private:
    void addColours()
    {
        SampleGrid grid(
            addSection(QStringLiteral("Colours"),
                       QStringLiteral("A tint replaces the colour of every pixel and keeps its alpha, also "
                                      "where the tint is translucent.")),
            7);
        Tint tint;
        tint.flags = VantraIconPalette::IconTintingNone;
        grid.add(QStringLiteral("as drawn"), new TintedIcon(mIcon, kLarge, tint));
        tint.flags = VantraIconPalette::IconTintingForeground;
        grid.add(QStringLiteral("text"), new TintedIcon(mIcon, kLarge, tint));
        tint.foreground = VantraPalette::HighlightedText;
        grid.add(QStringLiteral("highlighted text"), new TintedIcon(mIcon, kLarge, tint));
        tint.flags = VantraIconPalette::IconTintingAlternate;
        grid.add(QStringLiteral("accent"), new TintedIcon(mIcon, kLarge, tint));
        tint.flags = VantraIconPalette::IconTintingForeground;
        tint.foregroundOverride = QColor(90, 200, 200);
        grid.add(QStringLiteral("a colour of one's own"), new TintedIcon(mIcon, kLarge, tint));
        tint.foregroundOverride = QColor(90, 200, 200, 128);
        grid.add(QStringLiteral("the same, half clear"), new TintedIcon(mIcon, kLarge, tint));
        tint.foregroundOverride = QColor();
        tint.foregroundIsInvalid = true;
        grid.add(QStringLiteral("no valid colour"), new TintedIcon(mIcon, kLarge, tint));
    }

    void addSizes()
    {
        SampleGrid grid(addSection(QStringLiteral("Sizes and pixel ratios"),
                                   QStringLiteral("The icon holds 16, 24 and 32 pixels at ratios 1 and 2.")),
                        8);
        Tint tint;
        tint.flags = VantraIconPalette::IconTintingAlternate;
        for (const int size : {16, 24, 32, 48}) {
            for (const double ratio : {1.0, 2.0})
                grid.add(QStringLiteral("%1 px at %2x").arg(size).arg(ratio),
                         new TintedIcon(mIcon, size, tint, ratio));
        }
    }

    template <typename Accept>
    void addFlags(QVBoxLayout *ioBody, Accept inAccept)
    {
        auto *grid = new QGridLayout;
        grid->setHorizontalSpacing(16);
        grid->setVerticalSpacing(6);
        ioBody->addLayout(grid);

        int column = 2;
        for (const auto &state : kStates) {
            for (const auto &mode : kModes) {
                auto *header = makeCaption(
                    QStringLiteral("%1\n%2").arg(QLatin1String(state.name), QLatin1String(mode.name)));
                header->setAlignment(Qt::AlignHCenter);
                header->setMinimumWidth(60);
                grid->addWidget(header, 0, column++);
            }
        }
        grid->setColumnStretch(column, 1);

        const QMetaEnum flags = QMetaEnum::fromType<VantraIconPalette::IconTintings>();
        for (int index = 0; index < flags.keyCount(); ++index) {
            if (inAccept(flags.value(index)))
                addFlagRow(grid, grid->rowCount(), flags.value(index), QLatin1String(flags.key(index)));
        }
    }

    void addFlagRow(QGridLayout *ioGrid, int inRow, int inFlags, const QString &inName)
    {
        ioGrid->addWidget(new HouseLabel(inName, &VantraFont::smallFontPlus), inRow, 0);
        ioGrid->addWidget(makeCaption(QStringLiteral("0x%1").arg(inFlags, 0, 16)), inRow, 1);
        int column = 2;
        for (const auto &state : kStates) {
            for (const auto &mode : kModes) {
                Tint tint;
                tint.mode = mode.mode;
                tint.state = state.state;
                tint.flags = VantraIconPalette::IconTintings(inFlags);
                ioGrid->addWidget(new TintedIcon(mIcon, kSmall, tint), inRow, column++, Qt::AlignCenter);
            }
        }
    }

    // Unlike any colour of the theme, so that an icon without a tint stands out.
    static constexpr QColor kOwnColour = QColor(200, 160, 100);
    static constexpr int kSmall = 24;
    static constexpr int kLarge = 32;

    QIcon mIcon;
};
} // namespace

GalleryPage *makeIconsPage(QWidget *inParent)
{
    return new IconsPage(inParent);
}
