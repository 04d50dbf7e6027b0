#include "Vocabulary.h"

#include "Gallery/GalleryLook.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QFont>

#include <algorithm>
#include <numeric>

namespace {
template <typename Enum>
QStringList keysOf()
{
    const QMetaEnum meta = QMetaEnum::fromType<Enum>();
    QStringList keys;
    for (int index = 0; index < meta.keyCount(); ++index)
        keys << QLatin1String(meta.key(index));
    return keys;
}

// The steps of VantraFont's type scale.
constexpr struct
{
    const char *name;
    int points;
} kTypeScale[] = {
    {"extra small", 8}, {"small", 9},  {"small plus", 10}, {"main", 11},
    {"plus", 12},       {"large", 13}, {"large plus", 14}, {"extra large", 18},
};

// How many letters must be put in, taken out or exchanged to make one word of the other.
int distance(const QString &inFirst, const QString &inSecond)
{
    QList<int> row(inSecond.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < inFirst.size(); ++i) {
        int diagonal = std::exchange(row[0], int(i) + 1);
        for (qsizetype j = 0; j < inSecond.size(); ++j) {
            const int replaced = diagonal + (inFirst.at(i) == inSecond.at(j) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.constLast();
}
} // namespace

QStringList Vocabulary::groups()
{
    return keysOf<VantraPalette::PaletteGroup>();
}

QStringList Vocabulary::roles()
{
    return keysOf<VantraPalette::PaletteRole>().mid(1);
}

QStringList Vocabulary::weights()
{
    return keysOf<QFont::Weight>();
}

QStringList Vocabulary::accents()
{
    QStringList names;
    for (const GalleryLook::Accent &accent : GalleryLook::kAccents)
        names << QLatin1String(accent.name);
    return names;
}

QStringList Vocabulary::accentAliases()
{
    return {QStringLiteral("AccentColor"), QStringLiteral("AccentDisabledColor"),
            QStringLiteral("AccentPaneBackgroundColor"), QStringLiteral("AccentPaneLineColor"),
            QStringLiteral("AccentSubPaneHeaderText")};
}

QString Vocabulary::list()
{
    QString text;
    const auto section = [&text](const char *inTitle, const QStringList &inWords) {
        text += QLatin1String(inTitle) + QLatin1String(":\n  ") + inWords.join(QLatin1String("\n  ")) +
                QLatin1Char('\n');
    };
    QStringList sizes;
    for (const auto &step : kTypeScale)
        sizes << QStringLiteral("%1 (%2)").arg(step.points).arg(QLatin1String(step.name));
    QStringList additions;
    for (const int addition : GalleryLook::kTextSizes)
        additions << QString::number(addition);
    section("groups", groups());
    section("roles", roles());
    section("weights", weights());
    section("text sizes in points", sizes);
    section("points that the user may add to every text", additions);
    section("accents", accents());
    section("aliases that an accent document defines", accentAliases());
    return text;
}

QString Vocabulary::closest(const QString &inWord, const QStringList &inWords)
{
    const QString word = inWord.toLower();
    QString best;
    // A third of the letters may be wrong, but not more than three.
    int bound = std::min(3, int(word.size()) / 3) + 1;
    for (const QString &candidate : inWords) {
        const int wrong = distance(word, candidate.toLower());
        if (wrong < bound) {
            bound = wrong;
            best = candidate;
        }
    }
    return best;
}

const QList<Vocabulary::MeantHole> &Vocabulary::meantHoles()
{
    using P = VantraPalette;
    static constexpr char kByColorGroup[] = "asked for by enabled and disabled alone";
    static constexpr char kFrame[] = "no frame is highlighted";
    static constexpr char kProgress[] = "no progress bar is highlighted";
    static const QList<MeantHole> sHoles = {
        {P::WindowBackground, P::Highlighted, kByColorGroup},
        {P::WindowText, P::Highlighted, kByColorGroup},
        {P::Accent, P::Highlighted, kByColorGroup},
        {P::HighlightedText, P::Highlighted, kByColorGroup},
        {P::HighlightedTextBackground, P::Highlighted, kByColorGroup},
        {P::FrameBackground, P::Highlighted, kFrame},
        {P::FrameRaisedBackground, P::Highlighted, kFrame},
        {P::FrameSunkenBackground, P::Highlighted, kFrame},
        {P::FrameOverlayBackground, P::Highlighted, kFrame},
        {P::FrameLine, P::Highlighted, kFrame},
        {P::ProgressBarGroove, P::Highlighted, kProgress},
        {P::ProgressBarContents, P::Highlighted, kProgress},
        {P::SliderGrove, P::Highlighted, "no groove is highlighted, only handle and value are"},
        {P::ViewItemBackground, P::Normal, "only selected items have a ground of their own"},
    };
    return sHoles;
}

const QList<Vocabulary::MeantContrast> &Vocabulary::meantContrasts()
{
    using P = VantraPalette;
    static constexpr char kAccent[] = "the accents are the product's colours, with one white text on all";
    static const QList<MeantContrast> sContrasts = {
        {P::AccentButtonText, P::AccentButtonBackground, kAccent},
        {P::AccentButtonText, P::BlueAccentButtonBackground, kAccent},
        {P::AccentButtonText, P::GreenAccentButtonBackground, kAccent},
        {P::AccentButtonText, P::OrangeAccentButtonBackground, kAccent},
        {P::AccentButtonText, P::RedAccentButtonBackground, kAccent},
        {P::ModuleToolButtonText, P::WindowBackground, "the active module shows in the accent"},
        {P::SubPaneHeaderText, P::PaneBackground, "the headers of inner panes stand back behind the outer"},
    };
    return sContrasts;
}
