#include "ThemeValidator.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

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
        // The first one stands for the document; the others are in square brackets.
        for (std::size_t index = 1; index < error.context.size(); ++index)
            steps << QString::fromStdString(error.context[index].substr(1, error.context[index].size() - 2));
        faults << SchemaFault{steps, QString::fromStdString(error.description)};
    }
    return faults;
}
