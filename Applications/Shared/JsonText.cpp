#include "Shared/JsonText.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <algorithm>

// Walks a text once, notes where everything stands and stops at the first thing that is no JSON.
class JsonScanner
{
public:
    JsonScanner(const QByteArray &inText, JsonText &ioResult) : mText(inText), mResult(ioResult) {}

    void scan()
    {
        if (mText.startsWith("\xEF\xBB\xBF"))
            mNext = 3;
        skipSpace();
        if (atEnd()) {
            fail(QStringLiteral("the file is empty"));
        } else if (scanValue(QString(), mNext, 0)) {
            skipSpace();
            if (!atEnd())
                fail(QStringLiteral("the document has ended, but the text goes on"));
        }
    }

private:
    // Below what QJsonDocument takes, and far from what a stack can't.
    static constexpr int kDeepest = 512;

    bool atEnd() const { return mNext >= mText.size(); }
    char next() const { return atEnd() ? '\0' : mText.at(mNext); }

    bool fail(const QString &inReason)
    {
        mResult.mError = inReason;
        mResult.mErrorOffset = mNext;
        return false;
    }

    bool failExpecting(const char *inWhat)
    {
        if (atEnd())
            return fail(
                QStringLiteral("the text ends where %1 is expected").arg(QString::fromLatin1(inWhat)));
        if (next() == '/')
            return fail(
                QStringLiteral("JSON has no comments; %1 is expected here").arg(QLatin1String(inWhat)));
        return fail(QStringLiteral("%1 is expected here").arg(QLatin1String(inWhat)));
    }

    void skipSpace()
    {
        while (!atEnd() && QByteArrayView(" \t\r\n").contains(next()))
            ++mNext;
    }

    bool scanValue(const QString &inPointer, qsizetype inKey, int inDepth)
    {
        mResult.mPlaces.insert(inPointer, {inKey, mNext});
        if (inDepth > kDeepest)
            return fail(QStringLiteral("objects and arrays are nested too deeply"));
        switch (next()) {
        case '{': return scanObject(inPointer, inDepth);
        case '[': return scanArray(inPointer, inDepth);
        case '"': return scanString(nullptr);
        default: return scanWord();
        }
    }

    bool scanObject(const QString &inPointer, int inDepth)
    {
        QHash<QString, qsizetype> keys;
        ++mNext;
        skipSpace();
        if (next() == '}')
            return ++mNext;
        for (;;) {
            if (next() == '}')
                return fail(QStringLiteral("a comma stands before this \"}\", but nothing follows it"));
            if (next() != '"')
                return failExpecting("a key in double quotes");
            const qsizetype start = mNext;
            QString key;
            if (!scanString(&key))
                return false;
            if (keys.contains(key))
                mResult.mDuplicates << JsonText::Duplicate{key, mResult.position(keys.value(key)),
                                                           mResult.position(start)};
            keys.insert(key, start);
            skipSpace();
            if (next() != ':')
                return failExpecting("a colon");
            ++mNext;
            skipSpace();
            if (!scanValue(inPointer + JsonText::step(key), start, inDepth + 1))
                return false;
            skipSpace();
            if (next() == '}')
                return ++mNext;
            if (next() != ',')
                return failExpecting("a comma or \"}\"");
            ++mNext;
            skipSpace();
        }
    }

    bool scanArray(const QString &inPointer, int inDepth)
    {
        ++mNext;
        skipSpace();
        if (next() == ']')
            return ++mNext;
        for (int index = 0;; ++index) {
            if (next() == ']')
                return fail(QStringLiteral("a comma stands before this \"]\", but nothing follows it"));
            if (!scanValue(inPointer + JsonText::step(QString::number(index)), mNext, inDepth + 1))
                return false;
            skipSpace();
            if (next() == ']')
                return ++mNext;
            if (next() != ',')
                return failExpecting("a comma or \"]\"");
            ++mNext;
            skipSpace();
        }
    }

    // What an escape means is left to QJsonDocument, which checks it as well.
    bool scanString(QString *outText)
    {
        const qsizetype start = mNext++;
        bool escaped = false;
        for (; next() != '"'; ++mNext) {
            const auto sign = static_cast<unsigned char>(next());
            if (atEnd() || sign == '\n' || sign == '\r') {
                mNext = start;
                return fail(QStringLiteral("this text has no closing quote in its line"));
            }
            if (sign < ' ')
                return fail(QStringLiteral("a control character stands in a text"));
            if (sign == '\\') {
                escaped = true;
                ++mNext;
            }
        }
        ++mNext;
        const QByteArray text = mText.mid(start, mNext - start);
        if (outText && !escaped)
            *outText = QString::fromUtf8(text.mid(1, text.size() - 2));
        else if (escaped)
            return decode(text, start, outText);
        return true;
    }

