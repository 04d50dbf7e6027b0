#pragma once

// A JSON document together with the places where its keys and values stand in the text, for messages that an
// editor can jump to.
//
//     const JsonText text(file.readAll());
//     if (!text.isValid())
//         complain(text.errorPosition(), text.error());
//
// Values are named by JSON pointers: "/color_palette/3/role" is the role of the fourth entry. What counts as
// valid is what QJsonDocument takes, since the theme's loaders read with that.

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>

// Both from 1; a column counts characters, a tab as one.
struct TextPosition
{
    int line = 1;
    int column = 1;
};

class JsonText
{
public:
    // A key that stands in one object more than once: the value read is that of the last.
    struct Duplicate
    {
        QString key;
        TextPosition first;
        TextPosition second;
    };

    explicit JsonText(const QByteArray &inText = QByteArray());

    bool isValid() const { return mError.isEmpty(); }
    QString error() const { return mError; }
    TextPosition errorPosition() const { return position(mErrorOffset); }

    // The whole document, an object or an array; undefined when the text isn't valid.
    QJsonValue root() const { return mRoot; }
    QJsonValue value(const QString &inPointer) const;

    // Where the value begins, and where the key that it belongs to. The start of the document for a pointer
    // that names nothing; the value itself for elements of arrays, which have no key.
    TextPosition positionOf(const QString &inPointer) const;
    TextPosition positionOfKey(const QString &inPointer) const;

    const QList<Duplicate> &duplicates() const { return mDuplicates; }

    // A step of a pointer, with the two signs escaped that mean something in one.
    static QString step(QString inKey);

private:
    friend class JsonScanner;

    struct Place
    {
        qsizetype key = 0;
        qsizetype value = 0;
    };

    TextPosition position(qsizetype inOffset) const;

    QByteArray mText;
    QList<qsizetype> mLineStarts;
    QJsonValue mRoot = QJsonValue(QJsonValue::Undefined);
    QHash<QString, Place> mPlaces;
    QList<Duplicate> mDuplicates;
    QString mError;
    qsizetype mErrorOffset = 0;
};
