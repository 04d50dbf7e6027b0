#include "GalleryPage.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QRawFont>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QVBoxLayout>

namespace {
const QString kSample = QStringLiteral("Hamburgefonts 0123");

struct ScaleStep
{
    const char *name;
    const QFont &(*font)();
    const QFont &(*immutableFont)();
};

constexpr ScaleStep kScale[] = {
    {"extraSmallFont", &VantraFont::extraSmallFont, &VantraFont::extraSmallFontImmutable},
    {"smallFont", &VantraFont::smallFont, &VantraFont::smallFontImmutable},
    {"smallFontPlus", &VantraFont::smallFontPlus, &VantraFont::smallFontPlusImmutable},
    {"mainFont", &VantraFont::mainFont, &VantraFont::mainFontImmutable},
    {"fontPlus", &VantraFont::fontPlus, &VantraFont::fontPlusImmutable},
    {"largeFont", &VantraFont::largeFont, &VantraFont::largeFontImmutable},
    {"largeFontPlus", &VantraFont::largeFontPlus, &VantraFont::largeFontPlusImmutable},
    {"extraLargeFont", &VantraFont::extraLargeFont, &VantraFont::extraLargeFontImmutable},
};

// The weights for which the house carries font files.
constexpr QFont::Weight kWeights[] = {QFont::Thin,   QFont::Light, QFont::Normal,
                                      QFont::Medium, QFont::Bold,  QFont::Black};

QString keyOf(int inValue, const QMetaEnum &inEnum)
{
    const char *key = inEnum.valueToKey(inValue);
    return key ? QLatin1String(key) : QString::number(inValue);
}

QString weightName(int inWeight)
{
    const QMetaObject &fonts = QFont::staticMetaObject;
    return keyOf(inWeight, fonts.enumerator(fonts.indexOfEnumerator("Weight")));
}

class TypePage : public GalleryPage
{
public:
    explicit TypePage(QWidget *inParent) : GalleryPage(inParent)
    {
        addScale();
        addWeights();
        addRoles();
        addIconFont();
        refresh();
    }

    void refresh() override
    {
        for (const Sample &sample : std::as_const(mSamples))
            applySample(sample);
    }

private:
    // A label with the font that a function makes, asked again at each refresh, and a caption that names its
    // size.
    struct Sample
    {
        QLabel *label;
        QLabel *caption;
        std::function<QFont()> font;
    };

    static void applySample(const Sample &inSample)
    {
        const QFont font = inSample.font();
        inSample.label->setFont(font);
        if (inSample.caption)
            inSample.caption->setText(
                QStringLiteral("%1 pt %2").arg(font.pointSize()).arg(weightName(font.weight())));
    }

    void addSample(QGridLayout *ioGrid, int inRow, int inColumn, const QString &inText,
                   std::function<QFont()> inFont, bool inWithCaption)
    {
        auto *label = new QLabel(inText);
        label->setTextFormat(Qt::PlainText);
        QLabel *caption = inWithCaption ? makeCaption(QString()) : nullptr;
        ioGrid->addWidget(label, inRow, inColumn);
        if (caption)
            ioGrid->addWidget(caption, inRow, inColumn + 1);
        mSamples.append({label, caption, std::move(inFont)});
    }

    static QGridLayout *addGrid(QVBoxLayout *ioBody, const QStringList &inHeaders, int inColumnsEach)
    {
        auto *grid = new QGridLayout;
        grid->setHorizontalSpacing(20);
        grid->setVerticalSpacing(8);
        int column = 0;
        for (const QString &header : inHeaders) {
            grid->addWidget(new HouseLabel(header, &VantraFont::smallFontPlus, QFont::Bold), 0, column);
            column += column == 0 ? 1 : inColumnsEach;
        }
        grid->setColumnStretch(column, 1);
        ioBody->addLayout(grid);
        return grid;
    }

    void addScale()
    {
        QGridLayout *grid = addGrid(
            addSection(QStringLiteral("Type scale"),
                       QStringLiteral("Eight sizes of %1. The user's text size is added to the first "
                                      "column and leaves the second alone.")
                           .arg(VantraFont::getFontFamily())),
            {QStringLiteral("Font"), QStringLiteral("With the text size"), QStringLiteral("Immutable")}, 2);
        int row = 0;
        for (const ScaleStep &step : kScale) {
            grid->addWidget(new HouseLabel(QLatin1String(step.name), &VantraFont::mainFont), ++row, 0);
            addSample(grid, row, 1, kSample, step.font, true);
            addSample(grid, row, 3, kSample, step.immutableFont, true);
        }
    }

