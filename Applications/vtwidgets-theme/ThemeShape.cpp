#include "ThemeShape.h"

#include "Shared/JsonText.h"
#include "ThemeValidator.h"
#include "Vocabulary.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {
using Key = QLatin1String;

QJsonObject loadSchema()
{
    QFile file(QStringLiteral(":/vtwidgets-theme/theme.schema.json"));
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    return QJsonDocument::fromJson(file.readAll()).object();
}

const QJsonObject &schema()
{
    static const QJsonObject sSchema = loadSchema();
    return sSchema;
}

// What the schema says about the value at the end of the steps; empty where it says nothing.
QJsonObject schemaAt(const QStringList &inSteps)
{
    QJsonObject at = schema();
    for (const QString &step : inSteps) {
        const QJsonObject properties = at.value(Key("properties")).toObject();
        if (properties.contains(step))
            at = properties.value(step).toObject();
        else
            at = at.value(at.contains(Key("items")) ? Key("items") : Key("additionalProperties")).toObject();
        const QString reference = at.value(Key("$ref")).toString();
        if (!reference.isEmpty())
            at = schema()
                     .value(Key("definitions"))
                     .toObject()
                     .value(reference.section(QLatin1Char('/'), -1))
                     .toObject();
    }
    return at;
}

// "the document", "\"size\"", "entry 4" or "component 2".
QString nameOf(const QStringList &inSteps)
{
    if (inSteps.isEmpty())
        return QStringLiteral("the document");
    bool isIndex = false;
    const int index = inSteps.constLast().toInt(&isIndex);
    if (!isIndex || inSteps.size() < 2)
        return QStringLiteral("\"%1\"").arg(inSteps.constLast());
    const bool isEntry = inSteps.size() == 2 && inSteps.constFirst().endsWith(QLatin1String("_palette"));
    if (!isEntry && inSteps.size() == 2)
        return QStringLiteral("\"%1\"").arg(inSteps.constLast()); // an alias that looks like a number
    return (isEntry ? QStringLiteral("entry %1") : QStringLiteral("component %1")).arg(index + 1);
}

QString kindOf(const QJsonValue &inValue)
{
    switch (inValue.type()) {
    case QJsonValue::Null: return QStringLiteral("null");
    case QJsonValue::Bool: return inValue.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double: return QString::number(inValue.toDouble(), 'g', 15);
    case QJsonValue::String: return QStringLiteral("the text \"%1\"").arg(inValue.toString());
    case QJsonValue::Array: return QStringLiteral("an array");
    default: return QStringLiteral("an object");
    }
}

bool hasType(const QJsonValue &inValue, const QString &inType)
{
    if (inType == QLatin1String("object"))
        return inValue.isObject();
    if (inType == QLatin1String("array"))
        return inValue.isArray();
    if (inType == QLatin1String("string"))
        return inValue.isString();
    return inValue.isDouble() && inValue.toInteger(0) == inValue.toInteger(1); // "integer"
}

// Puts a broken rule of the schema into plain words, for one value and not for what is inside it.
class Explanation
{
public:
    Explanation(const QStringList &inSteps, const QJsonValue &inValue)
        : mSteps(inSteps), mValue(inValue), mSchema(schemaAt(inSteps))
    {
        for (const QString &step : inSteps)
            mPointer += JsonText::step(step);
        if (!explainType())
            return;
        explainWord();
        explainRange();
        explainCount();
        explainKeys();
    }

    const QList<ShapeFault> &faults() const { return mFaults; }
    QString pointer() const { return mPointer; }

private:
    void add(const QString &inMessage) { mFaults << ShapeFault{mPointer, false, inMessage}; }

    QString wanted() const { return mSchema.value(Key("description")).toString(); }

    bool explainType()
    {
        const QJsonValue type = mSchema.value(Key("type"));
        const QJsonArray types = type.isArray() ? type.toArray() : QJsonArray{type};
        for (const QJsonValue each : types) {
            if (hasType(mValue, each.toString()))
                return true;
        }
        add(QStringLiteral("%1 is %2, but must be %3").arg(nameOf(mSteps), kindOf(mValue), wanted()));
        return false;
    }

