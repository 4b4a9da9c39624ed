#include "app/persistence/json/JsonTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>

#include <simdjson.h>

namespace tw::app::persistence {

namespace {

/** The number if Qt would keep it as an integer: also when it is written as a fraction or with an exponent.
 */
std::optional<qint64> wholeNumber(double number)
{
    // The upper limit of 64 bits is no double, so the comparison leaves out the one above.
    constexpr double beyond = 9223372036854775808.0;
    if (number < -beyond || number >= beyond)
        return std::nullopt;
    const auto integer = static_cast<qint64>(number);
    return static_cast<double>(integer) == number ? std::optional(integer) : std::nullopt;
}

} // namespace

/** Fills the nodes from one of the two parsers, whose results it keeps since the texts lie there. */
class JsonTree::Parser
{
public:
    explicit Parser(std::vector<Node>& nodes)
        : m_nodes(nodes)
    {}

    bool parseQuickly(QByteArrayView bytes)
    {
        simdjson::dom::element root;
        return !bytes.isEmpty() &&
               m_parser.parse(bytes.data(), static_cast<std::size_t>(bytes.size())).get(root) ==
                   simdjson::SUCCESS &&
               root.is_object() && append(root);
    }

    bool parseWithQt(QByteArrayView bytes)
    {
        const QJsonDocument document =
            QJsonDocument::fromJson(QByteArray::fromRawData(bytes.data(), bytes.size()));
        if (!document.isObject())
            return false;
        append(document.object());
        return true;
    }

    void clear()
    {
        m_nodes.clear();
        m_texts.clear();
    }

private:
    void add(Value value) { m_nodes.push_back({value, m_nodes.size() + 1}); }

    /** Adds an array or object; `addAll` adds what it holds. */
    template <class AddAll>
    bool addContainer(Value kind, AddAll addAll)
    {
        const std::size_t index = m_nodes.size();
        add(kind);
        const bool isDone = addAll();
        m_nodes[index].next = m_nodes.size();
        return isDone;
    }

    static QByteArrayView view(std::string_view text)
    {
        return {text.data(), static_cast<qsizetype>(text.size())};
    }

    /** False when Qt might refuse the value. */
    bool append(const simdjson::dom::element& element)
    {
        switch (element.type()) {
        case simdjson::dom::element_type::ARRAY:
            return addContainer(Array(), [&] { return appendAll(element.get_array().value_unsafe()); });
        case simdjson::dom::element_type::OBJECT:
            return addContainer(Object(), [&] { return appendAll(element.get_object().value_unsafe()); });
        case simdjson::dom::element_type::STRING:
            add(view(element.get_string().value_unsafe()));
            return true;
        case simdjson::dom::element_type::INT64:
            add(qint64{element.get_int64().value_unsafe()});
            return true;
        case simdjson::dom::element_type::UINT64:
            add(static_cast<double>(element.get_uint64().value_unsafe()));
            return true;
        case simdjson::dom::element_type::DOUBLE:
            return appendDouble(element.get_double().value_unsafe());
        case simdjson::dom::element_type::BOOL:
            add(element.get_bool().value_unsafe());
            return true;
        case simdjson::dom::element_type::NULL_VALUE:
            break;
        }
        add(Null());
        return true;
    }

    bool appendAll(const simdjson::dom::array& array)
    {
        for (const simdjson::dom::element element : array) {
            if (!append(element))
                return false;
        }
        return true;
    }

    bool appendAll(const simdjson::dom::object& object)
    {
        for (const simdjson::dom::key_value_pair member : object) {
            add(view(member.key));
            if (!append(member.value))
                return false;
        }
        return true;
    }

    bool appendDouble(double number)
    {
        if (const std::optional<qint64> integer = wholeNumber(number))
            add(*integer);
        else
            add(number);
        // A number too small for a double has become 0; Qt refuses such a one.
        return number != 0.0;
    }

    void append(const QString& text)
    {
        m_texts.append(text);
        add(QStringView(m_texts.constLast()));
    }

    void append(const QJsonValue& value)
    {
        switch (value.type()) {
        case QJsonValue::Array:
            addContainer(Array(), [this, array = value.toArray()] {
                for (const QJsonValue& element : array)
                    append(element);
                return true;
            });
            break;
        case QJsonValue::Object:
            addContainer(Object(), [this, object = value.toObject()] {
                for (auto member = object.begin(); member != object.end(); ++member) {
                    append(member.key());
                    append(member.value());
                }
                return true;
            });
            break;
        case QJsonValue::String:
            append(value.toString());
            break;
        case QJsonValue::Double:
            // Only the variant tells whether Qt holds an integer, which may lie beyond what a double can.
            if (const QVariant number = value.toVariant(); number.typeId() == QMetaType::LongLong)
                add(number.toLongLong());
            else
                add(number.toDouble());
            break;
        case QJsonValue::Bool:
            add(value.toBool());
            break;
        case QJsonValue::Null:
        case QJsonValue::Undefined:
            add(Null());
            break;
        }
    }

    std::vector<Node>& m_nodes;
    simdjson::dom::parser m_parser;
    QStringList m_texts; ///< Those that Qt read.
};

JsonTree::JsonTree()
    : m_parser(std::make_unique<Parser>(m_nodes))
{}

JsonTree::~JsonTree() = default;

bool JsonTree::parse(QByteArrayView bytes)
{
    m_parser->clear();
    if (m_parser->parseQuickly(bytes))
        return true;
    m_parser->clear();
    return m_parser->parseWithQt(bytes);
}

JsonNode JsonTree::root() const
{
    return JsonNode(*this, 0);
}

std::optional<qint64> JsonNode::integer() const
{
    const qint64* const integer = get<qint64>();
    return integer ? std::optional(*integer) : std::nullopt;
}

double JsonNode::number() const
{
    if (const qint64* const integer = get<qint64>())
        return static_cast<double>(*integer);
    const double* const number = get<double>();
    return number ? *number : 0.0;
}

QString JsonNode::text() const
{
    if (const QStringView* const text = get<QStringView>())
        return text->toString();
    // A mark at the start of a text is part of it.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(utf8());
}

QByteArrayView JsonNode::utf8() const
{
    const QByteArrayView* const text = get<QByteArrayView>();
    return text ? *text : QByteArrayView();
}

bool JsonNode::isText(QLatin1StringView expected) const
{
    if (const QStringView* const text = get<QStringView>())
        return *text == expected;
    return isText() && utf8() == QByteArrayView(expected.data(), expected.size());
}

JsonNode JsonNode::value(QLatin1StringView key) const
{
    JsonNode found;
    forEachMember([&](const JsonNode& name, const JsonNode& value) {
        if (name.isText(key))
            found = value;
    });
    return found;
}

QJsonValue JsonNode::toJsonValue() const
{
    if (isText())
        return text();
    if (isBool())
        return isTrue();
    if (isNumber())
        return integer() ? QJsonValue(*integer()) : QJsonValue(number());
    if (isArray()) {
        QJsonArray array;
        forEachElement([&](const JsonNode& element) { array.append(element.toJsonValue()); });
        return array;
    }
    if (isObject()) {
        QJsonObject object;
        forEachMember([&](const JsonNode& key, const JsonNode& value) {
            object.insert(key.text(), value.toJsonValue());
        });
        return object;
    }
    return QJsonValue::Null;
}

} // namespace tw::app::persistence
