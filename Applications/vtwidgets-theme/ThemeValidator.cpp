#include "ThemeValidator.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

namespace {

// A key or index is in square brackets; since valijson 1.1 a key is also in double quotes.
QString stepOf(const QString &inContext)
{
    const QString step = inContext.mid(1, inContext.size() - 2);
    const bool quoted = step.size() > 1 && step.startsWith('"') && step.endsWith('"');
    return quoted ? step.mid(1, step.size() - 2) : step;
}

} // namespace

QList<SchemaFault> validate(const QJsonValue &inSchema, const QJsonValue &inDocument)
{
    valijson::Schema schema;
    valijson::SchemaParser(valijson::SchemaParser::kDraft7)
        .populateSchema(valijson::adapters::QtJsonAdapter(inSchema), schema);
    valijson::ValidationResults results;
    valijson::Validator validator(valijson::Validator::kStrongTypes);
    validator.validate(schema, valijson::adapters::QtJsonAdapter(inDocument), &results);

    QList<SchemaFault> faults;
    for (const auto &error : results) {
        QStringList steps;
        // The first one is the document.
        for (std::size_t index = 1; index < error.context.size(); ++index) {
            steps << stepOf(QString::fromStdString(error.context[index]));
        }
        faults << SchemaFault{steps, QString::fromStdString(error.description)};
    }
    return faults;
}
