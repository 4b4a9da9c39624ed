#include "app/persistence/codec/CategoryCodec.h"

#include "app/persistence/codec/FieldCodec.h"
#include "app/persistence/files/JsonFile.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::taxonomy::Category;

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
bool isField(const JsonNode& json)
{
    const JsonNode type = json.value("type"_L1);
    return !readText(json.value("key"_L1)).value_or(QString()).isEmpty() &&
           (!type.exists() || core::taxonomy::fieldTypeFromName(type.text()));
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

core::Result<Category> parseCategory(const QByteArray& bytes, const QString& path, ParseScratch& scratch)
{
    if (!scratch.tree.parse(bytes))
        return invalidJson(path);
    const JsonNode root = scratch.tree.root();
    if (readId<core::CategoryId>(root.value("id"_L1)).isNull())
        return failure(QT_TRANSLATE_NOOP("Persistence", "Malformed category file: %1"), path);
    bool areFields = true;
    root.value("fields"_L1).forEachElement([&](const JsonNode& field) {
        areFields = areFields && isField(field);
    });
    if (!areFields)
        return failure(QT_TRANSLATE_NOOP("Persistence", "Malformed field in category: %1"), path);

    Category category;
    readEntries(root, category, scratch.texts);
    // A category has one parent. Nothing crosses from an entity unasked, so hanging under one is the safer
    // reading.
    if (!category.parentEntityId.isNull())
        category.parentId = {};
    core::taxonomy::keepFixedUnrequired(category.fields);
    return category;
}

} // namespace tw::app::persistence