    bool decode(const QByteArray &inQuoted, qsizetype inStart, QString *outText)
    {
        const QJsonArray decoded = QJsonDocument::fromJson('[' + inQuoted + ']').array();
        if (decoded.isEmpty()) {
            mNext = inStart;
            return fail(QStringLiteral("this text has an escape that JSON doesn't know"));
        }
        if (outText)
            *outText = decoded.at(0).toString();
        return true;
    }

    // Numbers, true, false and null.
    bool scanWord()
    {
        const qsizetype start = mNext;
        while (!atEnd() && (QChar::isLetterOrNumber(static_cast<unsigned char>(next())) ||
                            QByteArrayView("+-._#").contains(next())))
            ++mNext;
        const QByteArray word = mText.mid(start, mNext - start);
        if (!word.isEmpty() && !QJsonDocument::fromJson('[' + word + ']').isNull())
            return true;
        mNext = start;
        return word.isEmpty() ? failExpecting("a value")
                              : fail(QStringLiteral("\"%1\" is no value; texts stand in double quotes")
                                         .arg(QString::fromUtf8(word)));
    }

    const QByteArray &mText;
    JsonText &mResult;
    qsizetype mNext = 0;
};

JsonText::JsonText(const QByteArray &inText) : mText(inText)
{
    mLineStarts << (mText.startsWith("\xEF\xBB\xBF") ? 3 : 0);
    for (qsizetype index = 0; index < mText.size(); ++index) {
        const bool endsLine =
            mText.at(index) == '\n' ||
            (mText.at(index) == '\r' && (index + 1 == mText.size() || mText.at(index + 1) != '\n'));
        if (endsLine)
            mLineStarts << index + 1;
    }
    JsonScanner(mText, *this).scan();
    if (!isValid())
        return;

    // The judge; the scanner is there for the places and for plainer words.
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(mText, &error);
    if (document.isArray()) {
        mRoot = document.array();
    } else if (document.isObject()) {
        mRoot = document.object();
    } else if (mText.trimmed().size() > 0 && !QByteArrayView("{[").contains(mText.trimmed().front())) {
        mError = QStringLiteral("the document is a single value, not an object in braces");
        mErrorOffset = mPlaces.value(QString()).value;
    } else {
        mError = error.errorString();
        mErrorOffset = error.offset;
    }
}

QJsonValue JsonText::value(const QString &inPointer) const
{
    QJsonValue value = mRoot;
    const QStringList steps = inPointer.split(QLatin1Char('/')).mid(1);
    for (QString key : steps) {
        key.replace(QLatin1String("~1"), QLatin1String("/")).replace(QLatin1String("~0"), QLatin1String("~"));
        value = value.isArray() ? value.toArray().at(key.toInt()) : value.toObject().value(key);
    }
    return value;
}

TextPosition JsonText::positionOf(const QString &inPointer) const
{
    return position(mPlaces.value(inPointer).value);
}

TextPosition JsonText::positionOfKey(const QString &inPointer) const
{
    return position(mPlaces.value(inPointer).key);
}

QString JsonText::step(QString inKey)
{
    inKey.replace(QLatin1Char('~'), QLatin1String("~0")).replace(QLatin1Char('/'), QLatin1String("~1"));
    return QLatin1Char('/') + inKey;
}

TextPosition JsonText::position(qsizetype inOffset) const
{
    const qsizetype offset =
        std::clamp(inOffset, mLineStarts.constFirst(), qMax(mLineStarts.constFirst(), mText.size()));
    const auto line = std::prev(std::upper_bound(mLineStarts.begin(), mLineStarts.end(), offset));
    const auto characters = std::count_if(mText.begin() + *line, mText.begin() + offset, [](char inByte) {
        return (static_cast<unsigned char>(inByte) & 0xC0) != 0x80; // no continuation of a character
    });
    return {static_cast<int>(line - mLineStarts.begin()) + 1, static_cast<int>(characters) + 1};
}
