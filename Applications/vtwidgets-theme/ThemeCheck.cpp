#include "ThemeCheck.h"

#include "Shared/ContrastTable.h"
#include "Shared/VantraThemeTrial.h"
#include "ThemeShape.h"
#include "Vocabulary.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QMetaEnum>

#include <algorithm>
#include <tuple>

namespace {
using Group = VantraPalette::PaletteGroup;
using Role = VantraPalette::PaletteRole;

const QString kAliases = QStringLiteral("color_aliases");
const QString kColors = QStringLiteral("color_palette");
const QString kFonts = QStringLiteral("font_palette");
constexpr Group kGroups[] = {VantraPalette::Normal, VantraPalette::Highlighted, VantraPalette::Disabled};

QString wordOf(Role inRole)
{
    return QLatin1String(QMetaEnum::fromType<Role>().valueToKey(inRole));
}

QString wordOf(Group inGroup)
{
    return QLatin1String(QMetaEnum::fromType<Group>().valueToKey(inGroup));
}

QString pointerTo(const QString &inPalette, qsizetype inIndex)
{
    return QStringLiteral("/%1/%2").arg(inPalette).arg(inIndex);
}

// Gathers the findings of one run.
class ThemeChecker
{
public:
    explicit ThemeChecker(const QList<ThemeFile> &inFiles) : mFiles(inFiles)
    {
        bool readable = true;
        for (int file = 0; file < mFiles.size(); ++file)
            readable &= checkText(file);
        if (!readable)
            return;
        for (const ThemeFile &file : mFiles)
            mRoots << file.text.root().toObject();
        const bool isAccentAlone =
            mFiles.size() == 1 && !mRoots.at(0).contains(kColors) && mRoots.at(0).contains(kAliases);
        if (isAccentAlone) {
            checkAccent(0);
            return;
        }
        if (!mRoots.at(0).contains(kColors))
            add(0, QString(),
                QStringLiteral("the document has no \"color_palette\", so that every colour is red"));
        if (mFiles.size() == 2)
            checkAccentBeside();
        gatherAliases();
        checkColors();
        checkFonts();
        if (mRoots.at(0).value(kColors).isArray())
            checkHoles();
        checkContrasts();
    }

    QList<Finding> findings()
    {
        const auto place = [](const Finding &inFinding) {
            return std::make_tuple(inFinding.file, inFinding.position.line, inFinding.position.column);
        };
        std::stable_sort(mFindings.begin(), mFindings.end(),
                         [&](const Finding &a, const Finding &b) { return place(a) < place(b); });
        return mFindings;
    }

private:
    // An entry of a palette by what it is for.
    using Pair = std::pair<int, int>;
    struct Entry
    {
        int file = 0;
        QString pointer;
    };

    void add(int inFile, TextPosition inPosition, const QString &inMessage,
             Finding::Kind inKind = Finding::Kind::Fault)
    {
        mFindings << Finding{inKind, inFile, inPosition, inMessage};
    }

    void add(int inFile, const QString &inPointer, const QString &inMessage,
             Finding::Kind inKind = Finding::Kind::Fault)
    {
        add(inFile, mFiles.at(inFile).text.positionOf(inPointer), inMessage, inKind);
    }

    // "line 12", or "line 12 of FILE" when it is the other document's.
    QString lineOf(const Entry &inEntry, int inSeenFrom) const
    {
        const ThemeFile &file = mFiles.at(inEntry.file);
        const QString line = QStringLiteral("line %1").arg(file.text.positionOf(inEntry.pointer).line);
        return inEntry.file == inSeenFrom ? line : QStringLiteral("%1 of %2").arg(line, file.path);
    }

