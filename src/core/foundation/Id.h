#pragma once

#include <QByteArrayView>
#include <QHashFunctions>
#include <QString>
#include <QStringView>
#include <QUuid>
#include <QtEndian>

#include <array>
#include <compare>

namespace tw::core::foundation {

/** The text form of an id, without a zero byte at its end. */
using IdText = std::array<char, 36>;

[[nodiscard]] IdText idText(const QUuid& uuid);
/** Reads that form, in letters of any case; null for anything else. */
[[nodiscard]] QUuid uuidFromIdText(QByteArrayView text);

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

    /** The same for the 36-character form alone, as bytes, which is several times faster. */
    [[nodiscard]] static Id fromText(QByteArrayView text) { return Id(uuidFromIdText(text)); }

    [[nodiscard]] bool isNull() const { return m_uuid.isNull(); }
    [[nodiscard]] const QUuid& uuid() const { return m_uuid; }
    [[nodiscard]] IdText text() const { return idText(m_uuid); }
    [[nodiscard]] QString toString() const { return m_uuid.toString(QUuid::WithoutBraces); }

    friend bool operator==(const Id& left, const Id& right) { return left.m_uuid == right.m_uuid; }
    /** QUuid's order: by variant, then as the text forms, in which the files of objects stand too. */
    friend std::strong_ordering operator<=>(const Id& left, const Id& right)
    {
        constexpr uchar variantBits = 0xe0;
        if (((left.m_uuid.data4[0] ^ right.m_uuid.data4[0]) & variantBits) != 0) {
            if (const auto order = left.m_uuid.variant() <=> right.m_uuid.variant(); order != 0)
                return order;
        }
        if (const auto order = left.firstHalf() <=> right.firstHalf(); order != 0)
            return order;
        return left.secondHalf() <=> right.secondHalf();
    }
    friend size_t qHash(const Id& id, size_t seed = 0) { return ::qHash(id.m_uuid, seed); }

private:
    [[nodiscard]] quint64 firstHalf() const
    {
        return quint64{m_uuid.data1} << 32 | quint64{m_uuid.data2} << 16 | m_uuid.data3;
    }
    [[nodiscard]] quint64 secondHalf() const { return qFromBigEndian<quint64>(m_uuid.data4); }

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
