#include "app/persistence/codec/CategoryCodec.h"

#include "app/persistence/codec/FieldCodec.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::taxonomy::Category;
using core::taxonomy::Field;

template <>
struct RecordOf<Category>
{
    static constexpr auto entries = std::tuple(
        always<Data<&Category::id>>("id"_L1), always<Data<&Category::name>>("name"_L1),
        ifSet<Data<&Category::parentId>>("parentId"_L1),
        ifSet<Data<&Category::parentEntityId>>("parentEntityId"_L1),
        ifSet<Data<&Category::inheritedKeys>>("inheritedKeys"_L1),
        ifSet<Data<&Category::excludedKeys>>("excludedKeys"_L1),
        ifSet<Data<&Category::sortIndex>>("sortIndex"_L1), always<Data<&Category::fields>>("fields"_L1));
};

namespace {

/** A field is nothing without a key, and its values cannot be kept right under a type nobody knows. */
bool isField(const QJsonValue& json)
{
    const QJsonObject object = json.toObject();
    const QJsonValue type = object.value("type"_L1);
    return !readText(object.value("key"_L1)).value_or(QString()).isEmpty() &&
           (type.isUndefined() || core::taxonomy::fieldTypeFromName(type.toString()));
}

core::Failure failure(const char* message, const QString& path)
{
    return {QCoreApplication::translate("Persistence", message).arg(path)};
}

} // namespace

void appendCategory(QByteArray& output, const Category& category)
{
    JsonWriter writer(output);
    writer.beginObject();
    writeEntries(writer, category);
    writer.endObject();
}

QByteArray serializeCategory(const Category& category)
{
    QByteArray bytes;
    appendCategory(bytes, category);
    return bytes;
}

core::Result<Category> parseCategory(const QByteArray& bytes, const QString& path, TextPool& texts)
{
    const core::Result<QJsonObject> json = parseJsonObject(bytes, path);
    if (!json)
        return core::Failure{json.message()};
    if (readId<core::CategoryId>(json.value().value("id"_L1)).isNull())
        return failure(QT_TRANSLATE_NOOP("Persistence", "Malformed category file: %1"), path);
    const QJsonArray fields = json.value().value("fields"_L1).toArray();
    if (!std::all_of(fields.begin(), fields.end(), isField))
        return failure(QT_TRANSLATE_NOOP("Persistence", "Malformed field in category: %1"), path);

    Category category;
    readEntries(json.value(), category, texts);
    // A category has one parent. Nothing crosses from an entity unasked, so hanging under one is the safer
    // reading.
    if (!category.parentEntityId.isNull())
        category.parentId = {};
    for (Field& field : category.fields)
        field.isRequired = field.isRequired && !field.isFixed;
    return category;
}

} // namespace tw::app::persistence