    // Syntax, keys that stand twice, and shape. True when the document can be looked into further.
    bool checkText(int inFile)
    {
        const JsonText &text = mFiles.at(inFile).text;
        if (!text.isValid()) {
            add(inFile, text.errorPosition(), text.error());
            return false;
        }
        for (const JsonText::Duplicate &duplicate : text.duplicates())
            add(inFile, duplicate.second,
                QStringLiteral("the key \"%1\" stands here again; its value in line %2 is lost")
                    .arg(duplicate.key, QString::number(duplicate.first.line)));
        const QList<ShapeFault> faults = shapeFaults(text);
        for (const ShapeFault &fault : faults)
            add(inFile, fault.atKey ? text.positionOfKey(fault.pointer) : text.positionOf(fault.pointer),
                fault.message);
        return text.root().isObject();
    }

    void checkAccent(int inFile)
    {
        const QStringList wanted = Vocabulary::accentAliases();
        const QJsonObject aliases = mRoots.at(inFile).value(kAliases).toObject();
        for (const QString &alias : wanted) {
            if (!aliases.contains(alias))
                add(inFile, QLatin1Char('/') + kAliases,
                    QStringLiteral("the accent lacks the alias \"%1\", which the base theme names")
                        .arg(alias));
        }
    }

    // What is of interest in an accent only together with its base.
    void checkAccentBeside()
    {
        const JsonText &base = mFiles.at(0).text;
        const QStringList aliases = mRoots.at(1).value(kAliases).toObject().keys();
        const QJsonObject baseAliases = mRoots.at(0).value(kAliases).toObject();
        for (const QString &alias : aliases) {
            const QString pointer = QLatin1Char('/') + kAliases + JsonText::step(alias);
            if (baseAliases.contains(alias))
                add(0, base.positionOfKey(pointer),
                    QStringLiteral("the alias \"%1\" is replaced by that in %2")
                        .arg(alias, lineOf({1, pointer}, 0)));
        }
        if (mRoots.at(1).contains(kFonts))
            add(1, mFiles.at(1).text.positionOfKey(QLatin1Char('/') + kFonts),
                QStringLiteral("the \"font_palette\" of an accent document is never read"));
        if (!mRoots.at(1).contains(kAliases) && !mRoots.at(1).contains(kColors))
            add(1, QString(), QStringLiteral("the accent document defines no colour"));
    }

    void gatherAliases()
    {
        for (const QJsonObject &root : std::as_const(mRoots)) {
            const QJsonObject aliases = root.value(kAliases).toObject();
            for (auto alias = aliases.begin(); alias != aliases.end(); ++alias)
                mAliases.insert(alias.key(), alias.value());
        }
    }

    void checkColors()
    {
        for (int file = 0; file < mRoots.size(); ++file) {
            const QJsonArray entries = mRoots.at(file).value(kColors).toArray();
            for (qsizetype index = 0; index < entries.size(); ++index) {
                const QString pointer = pointerTo(kColors, index);
                const QJsonObject entry = entries.at(index).toObject();
                checkAliasOf(file, pointer + QLatin1String("/color"), entry.value(QLatin1String("color")));
                const Pair pair = pairOf(entry);
                if (pair.first < 0 || pair.second < 0)
                    continue;
                mNamed.insert(pair, true);
                // The library itself says whether it can use the entry.
                VantraColorPalette one;
                one.loadConfig({{kAliases, mAliases}, {kColors, QJsonArray{entry}}});
                if (one.contains(Group(pair.first), Role(pair.second)))
                    replace(mColors, pair, {file, pointer});
            }
        }
    }

