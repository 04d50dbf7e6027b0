#pragma once

// The only place that knows the JSON Schema validator.

#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QStringList>

// A value at which the document breaks the schema: the keys and indices that lead to it, and what the
// validator says.
struct SchemaFault
{
    QStringList steps;
    QString description;
};

// Values that are wrong only because of something inside them are listed as well.
QList<SchemaFault> validate(const QJsonValue &inSchema, const QJsonValue &inDocument);