    void explainWord()
    {
        const QJsonArray words = mSchema.value(Key("enum")).toArray();
        if (words.isEmpty() || words.contains(mValue))
            return;
        const QString word = mValue.toString();
        QStringList candidates;
        for (const QJsonValue each : words)
            candidates << each.toString();
        QString message =
            QStringLiteral("unknown %1 \"%2\"").arg(wanted().section(QLatin1Char(' '), 1), word);
        const QString meant = Vocabulary::closest(word, candidates);
        if (!meant.isEmpty())
            message += QStringLiteral("; did you mean \"%1\"?").arg(meant);
        else if (candidates.size() < 5)
            message += QStringLiteral("; there are %1").arg(candidates.join(QLatin1String(", ")));
        add(message);
    }

    void explainRange()
    {
        const QJsonValue minimum = mSchema.value(Key("minimum"));
        const QJsonValue maximum = mSchema.value(Key("maximum"));
        if (mValue.isDouble() && ((minimum.isDouble() && mValue.toDouble() < minimum.toDouble()) ||
                                  (maximum.isDouble() && mValue.toDouble() > maximum.toDouble())))
            add(QStringLiteral("%1 is %2, but must be %3; the colour is left out")
                    .arg(nameOf(mSteps), kindOf(mValue), wanted()));
    }

    void explainCount()
    {
        const int least = mSchema.value(Key("minItems")).toInt(0);
        const int most = mSchema.value(Key("maxItems")).toInt(INT_MAX);
        const qsizetype count = mValue.toArray().size();
        if (!mValue.isArray() || (count >= least && count <= most))
            return;
        const QString effect = count > most ? QStringLiteral("what follows the fourth is ignored")
                               : count == 1 ? QStringLiteral("it is read as a grey")
                                            : QStringLiteral("the colour is left out");
        add(QStringLiteral("a colour has 3 or 4 components, this one has %1; %2").arg(count).arg(effect));
    }

    // Unknown and missing keys; a missing one that is only misspelt is not named twice.
    void explainKeys()
    {
        if (!mValue.isObject())
            return;
        const QStringList known = mSchema.value(Key("properties")).toObject().keys();
        const QStringList present = mValue.toObject().keys();
        QStringList misspelt;
        if (mSchema.value(Key("additionalProperties")).isBool()) {
            for (const QString &key : present) {
                if (known.contains(key))
                    continue;
                const QString meant = Vocabulary::closest(key, known);
                misspelt << meant;
                mFaults << ShapeFault{
                    mPointer + JsonText::step(key), true,
                    QStringLiteral("unknown key \"%1\"%2")
                        .arg(key, meant.isEmpty() ? QString()
                                                  : QStringLiteral("; did you mean \"%1\"?").arg(meant))};
            }
        }
        const QJsonArray required = mSchema.value(Key("required")).toArray();
        for (const QJsonValue key : required) {
            if (!present.contains(key.toString()) && !misspelt.contains(key.toString()))
                add(QStringLiteral("%1 has no \"%2\"").arg(nameOf(mSteps), key.toString()));
        }
    }

    QStringList mSteps;
    QJsonValue mValue;
    QJsonObject mSchema;
    QString mPointer;
    QList<ShapeFault> mFaults;
};
} // namespace

QList<ShapeFault> shapeFaults(const JsonText &inText)
{
    QList<ShapeFault> result;
    QStringList explained;
    const QList<SchemaFault> faults = validate(schema(), inText.root());
    for (const SchemaFault &fault : faults) {
        QString pointer;
        for (const QString &step : fault.steps)
            pointer += JsonText::step(step);
        if (explained.contains(pointer))
            continue;
        explained << pointer;
        result << Explanation(fault.steps, inText.value(pointer)).faults();
    }
    if (result.isEmpty() && !faults.isEmpty())
        result << ShapeFault{QString(), false, faults.constFirst().description};
    return result;
}