    void checkAliasOf(int inFile, const QString &inPointer, const QJsonValue &inColor)
    {
        const QString alias = inColor.toString();
        if (!inColor.isString() || mAliases.contains(alias))
            return;
        if (mFiles.size() == 1 && Vocabulary::accentAliases().contains(alias)) {
            if (!std::exchange(mLeftToAccent[alias], true))
                add(inFile, inPointer, QStringLiteral("\"%1\" is left to an accent document").arg(alias),
                    Finding::Kind::Meant);
            return;
        }
        QStringList known = mAliases.keys();
        if (mFiles.size() == 1)
            known << Vocabulary::accentAliases();
        const QString meant = Vocabulary::closest(alias, known);
        add(inFile, inPointer,
            QStringLiteral("unknown alias \"%1\"%2")
                .arg(alias, !meant.isEmpty() ? QStringLiteral("; did you mean \"%1\"?").arg(meant)
                            : alias.startsWith(QLatin1Char('#'))
                                ? QStringLiteral("; a literal colour is written as [ red, green, blue ]")
                                : QString()));
    }

    void checkFonts()
    {
        QMap<Pair, Entry> fonts;
        const QJsonArray entries = mRoots.at(0).value(kFonts).toArray();
        for (qsizetype index = 0; index < entries.size(); ++index) {
            const QString pointer = pointerTo(kFonts, index);
            const QJsonObject entry = entries.at(index).toObject();
            const bool hasSize = entry.value(QLatin1String("size")).toInt() > 0;
            const bool hasWeight = entry.contains(QLatin1String("weight"));
            if (entries.at(index).isObject() && !hasSize && !hasWeight)
                add(0, pointer, QStringLiteral("the entry sets neither a size nor a weight, and so nothing"));
            else if (!hasWeight)
                add(0, pointer, QStringLiteral("without a \"weight\", the lightest one is taken"),
                    Finding::Kind::Meant);
            const Pair pair = pairOf(entry);
            if (pair.first >= 0 && pair.second >= 0 && (hasSize || hasWeight))
                replace(fonts, pair, {0, pointer});
        }
    }

    // Takes note of an entry that counts, and tells when it puts an earlier one out of use. An accent may do
    // that to its base.
    void replace(QMap<Pair, Entry> &ioEntries, Pair inPair, const Entry &inEntry)
    {
        const auto earlier = ioEntries.constFind(inPair);
        if (earlier != ioEntries.constEnd())
            add(earlier->file, earlier->pointer,
                QStringLiteral("the entry of %1 in group %2 is overridden by a later one in %3")
                    .arg(wordOf(Role(inPair.second)), wordOf(Group(inPair.first)),
                         lineOf(inEntry, earlier->file)),
                earlier->file == inEntry.file ? Finding::Kind::Fault : Finding::Kind::Meant);
        ioEntries.insert(inPair, inEntry);
    }

    void checkHoles()
    {
        const QStringList roles = Vocabulary::roles();
        for (const QString &word : roles) {
            const auto role = Role(QMetaEnum::fromType<Role>().keyToValue(word.toLatin1().constData()));
            QStringList missing;
            for (const Group group : kGroups) {
                // An entry that is there, but faulty, has been named already.
                if (mNamed.contains({group, role}))
                    continue;
                const auto &meant = Vocabulary::meantHoles();
                const auto hole = std::find_if(meant.begin(), meant.end(), [=](const auto &inHole) {
                    return inHole.role == role && inHole.group == group;
                });
                if (hole == meant.end())
                    missing << wordOf(group);
                else
                    add(0, nearestTo(role),
                        QStringLiteral("%1 has no colour in group %2, as is meant: %3")
                            .arg(word, wordOf(group), QLatin1String(hole->reason)),
                        Finding::Kind::Meant);
            }
            if (!missing.isEmpty())
                add(0, nearestTo(role),
                    QStringLiteral("%1 has no colour in group %2 and would be painted red")
                        .arg(word, missing.join(QLatin1String(" or "))));
        }
    }

    // Where an entry of the role would be put: at its first one, or at the palette's start.
    QString nearestTo(Role inRole) const
    {
        const QJsonArray entries = mRoots.at(0).value(kColors).toArray();
        for (qsizetype index = 0; index < entries.size(); ++index) {
            if (pairOf(entries.at(index).toObject()).second == inRole)
                return pointerTo(kColors, index);
        }
        return QLatin1Char('/') + kColors;
    }

