#pragma once

#include <QByteArrayView>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QString>

#include <vector>

namespace tw::app::persistence {

class JsonNode;

/**
 * A JSON text in a form that costs little to make: one flat list of nodes which refer to the bytes, and texts
 * and numbers that are only decoded where somebody asks for them. Opening a project parses tens of thousands
 * of files, each walked once and thrown away, which is what QJsonDocument is slowest at; the two accept the
 * same texts.
 *
 * May be used again and again and then keeps its memory. The bytes must outlive the nodes. Belongs to one
 * thread.
 */
class JsonTree
{
public:
    /** False when the bytes are no JSON or their top level is no object; the tree is of no use then. */
    [[nodiscard]] bool parse(QByteArrayView bytes);

    /** The top-level object. */
    [[nodiscard]] JsonNode root() const;

private:
    friend class JsonNode;
    class Parser;

    enum class Type : quint8
    {
        Null,
        False,
        True,
        Number,
        Text, ///< Of an element, or of a key, behind which its value stands.
        Array,
        Object,
    };

    struct Node
    {
        quint32 start = 0;  ///< The first byte, behind the quotation mark of a text.
        quint32 length = 0; ///< Bytes of a text or a number.
        quint32 next = 0;   ///< The node behind this one and all that it holds.
        Type type = Type::Null;
        bool isPlain = true; ///< A text of ASCII without escapes.
    };

    QByteArrayView m_bytes;
    std::vector<Node> m_nodes;
};

/** One value of a tree, or none. Cheap to copy; holds as long as the tree keeps what it parsed. */
class JsonNode
{
public:
    JsonNode() = default;

    /** False for what is not there. */
    [[nodiscard]] bool exists() const { return m_tree; }
    [[nodiscard]] bool isNull() const { return is(JsonTree::Type::Null); }
    [[nodiscard]] bool isBool() const { return is(JsonTree::Type::False) || is(JsonTree::Type::True); }
    [[nodiscard]] bool isNumber() const { return is(JsonTree::Type::Number); }
    [[nodiscard]] bool isText() const { return is(JsonTree::Type::Text); }
    [[nodiscard]] bool isArray() const { return is(JsonTree::Type::Array); }
    [[nodiscard]] bool isObject() const { return is(JsonTree::Type::Object); }

    [[nodiscard]] bool isTrue() const { return is(JsonTree::Type::True); }
    /** The decoded text; empty when this is none. */
    [[nodiscard]] QString text() const;
    /** The number as it is written; empty when this is none. */
    [[nodiscard]] QByteArrayView digits() const;
    /** The text as it stands in the file, with its escapes; equal ones are equal texts. */
    [[nodiscard]] QByteArrayView encodedText() const;
    /** Whether this is exactly that text. */
    [[nodiscard]] bool isText(QStringView expected) const;
    /** The same for a text of ASCII. */
    [[nodiscard]] bool isText(QLatin1StringView expected) const;

    /** An upper bound of the number of elements or members. */
    [[nodiscard]] qsizetype sizeHint() const { return m_tree ? node().next - m_index - 1 : 0; }

    /** The value of a key, of the last one if it stands several times; none without it. */
    [[nodiscard]] JsonNode value(QLatin1StringView key) const;

    /** Calls `take(element)` for every element of an array, in order. */
    template <class Take>
    void forEachElement(Take take) const
    {
        if (!isArray())
            return;
        for (quint32 index = m_index + 1; index < node().next; index = m_tree->m_nodes[index].next)
            take(JsonNode(*m_tree, index));
    }

    /** Calls `take(key, value)` for every member of an object, in the order of the text. */
    template <class Take>
    void forEachMember(Take take) const
    {
        if (!isObject())
            return;
        for (quint32 index = m_index + 1; index < node().next; index = m_tree->m_nodes[index + 1].next)
            take(JsonNode(*m_tree, index), JsonNode(*m_tree, index + 1));
    }

    /** This value with everything in it as Qt's own type. */
    [[nodiscard]] QJsonValue toJsonValue() const;

private:
    friend class JsonTree;

    JsonNode(const JsonTree& tree, quint32 index)
        : m_tree(&tree)
        , m_index(index)
    {}

    [[nodiscard]] const JsonTree::Node& node() const { return m_tree->m_nodes[m_index]; }
    [[nodiscard]] bool is(JsonTree::Type type) const { return m_tree && node().type == type; }
    [[nodiscard]] QByteArrayView slice() const { return m_tree->m_bytes.sliced(node().start, node().length); }

    const JsonTree* m_tree = nullptr;
    quint32 m_index = 0;
};

} // namespace tw::app::persistence