    void addWeights()
    {
        QGridLayout *grid =
            addGrid(addSection(QStringLiteral("Weights"),
                               QStringLiteral("Each has a font file of its own, roman and italic.")),
                    {QStringLiteral("Weight"), QStringLiteral("Roman"), QStringLiteral("Italic")}, 1);
        int row = 0;
        for (const QFont::Weight weight : kWeights) {
            grid->addWidget(new HouseLabel(QStringLiteral("%1 (%2)").arg(weightName(weight)).arg(int(weight)),
                                           &VantraFont::mainFont),
                            ++row, 0);
            for (const bool italic : {false, true}) {
                const auto font = [weight, italic] {
                    QFont font = VantraFont::extraLargeFont();
                    font.setWeight(weight);
                    font.setItalic(italic);
                    return font;
                };
                addSample(grid, row, italic ? 2 : 1, kSample, font, false);
            }
        }
    }

    // True when the theme gives the role a font. The palette hands out no entries, so a probe of a size that
    // no theme has is sent through it.
    static bool hasFont(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole)
    {
        QFont probe(VantraFont::getFontFamily(), 999, QFont::ExtraLight);
        const QFont before = probe;
        VantraStyleTheme::instance().fontPalette().applyFont(inGroup, inRole, probe);
        return probe != before;
    }

    void addRoles()
    {
        const QMetaEnum groups = QMetaEnum::fromType<VantraPalette::PaletteGroup>();
        const QMetaEnum roles = QMetaEnum::fromType<VantraPalette::PaletteRole>();
        QStringList headers = {QStringLiteral("Role")};
        for (int index = 0; index < groups.keyCount(); ++index)
            headers << QLatin1String(groups.key(index));
        QGridLayout *grid =
            addGrid(addSection(QStringLiteral("Fonts of the theme"),
                               QStringLiteral("The roles to which the theme gives a font. All others "
                                              "leave the font as it is.")),
                    headers, 2);
        int row = 0;
        for (int index = 0; index < roles.keyCount(); ++index) {
            const auto role = static_cast<VantraPalette::PaletteRole>(roles.value(index));
            if (!hasFont(VantraPalette::Normal, role))
                continue;
            grid->addWidget(new HouseLabel(QLatin1String(roles.key(index)), &VantraFont::mainFont), ++row, 0);
            for (int groupIndex = 0; groupIndex < groups.keyCount(); ++groupIndex) {
                const auto group = static_cast<VantraPalette::PaletteGroup>(groups.value(groupIndex));
                const auto font = [group, role] {
                    QFont font = VantraFont::mainFont();
                    VantraStyleTheme::instance().fontPalette().applyFont(group, role, font);
                    return font;
                };
                addSample(grid, row, 1 + 2 * groupIndex, QStringLiteral("Hamburgefonts"), font, true);
            }
        }
    }

    void addIconFont()
    {
        // Common to the icon fonts of this family, whatever their version: house, camera, folder and so on.
        constexpr ushort kGlyphs[] = {0xf015, 0xf030, 0xf03e, 0xf07c, 0xf013, 0xf002, 0xf00c, 0xf00d,
                                      0xf067, 0xf068, 0xf1f8, 0xf0c7, 0xf02f, 0xf01e, 0xf0e2, 0xf125};
        const QRawFont raw(QStringLiteral(":/VTWidgets/Fonts/FontAwesome6ProReg.ttf"), 12.0);
        const QString family = raw.familyName();
        QVBoxLayout *body = addSection(QStringLiteral("Icon font"),
                                       family.isEmpty() ? QStringLiteral("The icon font could not be read.")
                                                        : QStringLiteral("Family \"%1\".").arg(family));
        SampleGrid grid(body, 8);
        for (const ushort glyph : kGlyphs) {
            if (!raw.isValid() || !raw.supportsCharacter(QChar(glyph)))
                continue;
            auto *label = new QLabel(QString(QChar(glyph)));
            mSamples.append({label, nullptr, [family] {
                                 QFont font = VantraFont::extraLargeFont();
                                 font.setFamilies({family});
                                 return font;
                             }});
            grid.add(QStringLiteral("U+%1").arg(QString::number(glyph, 16).toUpper()), label);
        }
    }

    QList<Sample> mSamples;
};
} // namespace

GalleryPage *makeTypePage(QWidget *inParent)
{
    return new TypePage(inParent);
}