    void checkContrasts()
    {
        const auto palettes =
            VantraThemeTrial::read(mRoots.at(0), mRoots.size() == 2 ? mRoots.at(1) : QJsonObject());
        if (!palettes)
            return;
        const QList<Contrast::Pair> &pairs = Contrast::pairs();
        for (const Contrast::Pair &pair : pairs) {
            for (const Group group : {VantraPalette::Normal, VantraPalette::Highlighted}) {
                const auto colors = Contrast::colorsOf(palettes->colors, pair, group);
                if (!colors || colors->ratio() >= Contrast::kEnough)
                    continue;
                const Entry entry = mColors.value({group, pair.text});
                const Entry ground = mColors.value({Contrast::groundGroup(pair, group), pair.ground});
                const QString message =
                    QStringLiteral("%1 in group %2 has a contrast of %3, below %4; the ground stands in %5")
                        .arg(Contrast::nameOf(pair), wordOf(group))
                        .arg(colors->ratio(), 0, 'f', 2)
                        .arg(Contrast::kEnough)
                        .arg(lineOf(ground, entry.file));
                const QString reason = reasonFor(pair, group, *colors);
                const QString pointer = entry.pointer + QLatin1String("/color");
                if (reason.isEmpty())
                    add(entry.file, pointer, message);
                else
                    add(entry.file, pointer, QStringLiteral("%1, as is meant: %2").arg(message, reason),
                        Finding::Kind::Meant);
            }
        }
    }

    // Why these colours may be hard to tell apart; empty when there is no reason.
    static QString reasonFor(const Contrast::Pair &inPair, Group inGroup, const Contrast::Colors &inColors)
    {
        const auto &meant = Vocabulary::meantContrasts();
        const auto entry = std::find_if(meant.begin(), meant.end(), [&](const auto &inMeant) {
            return inMeant.text == inPair.text && inMeant.ground == inPair.ground;
        });
        if (entry == meant.end())
            return QString();
        for (const VantraColorPalette &palette : stockPalettes()) {
            const auto colors = Contrast::colorsOf(palette, inPair, inGroup);
            if (colors && colors->text == inColors.text && colors->ground == inColors.ground)
                return QLatin1String(entry->reason);
        }
        return QString();
    }

    // The library's own colours with each accent.
    static const QList<VantraColorPalette> &stockPalettes()
    {
        static const QList<VantraColorPalette> sPalettes = [] {
            QList<VantraColorPalette> result;
            const QStringList accents = Vocabulary::accents();
            const auto rootOf = [](const QString &inName) {
                return ThemeFile::read(ThemeFile::stockPath(inName)).text.root().toObject();
            };
            for (const QString &accent : accents) {
                if (auto palettes = VantraThemeTrial::read(rootOf(QStringLiteral("base")), rootOf(accent)))
                    result << palettes->colors;
            }
            return result;
        }();
        return sPalettes;
    }

    // -1 for words that nobody knows.
    static Pair pairOf(const QJsonObject &inEntry)
    {
        const auto value = [&inEntry](const QMetaEnum &inEnum, const char *inKey) {
            return inEnum.keyToValue(inEntry.value(QLatin1String(inKey)).toString().toUtf8().constData());
        };
        return {value(QMetaEnum::fromType<Group>(), "group"), value(QMetaEnum::fromType<Role>(), "role")};
    }

    const QList<ThemeFile> &mFiles;
    QList<QJsonObject> mRoots;
    QJsonObject mAliases;
    QMap<QString, bool> mLeftToAccent;
    // Pairs that an entry names, whether it can be used or not, and the entries that count.
    QMap<Pair, bool> mNamed;
    QMap<Pair, Entry> mColors;
    QList<Finding> mFindings;
};
} // namespace

QList<Finding> checkThemes(const QList<ThemeFile> &inFiles)
{
    return ThemeChecker(inFiles).findings();
}
