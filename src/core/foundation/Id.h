#pragma once

#include <QHashFunctions>
#include <QString>
#include <QStringView>
#include <QUuid>

#include <compare>

namespace tw::core::foundation {

/**
 * A typed 128-bit identifier: a random UUID whose tag keeps the ids of different families apart at compile
 * time. The default-constructed id is the null UUID and means "none".
 *
 * Text form everywhere an id is written: 36 characters, lower case, no braces.
 */
template <class Tag>
class Id
{
public:
    Id() = default;
    explicit Id(const QUuid& uuid)
        : m_uuid(uuid)
    {}

    /** A fresh random id. */
    [[nodiscard]] static Id create() { return Id(QUuid::createUuid()); }

    /**
     * Reads the 36-character form, or the 38-character form with braces; any other text gives the null id.
     * The length is checked here because QUuid alone accepts trailing garbage.
     */
    [[nodiscard]] static Id fromString(QStringView text)
    {
        constexpr qsizetype plainLength = 36;
        constexpr qsizetype bracedLength = 38;
        const bool isBraced = text.size() == bracedLength && text.endsWith(u'}');
        if (text.size() != plainLength && !isBraced)
            return {};
        return Id(QUuid::fromString(text));
    }

    [[nodiscard]] bool isNull() const { return m_uuid.isNull(); }
    [[nodiscard]] const QUuid& uuid() const { return m_uuid; }
    [[nodiscard]] QString toString() const { return m_uuid.toString(QUuid::WithoutBraces); }

    friend bool operator==(const Id& left, const Id& right) { return left.m_uuid == right.m_uuid; }
    friend std::strong_ordering operator<=>(const Id& left, const Id& right)
    {
        if (left.m_uuid == right.m_uuid)
            return std::strong_ordering::equal;
        return left.m_uuid < right.m_uuid ? std::strong_ordering::less : std::strong_ordering::greater;
    }
    friend size_t qHash(const Id& id, size_t seed = 0) { return ::qHash(id.m_uuid, seed); }

private:
    QUuid m_uuid;
};

struct ContentIdTag;
struct CategoryIdTag;

} // namespace tw::core::foundation

namespace tw::core {

/** Identifies a content object of any kind. */
using ContentId = foundation::Id<foundation::ContentIdTag>;
/** Identifies a codex category; categories are not content objects. */
using CategoryId = foundation::Id<foundation::CategoryIdTag>;

} // namespace tw::core
