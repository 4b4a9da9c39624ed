#pragma once

#include <QByteArrayView>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QString>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace tw::app::persistence {

class JsonNode;

/**
 * A JSON text as one flat list of nodes, whose texts become strings only where somebody asks for them.
 * Opening a project parses tens of thousands of files, each walked once and thrown away, which is what
 * QJsonDocument is slowest at. Accepts the texts that QJsonDocument accepts and finds the same in them: where
 * the quicker parser refuses one, Qt's has the last word.
 *
 * May be used again and again and then keeps its memory. Belongs to one thread at a time.
 */
class JsonTree
{
public:
    JsonTree();
    ~JsonTree();
    Q_DISABLE_COPY_MOVE(JsonTree)

    /**
     * False when the bytes are no JSON or their top level is no object; the tree is of no use then. The bytes
     * are needed during the call only.
     */
    [[nodiscard]] bool parse(QByteArrayView bytes);

    /** The top-level object. */
    [[nodiscard]] JsonNode root() const;

private:
    friend class JsonNode;
    class Parser;

    struct Null
    {};
    struct Array
    {};
    struct Object
    {};

    /** Texts are in UTF-8; in UTF-16 where Qt read them, which can hold what UTF-8 cannot. */
    using Value = std::variant<Null, bool, qint64, double, QByteArrayView, QStringView, Array, Object>;

    struct Node
    {
        Value value;          ///< Of an element, or a key, behind which its value stands.
        std::size_t next = 0; ///< The node behind this one and all that it holds.
    };

    std::unique_ptr<Parser> m_parser; ///< Keeps the texts.
    std::vector<Node> m_nodes;
};

/** One value of a tree, or none. Cheap to copy; holds as long as the tree keeps what it parsed. */
class JsonNode
{
public:
    JsonNode() = default;

    /** False for what is not there. */
    [[nodiscard]] bool exists() const { return m_tree; }
    [[nodiscard]] bool isNull() const { return is<JsonTree::Null>(); }
    [[nodiscard]] bool isBool() const { return is<bool>(); }
    [[nodiscard]] bool isNumber() const { return is<qint64>() || is<double>(); }
    [[nodiscard]] bool isText() const { return is<QByteArrayView>() || is<QStringView>(); }
    [[nodiscard]] bool isArray() const { return is<JsonTree::Array>(); }
    [[nodiscard]] bool isObject() const { return is<JsonTree::Object>(); }

    [[nodiscard]] bool isTrue() const { return is<bool>() && *get<bool>(); }
    /** The number if it is a whole one of 64 bits, however it is written. */
    [[nodiscard]] std::optional<qint64> integer() const;
    /** The number, which is finite; 0 when this is none. */
    [[nodiscard]] double number() const;
    /** The text; empty when this is none. */
    [[nodiscard]] QString text() const;
    /** The text in UTF-8, without a copy where it is at hand; empty when it is not, or when this is none. */
    [[nodiscard]] QByteArrayView utf8() const;
    /** Whether this is exactly that text of ASCII. */
    [[nodiscard]] bool isText(QLatin1StringView expected) const;

    /** An upper bound of the number of elements or members. */
    [[nodiscard]] qsizetype sizeHint() const
    {
        return m_tree ? static_cast<qsizetype>(node().next - m_index) - 1 : 0;
    }

    /** The value of a key, of the last one if it stands several times; none without it. */
    [[nodiscard]] JsonNode value(QLatin1StringView key) const;

    /** Calls `take(element)` for every element of an array, in order. */
    template <class Take>
    void forEachElement(Take take) const
    {
        if (!isArray())
            return;
        for (std::size_t index = m_index + 1; index < node().next; index = m_tree->m_nodes[index].next)
            take(JsonNode(*m_tree, index));
    }

    /** Calls `take(key, value)` for every member of an object: in the order of the text, if nothing in it was
     * left to Qt. */
    template <class Take>
    void forEachMember(Take take) const
    {
        if (!isObject())
            return;
        for (std::size_t index = m_index + 1; index < node().next; index = m_tree->m_nodes[index + 1].next)
            take(JsonNode(*m_tree, index), JsonNode(*m_tree, index + 1));
    }

    /** This value with everything in it as Qt's own type. */
    [[nodiscard]] QJsonValue toJsonValue() const;

private:
    friend class JsonTree;

    JsonNode(const JsonTree& tree, std::size_t index)
        : m_tree(&tree)
        , m_index(index)
    {}

    [[nodiscard]] const JsonTree::Node& node() const { return m_tree->m_nodes[m_index]; }
    template <class Type>
    [[nodiscard]] const Type* get() const
    {
        return m_tree ? std::get_if<Type>(&node().value) : nullptr;
    }
    template <class Type>
    [[nodiscard]] bool is() const
    {
        return get<Type>() != nullptr;
    }

    const JsonTree* m_tree = nullptr;
    std::size_t m_index = 0;
};

} // namespace tw::app::persistence
